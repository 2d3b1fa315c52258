// play/player.h - the host that plays a script: it takes act after act, shows forms to nobody and
// answers what the program asks with what the script has ready.
#pragma once

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/host.h"
#include "play/play.h"
#include "play/script.h"
#include "simlink/scripted.h"
#include "ui/canvas/view.h"
#include "ui/form/form_list.h"

/// A form that is open, and the mouse over its canvas.
struct Open_Form_State {
    Form* Shown = nullptr;
    std::optional<Pic_Px> Mouse = {};  // unknown before it has been there
    Int Buttons = 0;                   // held down, a sum
};

class Player final : public Silent_Host, public Form_Host {
public:
    using Printer = std::function<void(std::string_view Line)>;

    Player(const Script& S, const Play_Options& Options, Printer Print);

    /// Plays from the start of the program to its end.
    Play_End Play_All();

    Int Show_Box(const Box& B) override;
    std::optional<std::string> Ask_File(const File_Question& Q) override;
    Form_End Run_Form(std::string_view Form) override;
    void Run_Modal(Form& F) override;
    void Show_Open(std::shared_ptr<Form> F) override;
    void Open_Form(std::string_view Form, Int Delay_Ms) override;
    void Set_Caption(std::string_view Control, std::string_view Text) override;
    void Set_Enabled(std::string_view Control, bool On) override;
    void Set_Visible(std::string_view Control, bool On) override;
    void Set_Value(std::string_view Control, Long Value) override;
    void Set_Focus(std::string_view Control) override;
    bool Run_Tool(std::string_view Cmd_Line, Int Show_Mode) override;
    void Note_File(File_Event Event, std::string_view Path) override;
    void Show_Folder(std::string_view Dir) override;
    void Copy_Text(std::string_view Text) override;

private:
    struct Ready_Answer {
        Long Line = 0;
        std::string Word;
    };
    using Answers = std::deque<Ready_Answer>;

    // player.cpp: one act after the other.
    void Take_First_Answers();
    std::optional<Act> Next_One();
    void Play_While(const std::function<bool()>& Goes_On);
    void Play_Act(const Act& A);
    void Fail(std::string Reason);
    void Print(std::string_view Line);
    bool Has_Form(std::string_view Form) const;
    void Print_End(std::string_view Form, Form_End End);
    void Open_Waiting_Forms();
    void End_Free_Forms();
    void Look_For_Answers_Left();
    std::string Take(Answers& From);
    void Set_Aircraft(const Act& A);
    Open_Form_State& Front();
    Open_Form_State* On_Canvas();
    void Give_Canvas_Its_Room(Form& F);

    // form_acts.cpp
    bool In_Reach(Form& F, const std::string& Name);
    void Click(const Act& A);
    void Choose(const Act& A);
    void Type(const Act& A);
    void Focus(const Act& A);
    void Double_Click(const Act& A);
    void Press_Key(const Act& A);
    void Close_Form();
    void Drop(const Act& A);
    void Tick(const Act& A);

    // canvas_acts.cpp
    void Send(Open_Form_State& To, const Mouse_Event& E);
    Open_Form_State* Move_To(const Act& A);
    Open_Form_State* Go_To(const Act& A);
    void Press(const Act& A);
    void Release(const Act& A);
    void Double_Click_At(const Act& A);
    void Wheel(const Act& A);

    // reports.cpp
    void Show(const Act& A);
    void Items(const Act& A);
    void State();
    void Write(const Act& A);
    void Say(const Act& A);

    const Script& Script_;
    const Play_Options& Options_;
    Printer Print_;
    std::size_t Next_ = 0;  // the act to come
    Long Line_ = 0;         // of the act that was begun last
    bool Reports_ = false;  // a generation asks about tools and shows its report
    bool Over_ = false;     // nothing more is played: what is open closes, unseen
    Play_End End_;

    std::deque<Open_Form_State> Open_;  // the main form, and above it those that are modal
    struct Free_Form {
        std::shared_ptr<Form> Kept;
        Open_Form_State Opened;
    };
    std::deque<Free_Form> Free_;        // those that are not
    std::vector<std::string> Waiting_;  // those to be opened after this act
    Answers Boxes_, Files_;
    Scripted_Simulator Simulator_;
};

/// The control of F that is its canvas, "" when it has none.
std::string Canvas_Of(const Form& F);
