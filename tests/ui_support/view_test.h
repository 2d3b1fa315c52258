// tests/ui_support/view_test.h - the fixture of tests of what the canvas shows.
#pragma once

#include "core/model.h"
#include "ui_support/recorded_surface.h"
#include "ui_support/ui_test.h"

/// Begins with a canvas of 301 by 251 pixels and a map of 200 by 160 at its top left, in a grid
/// of 12 by 10 Cells of 20 by 20 map pixels: one Cell more than the map on each side. Row 3 of
/// its lines lies on the northern edge of Area row 128 (at 45 degrees), column 2 on the western
/// edge of Area column 387.
class View_Test : public Ui_Test {
protected:
    View_Test();

    /// Moves that grid so that line 3 lies North_Areas Areas north of the equator and line 2
    /// East_Areas Areas east of Greenwich.
    static void Lay_Grid(int North_Areas, int East_Areas);
    /// The Cell in column Col and row Row of that grid, from 0.
    static Cell_Pos Cell_At(int Col, int Row);
    /// A record of that Cell.
    template <typename R>
    static R Record_At(int Col, int Row) {
        R Record;
        static_cast<Cell_Pos&>(Record) = Cell_At(Col, Row);
        return Record;
    }

    Recorded_Surface Canvas;

private:
    Surface_Scope Scope_{Canvas};
};
