// shapes/line/line_collect.cpp - one line after the other: read, cleaned, closed, turned.
#include "shapes/line/line_collect.h"

#include <algorithm>
#include <span>
#include <vector>

#include "shapes/poly/drawn_line.h"

namespace {

// Room for the copies of first points that close lines.
constexpr Long Spare_Points = 50;

// The line cleaned; false when nothing of it is left to draw. The last point's tag goes with the
// point when the line ends where it began; the first end keeps its tag.
bool Clean(const Attr& A, bool Has_Tags, std::vector<WPt>& Line) {
    if (Has_Tags && A.Effil_Fin == 0) Line.back().Tag = Tag_Wide;
    Drop_Repeats(Line);
    if (Line.size() < 2) return false;
    if (Has_Tags && A.Effil_Deb == 0) Line.front().Tag = Tag_Wide;
    if (Line.size() >= 3) Drop_Straight(Line);
    return true;
}

void Close(std::vector<WPt>& Line) {
    Line.back().Tag = Tag_Plain;
    Line.push_back(WPt(Line.front()));
}

}  // namespace

void Line_Collect(const Line_Rule& Rule) {
    Tab_WPoly.Dimension(Nb_Obj);
    Tab_WPt.Dimension(Nb_Pt + Spare_Points);
    std::vector<WPt> Line;
    for (Long I = First_Obj; I <= Nb_Obj; ++I) {
        const Obj& O = Tab_Obj[I];
        if (!Rule.Takes(O.Attr) || O.Nb_Pts < 2) continue;
        Read_Chain(O, Line);
        if (!Clean(O.Attr, Rule.Has_Tags, Line)) continue;
        if (Rule.May_Close && Rule.May_Close(O.Attr) && O.Attr.FermerLine == 1) Close(Line);
        if (Rule.Turns && O.Attr.LandOnRight == 1) std::reverse(Line.begin(), Line.end());
        WPoly_Append(O, Line);
    }
}
