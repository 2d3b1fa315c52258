// shapes/coast/coast_to_cells.cpp - local coordinates, without the Cells that are filled.
#include "shapes/coast/coast_to_cells.h"

#include <algorithm>

#include "shapes/coast/coast_fill.h"
#include "shapes/poly/poly_prepare.h"

namespace {

constexpr Int Mode_Cells = 0;

void Append(CPoly P, std::span<const CPt> Points) {
    const auto From = Points.subspan(static_cast<std::size_t>(P.First - 1),
                                     static_cast<std::size_t>(P.Last - P.First + 1));
    P.First = Nb_CCoastPt + 1;
    std::ranges::copy(From, Tab_CCoastPt.Append_Rows(From.size()).begin());
    P.Last = Nb_CCoastPt;
    Tab_CCoast.Append(P);
}

}  // namespace

void Coast_To_Cells() {
    Table<CPoly> Polys{20, 20};
    Table<CPt> Points{200, 200};
    Poly_To_Cells_Into(Mode_Cells, Polys, Points, Fills_Cell);
    Tab_CCoast.Dimension(Polys.Nb());
    Tab_CCoastPt.Dimension(Points.Nb());
    Tab_CCoast.Reserve(Polys.Nb());
    Tab_CCoastPt.Reserve(Points.Nb());
    const std::span<const CPoly> All = Polys.Rows();
    Fill_Test Test;
    for (std::size_t First = 0, End = 0; First < All.size(); First = End) {
        while (End < All.size() && Same_Cell(All[First], All[End])) ++End;
        const auto Run = All.subspan(First, End - First);
        if (Test.Fill_Cell(Run, Points)) continue;
        for (const CPoly& P : Run) Append(P, Points.Rows());
    }
}
