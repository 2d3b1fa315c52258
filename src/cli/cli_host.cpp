// cli/cli_host.cpp - events as lines, progress as one line of the terminal.
#include "cli/cli_host.h"

#include <chrono>

#include "platform/paths.h"
#include "platform/terminal.h"
#include "platform/text1252.h"

namespace {

using Clock = std::chrono::steady_clock;

// Often enough to look alive, seldom enough to cost nothing.
constexpr auto Progress_Interval = std::chrono::milliseconds(100);

bool Progress_Is_Due() {
    static Clock::time_point Next;
    const Clock::time_point Now = Clock::now();
    if (Now < Next) return false;
    Next = Now + Progress_Interval;
    return true;
}

}  // namespace

Cli_Host::Cli_Host(std::FILE* Out, bool Dry_Run)
    : Out_(Out), Dry_Run_(Dry_Run), Shows_Progress_(Error_Is_Terminal()) {}

Cli_Host::~Cli_Host() {
    Clear_Progress();
    std::fflush(Out_);
}

void Cli_Host::Clear_Progress() {
    if (!Progress_Is_Up_) return;
    std::fputs("\r\x1b[K", stderr);
    Progress_Is_Up_ = false;
}

void Cli_Host::Print_Utf8(std::string_view Line) {
    Clear_Progress();
    std::fwrite(Line.data(), 1, Line.size(), Out_);
    std::fflush(Out_);
}

void Cli_Host::Print(std::string_view Line) {
    Print_Utf8(To_Utf8(As_One_Line(Line)) + '\n');
}

void Cli_Host::Tell_Message(const Box& B) {
    Print("message " + std::to_string(B.Num) + " " + B.Text);
}

void Cli_Host::Tell(std::string_view Event, std::string_view What) {
    Print(std::string(Event) + " " + std::string(What));
}

Int Cli_Host::Show_Box(const Box& B) {
    Any_Message_ = true;
    Last_Message_ = As_One_Line(B.Text);
    Tell_Message(B);
    return Silent_Host::Show_Box(B);
}

Form_End Cli_Host::Run_Form(std::string_view Form) {
    return Form == "Frm_V24" ? Form_End::Ok : Form_End::Absent;
}

void Cli_Host::Set_Caption(std::string_view Control, std::string_view Text) {
    if (!Shows_Progress_) return;
    if (Control == "LCompileNom") Name_ = Text;
    if (Control == "LCompile") Stage_ = Text;
}

void Cli_Host::Refresh() {
    if (!Shows_Progress_ || !Progress_Is_Due()) return;
    std::fprintf(stderr, "\r\x1b[K%s  %s", To_Utf8(As_One_Line(Name_)).c_str(),
                 To_Utf8(As_One_Line(Stage_)).c_str());
    std::fflush(stderr);
    Progress_Is_Up_ = true;
}

bool Cli_Host::Run_Tool(std::string_view Cmd_Line, Int Show_Mode) {
    Tell("run", Cmd_Line);
    return Dry_Run_ || Silent_Host::Run_Tool(Cmd_Line, Show_Mode);
}

void Cli_Host::Note_File(File_Event Event, std::string_view Path) {
    if (Event == File_Event::Missing) Any_Message_ = true;
    Tell(Event_Word(Event), Shown_Path(Path));
}
