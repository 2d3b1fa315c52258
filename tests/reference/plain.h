// reference/plain.h - the plain rules of what the program does faster.
//
// Every loop as it is told, every sort an exchange sort, every grid line a pass over all
// polygons. They are slow and simple, and the program's own routines must give the same
// polygons, points, order and messages to the last bit. What the program does in the plain form
// itself, it has done before: the rules begin with its work lists.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "grid/grid_lines.h"
#include "shapes/line/line_cut.h"
#include "shapes/poly/work_lists.h"

namespace reference {

/// A polygon or line with its points; First and Last mean nothing.
struct Poly : WPoly {
    std::vector<WPt> P = {};
};
using Polys = std::vector<Poly>;

/// What the program's work lists hold.
Polys Work_Lists();

/// Where the first outline crosses or touches itself, in the order of the list; open ones have no
/// closing edge.
std::optional<Pix> Self_Cross(const Polys& List, bool Closed);

/// Draw_Order and Group_Root, from the Imbrication texts and from containment. False when two
/// polygons cross one another: then containment has given none.
bool Nest(Polys& List);

/// Convex pieces of fewer than Limit points. Rounds is what the program shows while it splits.
Polys Split(Polys List, Long Limit, Long& Rounds);

/// The pieces along every line of a grid; the text of a box when a polygon is cut too often.
std::string Cut(Polys& List, const Grid_Lines& Grid);
void Cut_Lines(Polys& List, const Line_Cut_Rule& Rule);

/// For I from the first, for J behind it: exchanged when J comes before I.
template <typename List, typename Before>
void Exchange_Sort(List& Rows, Before Comes_Before) {
    for (std::size_t I = 0; I < Rows.size(); ++I)
        for (std::size_t J = I + 1; J < Rows.size(); ++J)
            if (Comes_Before(Rows[J], Rows[I])) std::swap(Rows[I], Rows[J]);
}

}  // namespace reference
