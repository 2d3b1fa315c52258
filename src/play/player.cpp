// play/player.cpp - the program from start to end, act after act, and the host it speaks to.
#include "play/player.h"

#include <algorithm>
#include <utility>

#include "core/lifecycle.h"
#include "core/program.h"
#include "core/view_calls.h"
#include "platform/paths.h"
#include "platform/text1252.h"
#include "play/script_path.h"
#include "ui/dialogs/dialogs.h"
#include "ui/form/form_events.h"
#include "ui/frm/frm.h"

namespace {

// The button of a box that a word names, 0 when the box does not have it.
Int Button_Of(std::string_view Word, Int Style) {
    const Int Buttons = static_cast<Int>(Style % 16);
    const bool Has_Cancel = Buttons == Box_Ok_Cancel || Buttons == Box_Yes_No_Cancel;
    if (Word == "cancel") return Has_Cancel ? Button_Cancel : Int{0};
    if (Word == "ok") return Buttons == Box_Ok_Cancel ? Button_Ok : Int{0};
    const bool Has_Yes_No = Buttons == Box_Yes_No || Buttons == Box_Yes_No_Cancel;
    if (!Has_Yes_No) return 0;
    return Word == "yes" ? Button_Yes : Button_No;
}

bool Asks(Int Style) {
    const Int Buttons = static_cast<Int>(Style % 16);
    return Buttons == Box_Ok_Cancel || Buttons == Box_Yes_No_Cancel || Buttons == Box_Yes_No;
}

bool Is_Registered(std::string_view Form) {
    return std::ranges::count(Form_Names(), Form) != 0;
}

// What a generation brings of itself.
bool Is_Of_Generation(std::string_view Form) {
    return Form == "Frm_Tools" || Form == "Frm_Report";
}

// Acts that go to no form.
bool Needs_No_Form(Verb What) {
    return What == Verb::Answer || What == Verb::File || What == Verb::Aircraft ||
           What == Verb::State || What == Verb::Say || What == Verb::Reports;
}

}  // namespace

Player::Player(const Script& S, const Play_Options& Options, Printer Print)
    : Script_(S), Options_(Options), Print_(std::move(Print)) {}

Play_End Player::Play_All() {
    const Host_Scope On_Stage(*this);
    const Carrier_Scope In_The_Air(Simulator_);
    Forms_Install();
    Frm_Install();
    Open_.push_back({.Shown = &Frm()});
    The_View.Window_Show = [this] { Give_Canvas_Its_Room(Frm()); };
    Take_First_Answers();
    Program_Start(
        {}, Options_.App_Dir,
        {.Alone = false, .Confirmed = true, .Keeps_View = false, .Language = Options_.Language});
    if (Options_.At_Start) Options_.At_Start();
    Play_While([] { return true; });
    if (Options_.At_End && End_.Status == 0 && !Frm().Is_Closed()) Options_.At_End();
    Over_ = true;
    Forms_Close();
    End_Free_Forms();
    Look_For_Answers_Left();
    if (!Frm().Is_Closed()) Program_End();
    Open_.clear();
    return End_;
}

// The start of the program may ask already.
void Player::Take_First_Answers() {
    for (; Next_ < Script_.Acts.size(); ++Next_) {
        const Act& A = Script_.Acts[Next_];
        if (A.What != Verb::Answer && A.What != Verb::File) return;
        Line_ = A.Line;
        Play_Act(A);
    }
}

std::optional<Act> Player::Next_One() {
    if (Next_ < Script_.Acts.size()) return Script_.Acts[Next_++];
    if (!Options_.Next_Act || Frm().Is_Closed()) return std::nullopt;
    return Options_.Next_Act(*Front().Shown);
}

void Player::Play_While(const std::function<bool()>& Goes_On) {
    while (!Over_ && Goes_On()) {
        const std::optional<Act> A = Next_One();
        if (!A) {
            Over_ = true;
            return;
        }
        Line_ = A->Line;
        if (Frm().Is_Closed() && !Needs_No_Form(A->What)) return Fail("the program has ended");
        Play_Act(*A);
        Open_Waiting_Forms();
        End_Free_Forms();
    }
}

