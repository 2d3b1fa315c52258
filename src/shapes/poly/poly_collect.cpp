// shapes/poly/poly_collect.cpp - cleaning, turning, and the test for outlines that cross
// themselves.
#include "shapes/poly/poly_collect.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "core/attr_kinds.h"
#include "core/messages.h"
#include "core/model.h"
#include "core/number_text.h"
#include "geometry/edge_sweep.h"
#include "geometry/segments.h"
#include "shapes/poly/drawn_line.h"
#include "shapes/poly/edge_tree.h"

namespace {

bool Is_Taken(const Obj& O, Int Mode) {
    const Int Technique = Mode == Mode_LWM    ? Technique_LWM
                          : Mode == Mode_VTP1 ? Technique_VTP1
                                              : Technique_VTP2;
    return Is_Polygon(O.Attr) && O.Nb_Pts >= 2 && O.Attr.LWM_VTP2 == Technique;
}

// An outline goes on at its first point, which may be in line with its neighbours as well.
void Drop_Straight_Round(std::vector<Pix>& Line) {
    Drop_Straight(Line);
    if (Sens_3Pts(Line.back(), Line[0], Line[1]) == 0) Line.erase(Line.begin());
}

// The first place where an outline meets itself.
Edge_Meet Self_Meet(std::span<const WPt> Line, bool Closed, std::vector<Box_Pix>& Memory) {
    Memory.resize(std::max(Memory.size(), Edge_Tree::Size(static_cast<Long>(Line.size()))));
    const Edge_Tree Tree(Line, Closed, Memory);
    Box_Budget Budget(Line.size());
    const Edge_Meet M = First_Self_Meet(Tree, Closed, Budget);
    if (!Budget.Is_Spent()) return M;
    std::vector<Pix> Points;
    for (const WPt& P : Line) Points.push_back(To_Pix(P));
    const std::array<std::size_t, 2> Ends{0, Points.size()};
    if (!M.Found && Sweep_Edges({Points, Ends, Closed}).Apart) return {};
    Budget.Left = Box_Budget::Endless;
    return First_Self_Meet(Tree, Closed, Budget);
}

}  // namespace

Int Poly_Orientation(std::span<const Pix> Outline) {
    const std::size_t N = Outline.size();
    std::size_t West = 0;
    for (std::size_t I = 1; I < N; ++I)
        if (Outline[I].X < Outline[West].X) West = I;
    const Pix Before = Outline[(West + N - 1) % N], After = Outline[(West + 1) % N];
    return Cross_Z(Before, Outline[West], After) > 0.0 ? 1 : 0;
}

void Poly_Collect(Int Mode) {
    Tab_WPoly.Dimension(Nb_Obj);
    Tab_WPt.Dimension(Nb_Pt);
    Long Nb_Poly = 0, Nb_Points = 0;
    for (Long I = First_Obj; I <= Nb_Obj; ++I)
        if (Is_Taken(Tab_Obj[I], Mode)) {
            ++Nb_Poly;
            Nb_Points += Tab_Obj[I].Nb_Pts;
        }
    // Room for the pieces too, since the cut writes them here again.
    const Long Nb_Taken = std::min(Nb_Points, Nb_Pt);
    Tab_WPoly.Reserve(std::max(Nb_Poly, Nb_Taken));
    Tab_WPt.Reserve(Room_For_Points(Nb_Taken));
    std::vector<Pix> Line;
    for (Long I = First_Obj; I <= Nb_Obj; ++I) {
        if (!Is_Taken(Tab_Obj[I], Mode)) continue;
        Read_Chain(Tab_Obj[I], Line);
        Drop_Repeats(Line);
        if (Line.size() >= 3) Drop_Straight_Round(Line);
        if (Line.size() < 2) continue;
        if (Line.size() >= 3 && Poly_Orientation(Line) == 0) std::reverse(Line.begin(), Line.end());
        WPoly_Append(Tab_Obj[I], Line);
    }
}

Int Poly_Self_Cross(bool Closed) {
    std::vector<Box_Pix> Memory;
    const std::span<const WPt> All = Tab_WPt.Rows();
    for (const WPoly& W : Tab_WPoly.Rows()) {
        if (W.Last - W.First < 3) continue;
        const Edge_Meet M = Self_Meet(
            All.subspan(static_cast<std::size_t>(W.First - 1), static_cast<std::size_t>(W.Nb)),
            Closed, Memory);
        if (!M.Found) continue;
        Err_PixX = Round_Lng(M.At.X);
        Err_PixY = Round_Lng(M.At.Y);
        return 3;
    }
    return 0;
}

void Self_Cross_Show() {
    std::string Text = "Bmp pixel X:";
    Text += std::string_view(Num_Text(Err_PixX));
    Text += " Y:";
    Text += std::string_view(Num_Text(Err_PixY));
    Msg_Show_Text(121, Text, Map_Place{.X = Err_PixX, .Y = Err_PixY});
}
