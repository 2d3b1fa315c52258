// ui/frm/generate.cpp - the generation as the main form starts it.
#include "ui/frm/generate.h"

#include <string>
#include <vector>

#include "core/host.h"
#include "core/program.h"
#include "core/work.h"
#include "gen/driver.h"
#include "gen/generation_host.h"
#include "shapes/poly/cut_view.h"
#include "ui/canvas/surface.h"
#include "ui/canvas/view.h"
#include "ui/dialogs/tool_choice.h"
#include "ui/form/form_list.h"

namespace {

void Draw_Outline(std::span<const Pix> Outline, Long Colour) {
    if (Outline.empty()) return;
    const auto Rounded = [](Pix At) {
        const Pic_Px P = Map_To_Pic(At);
        return std::pair{Round_Lng(P.X), Round_Lng(P.Y)};
    };
    Line_Batch Out;
    auto [X, Y] = Rounded(Outline.back());
    for (const Pix At : Outline) {
        const auto [To_X, To_Y] = Rounded(At);
        Out.Add({X, Y, To_X, To_Y}, {.Colour = Colour});
        X = To_X, Y = To_Y;
    }
}

void Show_Run(std::span<const Pix> Outline) {
    Draw_Outline(Outline, 0xFF0000);
}

void Show_Piece(std::span<const Pix> Outline) {
    Draw_Outline(Outline, 0x00FF00);
    The_Surface().Refresh();
}

// The choice of the dialog; everything where there is none.
Tool_Choice Ask_Tools(const std::vector<std::string>&) {
    The_Tool_Choice = Tool_Choice::Stop;
    const Form_End End = The_Host().Run_Form("Frm_Tools");
    return End == Form_End::Absent ? Tool_Choice::All : The_Tool_Choice;
}

// It tells of another generation.
void Close_Report() {
    for (const auto& F : Forms_Open())
        if (F->Name() == "Frm_Report") F->Close(Form_End::Closed);
}

}  // namespace

void Generate_In_View() {
    Close_Report();
    if (ShowVTP1L == 1) The_Cut_View = {.Run_Taken_Off = Show_Run, .Piece_Cut = Show_Piece};
    const bool Has_Run = Generation_Run({.On_Missing = Ask_Tools});
    The_Cut_View = {};
    if (Has_Run) The_Host().Open_Form("Frm_Report", 0);
}

void Generate_Stop() {
    if (!Work_Is_On()) return;
    Work_Cancel();
    Generate_Clock();
    const std::string& Tool = Tool_Running();
    if (Tool.empty()) return;
    const std::string Name = Tool;
    const Box Question{
        .Text = Name + In_Language(" is running. End it now, so that what it is making is lost?\r\n"
                                   "Otherwise the generation stops when it has ended.",
                                   " tourne. Faut-il l'arr\xEAter, en perdant ce qu'il produit ?"
                                   "\r\nSinon la g\xE9n\xE9ration s'arr\xEAte quand il a fini."),
        .Style = Box_Question + Box_Yes_No};
    if (The_Host().Show_Box(Question) == Button_Yes && Tool_Running() == Name) Tool_End();
}

void Generate_Clock() {
    if (!Work_Is_On()) return;
    const Long Seconds = Fix_Lng(Work_Time().count());
    const std::string Rest = std::to_string(Seconds % 60);
    std::string Text = std::to_string(Seconds / 60) + (Rest.size() < 2 ? ":0" : ":") + Rest;
    if (Work_Is_Cancelled()) Text += In_Language("  stopping", "  arr\xEAt");
    The_Host().Set_Caption("L_Elapsed", Text);
}