void Player::Play_Act(const Act& A) {
    switch (A.What) {
        case Verb::Click:
            return Click(A);
        case Verb::Choose:
            return Choose(A);
        case Verb::Type:
            return Type(A);
        case Verb::Focus:
            return Focus(A);
        case Verb::Double_Click:
            return Double_Click(A);
        case Verb::Key:
            return Press_Key(A);
        case Verb::Close:
            return Close_Form();
        case Verb::Drop:
            return Drop(A);
        case Verb::Tick:
            return Tick(A);
        case Verb::Move:
            Move_To(A);
            return;
        case Verb::Press:
            return Press(A);
        case Verb::Release:
            return Release(A);
        case Verb::Wheel:
            return Wheel(A);
        case Verb::Answer:
            Boxes_.push_back({.Line = A.Line, .Word = A.Words[0]});
            return;
        case Verb::File:
            Files_.push_back({.Line = A.Line, .Word = A.Words[0]});
            return;
        case Verb::Aircraft:
            return Set_Aircraft(A);
        case Verb::Reports:
            Reports_ = A.Words[0] == "on";
            return;
        case Verb::Show:
            return Show(A);
        case Verb::Items:
            return Items(A);
        case Verb::State:
            return State();
        case Verb::Write:
            return Write(A);
        case Verb::Say:
            return Say(A);
    }
}

void Player::Fail(std::string Reason) {
    if (End_.Status == 0) End_ = {.Status = 4, .Line = Line_, .Reason = std::move(Reason)};
    Over_ = true;
}

void Player::Print(std::string_view Line) {
    if (End_.Status == 0) Print_(As_One_Line(Line));
}

void Player::Look_For_Answers_Left() {
    const Ready_Answer* First = nullptr;
    for (const Answers* Left : {&Boxes_, &Files_})
        if (!Left->empty() && (First == nullptr || Left->front().Line < First->Line))
            First = &Left->front();
    if (First == nullptr) return;
    Line_ = First->Line;
    Fail("nothing asked for the answer " + First->Word);
}

std::string Player::Take(Answers& From) {
    std::string Word = std::move(From.front().Word);
    From.pop_front();
    return Word;
}

void Player::Set_Aircraft(const Act& A) {
    Double Lat = 0.0, Lon = 0.0;
    Long Number = 0;
    if (A.Words[0] == "none") {
        Simulator_.Vanish();
    } else if (A.Words[0] == "error") {
        Script_Whole(A.Words[1], Number);
        Simulator_.Fail(Number);
    } else {
        Script_Number(A.Words[0], Lat);
        Script_Number(A.Words[1], Lon);
        Simulator_.Fly_To(Lat, Lon);
    }
}

Open_Form_State& Player::Front() {
    return Open_.size() == 1 && !Free_.empty() ? Free_.back().Opened : Open_.back();
}

Open_Form_State* Player::On_Canvas() {
    Open_Form_State& Top = Open_.back();
    return Canvas_Of(*Top.Shown).empty() ? nullptr : &Top;
}

Int Player::Show_Box(const Box& B) {
    if (Over_) return Silent_Host::Show_Box(B);
    Print("message " + std::to_string(B.Num) + " " + B.Text);
    if (!Asks(B.Style)) return Button_Ok;
    if (Boxes_.empty()) {
        Fail("a question has no answer: " + As_One_Line(B.Text));
        return Silent_Host::Show_Box(B);
    }
    const std::string Word = Take(Boxes_);
    const Int Button = Button_Of(Word, B.Style);
    if (Button != 0) return Button;
    Fail("the question does not offer the answer " + Word + ": " + As_One_Line(B.Text));
    return Silent_Host::Show_Box(B);
}

std::optional<std::string> Player::Ask_File(const File_Question& Q) {
    if (Over_) return std::nullopt;
    if (Files_.empty()) {
        Fail("a question for a file has no answer: " + Q.Title);
        return std::nullopt;
    }
    const std::string Word = Take(Files_);
    if (Word == "cancel") return std::nullopt;
    const auto Path = Script_Path(Word);
    if (!Path) Fail("the program cannot write the path " + Word);
    return Path;
}

