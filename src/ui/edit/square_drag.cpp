// ui/edit/square_drag.cpp - dragging with Shift held over many squares.
#include "ui/edit/square_drag.h"

#include <algorithm>
#include <cmath>

#include "ui/canvas/surface.h"
#include "ui/canvas/view.h"

namespace {

constexpr Double Least_Drag = 4.0;  // canvas pixels; less is a click

std::optional<Pix> Drag_From;
const bool Drag_Is_Reset = At_Reset([] { Drag_From.reset(); });

void Show_Rectangle(Pic_Px A, Pic_Px B, bool On) {
    const auto [Left, Right] = std::minmax({Round_Lng(A.X), Round_Lng(B.X)});
    const auto [Top, Bottom] = std::minmax({Round_Lng(A.Y), Round_Lng(B.Y)});
    Overlay_Items& O = The_Overlay;
    O.LnHIma1.At = {Left, Top, Right, Top};
    O.LnHIma2.At = {Left, Bottom, Right, Bottom};
    O.LnVIma1.At = {Left, Top, Left, Bottom};
    O.LnVIma2.At = {Right, Top, Right, Bottom};
    for (Overlay_Line* L : {&O.LnHIma1, &O.LnHIma2, &O.LnVIma1, &O.LnVIma2}) L->Visible = On;
    The_Surface().Overlay_Changed();
}

bool Touches_Grid(Pic_Px A, Pic_Px B) {
    const Pic_Px NW = Map_To_Pic({XGridNW, YGridNW}), SE = Map_To_Pic({XGridSE, YGridSE});
    return std::max(A.X, B.X) >= NW.X && std::min(A.X, B.X) <= SE.X && std::max(A.Y, B.Y) >= NW.Y &&
           std::min(A.Y, B.Y) <= SE.Y;
}

// The nearest Cell of the work grid, whose south-east edges belong to Cells beyond it.
Cell_Pos Held_In_Grid(const Cell_Pos& C) {
    const auto Hold = [](Int& Area, Int& Cell, Int Area_1, Int Cell_1, Int Area_2, Int Cell_2) {
        const auto [A, B] =
            std::clamp(std::pair{Area, Cell}, std::pair{Area_1, Cell_1},
                       std::max(std::pair{Area_1, Cell_1}, std::pair{Area_2, Cell_2}));
        Area = A, Cell = B;
    };
    Cell_Pos H = C;
    Hold(H.AreaLon, H.CellLon, AreaLonGridNW, CellLonGridNW, AreaLonGridSE, CellLonGridSE);
    Hold(H.AreaLat, H.CellLat, AreaLatGridNW, CellLatGridNW, AreaLatGridSE, CellLatGridSE);
    return H;
}

}  // namespace

void Square_Drag_Press(const Mouse_Event& E) {
    Square_Drag_Cancel();
    if (E.Button == Mouse_Left && (E.Shift & Shift_Key) != 0) Drag_From = Pic_To_Map(Click_Raw);
}

void Square_Drag_Move(const Mouse_Event& E) {
    if (!Drag_From) return;
    if ((E.Button & Mouse_Left) == 0) return Square_Drag_Cancel();
    Show_Rectangle(Map_To_Pic(*Drag_From), Move_Raw, true);
}

std::optional<Square_Block> Square_Drag_Release(const Mouse_Event& E, Cell_Pos (*Square_At)(Pix)) {
    if (!Drag_From || E.Button != Mouse_Left) return {};
    const Pic_Px From = Map_To_Pic(*Drag_From), To{E.X, E.Y};
    Square_Drag_Cancel();
    const bool Moved = std::max(std::fabs(From.X - To.X), std::fabs(From.Y - To.Y)) >= Least_Drag;
    if (!Moved || !Touches_Grid(From, To)) return {};
    return Block_Of(Held_In_Grid(Square_At(Pic_To_Map(From))),
                    Held_In_Grid(Square_At(Pic_To_Map(To))));
}

bool Square_Drag_Key(Key_Event K) {
    if (K.Code != Key_Escape || !Drag_From) return false;
    Square_Drag_Cancel();
    return true;
}

void Square_Drag_Cancel() {
    if (!Drag_From) return;
    Drag_From.reset();
    Show_Rectangle({}, {}, false);
}
