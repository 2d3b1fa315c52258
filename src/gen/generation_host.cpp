// gen/generation_host.cpp - what comes as a box and what is kept for the report.
#include "gen/generation_host.h"

#include <algorithm>
#include <utility>

#include "core/resets.h"
#include "core/work.h"
#include "platform/files.h"

namespace {

struct Tool_State {
    std::string Running;
    bool Was_Ended = false;
};

Tool_State The_Tool;
const bool Is_Reset = At_Reset([] { The_Tool = {}; });

constexpr Int As_Boxes[] = {121, 122, 129, 130, 131, 132};

bool Asks(const Box& B) {
    return B.Style % 16 != Box_Ok;
}

// The name at the head of a command line that begins with the path of a tool.
std::string Name_Of_Tool(std::string_view Cmd_Line) {
    const std::string_view Path = Cmd_Line.substr(0, Cmd_Line.find(".exe"));
    return std::string(Path.substr(Path.rfind('\\') + 1)) + ".exe";
}

}  // namespace

const std::string& Tool_Running() {
    return The_Tool.Running;
}

void Tool_End() {
    if (The_Tool.Running.empty()) return;
    The_Tool.Was_Ended = The_Host().End_Tool();
}

bool Tool_Was_Ended() {
    return The_Tool.Was_Ended;
}

Int Generation_Host::Show_Box(const Box& B) {
    if (Asks(B)) return Behind_.Show_Box(B);
    const bool Is_Box = std::ranges::count(As_Boxes, B.Num) != 0 && Shown_.insert(B.Text).second;
    if (!Is_Box) {
        Note_Message(B);
        return Button_Ok;
    }
    The_Report.Messages.push_back(B);
    return Behind_.Show_Box(B);
}

void Generation_Host::Note_Message(const Box& B) {
    The_Report.Messages.push_back(B);
    Behind_.Note_Message(B);
}

bool Generation_Host::Run_Tool(std::string_view Cmd_Line, Int Show_Mode) {
    Work_Look();
    The_Tool.Was_Ended = false;
    if (Choice_ == Tool_Choice::Sources_Only) return true;
    The_Tool.Running = Name_Of_Tool(Cmd_Line);
    const bool Has_Run = Behind_.Run_Tool(Cmd_Line, Show_Mode);
    The_Tool.Running.clear();
    return Has_Run;
}

// A source that is written anew is told of once.
void Generation_Host::Note_File(File_Event Event, std::string_view Path) {
    if (Event == File_Event::Would_Delete && Choice_ == Tool_Choice::Sources_Only) return;
    auto& Sources = The_Report.Sources;
    if (Event == File_Event::Written &&
        std::ranges::find(Sources, Path, &Report_File::Path) == Sources.end())
        Sources.push_back({.Path = std::string(Path)});
    Behind_.Note_File(Event, Path);
}

bool Generation_Host::Is_Dry_Run() const {
    return Choice_ == Tool_Choice::Sources_Only || Behind_.Is_Dry_Run();
}

bool Generation_Host::Starts_Tools() const {
    return Choice_ != Tool_Choice::Sources_Only && Behind_.Starts_Tools();
}