bool Player::Has_Form(std::string_view Name) const {
    return !Over_ && Is_Registered(Name) && (Reports_ || !Is_Of_Generation(Name));
}

Form_End Player::Run_Form(std::string_view Name) {
    if (!Has_Form(Name)) return Form_End::Absent;
    Print("form " + std::string(Name));
    const Form_End End = Form_Run(Name, *this);
    Print_End(Name, End);
    return End;
}

void Player::Print_End(std::string_view Name, Form_End End) {
    Print("end " + std::string(Name) + (End == Form_End::Ok ? " ok" : " closed"));
}

// A canvas without a size of its own has the one that was asked for.
void Player::Give_Canvas_Its_Room(Form& F) {
    const std::string Name = Canvas_Of(F);
    if (Name.empty() || !F[Name].On_Resize) return;
    const Control& Canvas = F[Name];
    Canvas.On_Resize(Canvas.Width > 0 ? Canvas.Width : Options_.Width,
                     Canvas.Height > 0 ? Canvas.Height : Options_.Height);
}

void Player::Run_Modal(Form& F) {
    Open_.push_back({.Shown = &F});
    Give_Canvas_Its_Room(F);
    Play_While([&F] { return !F.Is_Closed(); });
    F.Close(Form_End::Closed);
    Open_.pop_back();
}

void Player::Open_Form(std::string_view Name, Int) {
    if (!Over_) Waiting_.emplace_back(Name);
}

// A form that is not modal opens when the act that asked for it is over.
void Player::Open_Waiting_Forms() {
    for (const std::string& Name : std::exchange(Waiting_, {})) {
        if (!Has_Form(Name)) continue;
        Print("form " + Name);
        Form_Open(Name, *this);
    }
}

void Player::Show_Open(std::shared_ptr<Form> F) {
    Free_.push_back({.Kept = F, .Opened = {.Shown = F.get()}});
    Give_Canvas_Its_Room(*F);
}

// Those that have closed are let go when none of their handlers can be at work any more.
void Player::End_Free_Forms() {
    if (Open_.size() > 1) return;
    std::erase_if(Free_, [this](const Free_Form& Free) {
        if (!Free.Kept->Is_Closed()) return false;
        Print_End(Free.Kept->Name(), Free.Kept->End());
        return true;
    });
}

void Player::Set_Caption(std::string_view Control, std::string_view Text) {
    Frm_Set_Caption(Control, Text);
}

void Player::Set_Enabled(std::string_view Control, bool On) {
    Frm_Set_Enabled(Control, On);
}

void Player::Set_Visible(std::string_view Control, bool On) {
    Frm_Set_Visible(Control, On);
}

void Player::Set_Value(std::string_view Control, Long Value) {
    Frm_Set_Value(Control, Value);
}

void Player::Set_Focus(std::string_view Control) {
    Frm_Set_Focus(Control);
}

bool Player::Run_Tool(std::string_view Cmd_Line, Int Show_Mode) {
    if (Over_) return false;
    Print("run " + std::string(Cmd_Line));
    return Silent_Host::Run_Tool(Cmd_Line, Show_Mode);
}

void Player::Note_File(File_Event Event, std::string_view Path) {
    Print(std::string(Event_Word(Event)) + " " + Shown_Path(Path));
}

void Player::Show_Folder(std::string_view Dir) {
    Print("folder " + Shown_Path(Dir));
}

// A line each, as it would be pasted.
void Player::Copy_Text(std::string_view Text) {
    while (!Text.empty()) {
        const std::size_t End = std::min(Text.find("\r\n"), Text.size());
        Print("copy " + std::string(Text.substr(0, End)));
        Text.remove_prefix(std::min(End + 2, Text.size()));
    }
}

Play_End Play(const Script& S, const Play_Options& Options,
              const std::function<void(std::string_view Line)>& Print) {
    if (!S.Error.empty()) return {.Status = 2, .Line = S.Bad_Line, .Reason = S.Error};
    Program_Reset();
    const Play_End End = Player(S, Options, Print).Play_All();
    Program_Reset();
    return End;
}
