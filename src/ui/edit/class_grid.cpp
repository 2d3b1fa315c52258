// ui/edit/class_grid.cpp - the squares of land and water classes, each texture read once.
#include "ui/edit/class_grid.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

#include "core/palette.h"
#include "core/program.h"
#include "grid/terrain_grid.h"
#include "tex/texture.h"
#include "ui/canvas/grid_marks.h"
#include "ui/canvas/surface.h"

namespace {

constexpr Long Texture_Side = 256;  // pixels of a texture that a square shows

// The pictures of one sort by class; empty ones stand for those that could not be read.
struct Class_Pictures {
    bool Is_Read = false;
    std::string From;  // Dir_Texture at that time
    std::vector<Class_Entry> List;
    std::map<Byte, Picture> By_Class;
};

std::array<Class_Pictures, 2> The_Class_Pictures;
const bool Pictures_Are_Reset = At_Reset(Class_Pictures_Forget);

std::string Texture_Of(Class_Sort Sort, const Class_Pictures& Read, Byte Num) {
    if (Sort == Class_Sort::Water) return Class_Texture_Path(Sort, Num);
    const auto Place = Class_Place(Read.List, Num);
    if (!Place || Num > Last_With_Texture) return {};
    return Class_Texture_Path(Sort, Read.List[*Place].Texture);
}

Class_Pictures& Pictures_Of(Class_Sort Sort) {
    Class_Pictures& Read = The_Class_Pictures[Sort == Class_Sort::Land ? 0 : 1];
    if (!Read.Is_Read || Read.From != Dir_Texture)
        Read = {
            .Is_Read = true, .From = Dir_Texture, .List = Class_List_Read(Sort), .By_Class = {}};
    return Read;
}

const Picture& Picture_Of(Class_Sort Sort, Byte Num) {
    Class_Pictures& Read = Pictures_Of(Sort);
    const auto [At, Is_New] = Read.By_Class.try_emplace(Num);
    if (Is_New) {
        std::string Description;
        const std::string Path = Texture_Of(Sort, Read, Num);
        if (!Path.empty()) Texture_Read(Path, Pal_Fs5, At->second, Description);
    }
    return At->second;
}

void Paint_Picture(const Picture& P, const Square_Px& S) {
    The_Surface().Stretch_Copy(
        P, {0, 0, std::min(P.Width, Texture_Side), std::min(P.Height, Texture_Side)},
        Edges_Of({S.Left, S.Top, S.Right - S.Left + 1, S.Bottom - S.Top + 1}));
}

template <typename R>
void Paint_Squares(Class_Sort Sort, const Project_Table<R>& Tab) {
    if (Tab.Nb() == 0 || !Marks_Fit()) return;
    Hatching Hatches;
    Squares_In_View(Pixel_To_Cell_Shift).For_Each_Record(Tab, [&](const Square_Px& S, const R& C) {
        const Picture* P = Show_Texture ? &Picture_Of(Sort, C.Num) : nullptr;
        if (P != nullptr && !P->Is_Empty())
            Paint_Picture(*P, S);
        else
            Hatches.Paint(S, Hatch_Grey);
    });
}

}  // namespace

void Class_Grid_Draw(Class_Sort Sort) {
    Grid_Find(Grid_Place::On_Corners);
    if (!Show_Grid) return;
    Grid_Draw_Lines();
    if (Sort == Class_Sort::Land)
        Paint_Squares(Sort, Tab_LC);
    else
        Paint_Squares(Sort, Tab_WC);
    The_Surface().Refresh();
}

void Class_Pictures_Forget() {
    The_Class_Pictures = {};
}
