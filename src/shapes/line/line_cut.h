// shapes/line/line_cut.h - lines cut along the rows, then the columns of a grid.
//
// Roads and shores are cut along the Areas, night lines along half squares of level 10, by one
// walk; a Line_Cut_Rule says in what they differ.
#pragma once

#include <span>

#include "grid/grid_lines.h"
#include "shapes/line/line_collect.h"
#include "shapes/poly/work_lists.h"

struct Line_Cut_Rule {
    /// The lines to cut along, and the tolerances (Grid_Lines_Of with Lines_By_Area or
    /// Lines_By_Half_Lod10).
    Grid_Lines Grid;
    /// Ends made by a crossing take Tag_Cut. Without, the tag of the drawn point stays.
    bool Tags_Cuts = false;
    /// Lines that no row cuts, as long as Fits holds for every piece that the columns leave. None
    /// without.
    bool (*Skips_Rows)(const Attr& A) = nullptr;
    bool (*Fits)(std::span<const WPt> Piece) = nullptr;
};

/// Replaces the lines of Tab_WPoly by pieces that lie between two rows and two columns each, up
/// to the tolerance. Pieces keep their line's place in the list, its values and its direction.
/// Two pieces that meet at a crossing share the crossing point; a vertex within the tolerance of
/// a grid line is the common end itself. A segment along a grid line is not cut.
void Line_Cut(const Line_Cut_Rule& Rule);

/// Adds rows First to Last of Tab_WPt to the output lists of a pass as a piece with the values of
/// row Poly of Tab_WPoly.
void Line_Emit_Piece(Long Poly, Long First, Long Last);
