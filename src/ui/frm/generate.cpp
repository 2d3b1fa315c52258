// ui/frm/generate.cpp - the generation as the main form starts it.
#include "ui/frm/generate.h"

#include "core/program.h"
#include "gen/driver.h"
#include "shapes/poly/cut_view.h"
#include "ui/canvas/surface.h"
#include "ui/canvas/view.h"

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

}  // namespace

void Generate_In_View() {
    if (ShowVTP1L == 1) The_Cut_View = {.Run_Taken_Off = Show_Run, .Piece_Cut = Show_Piece};
    Cmd_API();
    The_Cut_View = {};
}
