// ui/canvas/grid_marks.h - the squares of the grid in view, and the marks on those with a record.
#pragma once

#include <algorithm>
#include <type_traits>
#include <unordered_map>
#include <vector>

#include "core/model.h"
#include "ui/canvas/surface.h"
#include "ui/canvas/view.h"

/// A square of the grid on the canvas, in canvas pixels, and its Cell.
struct Square_Px {
    Long Left = 0, Right = 0, Top = 0, Bottom = 0;
    Cell_Pos Cell = {};
};

/// The Cell that a map pixel lies in.
Cell_Pos Cell_Of_Pixel(Pix P);

/// The squares that The_Grid_In_View shows, by column and row. The Cell of each is the one that
/// Cell_Of finds under its centre.
class Squares_In_View {
public:
    explicit Squares_In_View(Cell_Pos (*Cell_Of)(Pix) = Cell_Of_Pixel);
    bool Is_Empty() const { return Cols_.empty() || Rows_.empty(); }

    /// Calls Paint(Square, Record) for each square in view of which Tab has a record, row by row;
    /// of several records of a square the first in the table. A record of an Area is one of all
    /// its squares.
    template <typename R, typename F>
    void For_Each_Record(const Project_Table<R>& Tab, F&& Paint) const;

private:
    // Of one axis: its edges on the canvas, and Area and Cell.
    struct Stripe {
        Long From, To;
        Int Area, Cell;
    };
    template <typename R>
    static constexpr bool Of_Area = std::is_same_v<R, Lod8>;
    template <typename R>
    static Long Key(Long AreaLon, Long AreaLat, Long CellLon, Long CellLat) {
        if constexpr (Of_Area<R>) return AreaLon * Nb_AreaLat + AreaLat;
        return (AreaLon * Nb_Cell_In_Area + CellLon) * Nb_AreaLat * Nb_Cell_In_Area +
               AreaLat * Nb_Cell_In_Area + CellLat;
    }
    template <typename R>
    static Long Key_Of(const R& Record) {
        if constexpr (Of_Area<R>)
            return Key<R>(Record.AreaLon, Record.AreaLat, 0, 0);
        else
            return Key<R>(Record.AreaLon, Record.AreaLat, Record.CellLon, Record.CellLat);
    }
    template <typename R>
    bool May_Be_Seen(const R& Record) const {
        return First_Lon_ <= Record.AreaLon && Record.AreaLon <= Last_Lon_ &&
               First_Lat_ <= Record.AreaLat && Record.AreaLat <= Last_Lat_;
    }

    std::vector<Stripe> Cols_, Rows_;
    Int First_Lon_ = 0, Last_Lon_ = -1, First_Lat_ = 0, Last_Lat_ = -1;  // Areas
};

/// Whether squares are wide enough to bear marks.
bool Marks_Fit();

inline constexpr Long Hatch_Grey = 0xA0A0A0;

/// Hatches squares of The_Grid_In_View with upright dotted lines, as many as their width bears.
/// What was painted stands on the surface at the end of its life.
class Hatching {
public:
    Hatching();
    void Paint(const Square_Px& S, Long Colour);

private:
    Double Cell_W_;
    Int Nb_;  // lines in a square
    Line_Batch Out_;
};

/// Hatches the squares in view that have a record.
void Grid_Marks_Draw(Grid_Marks Marks);

template <typename R, typename F>
void Squares_In_View::For_Each_Record(const Project_Table<R>& Tab, F&& Paint) const {
    std::unordered_map<Long, Long> Row_Of;
    for (Long I = 1; I <= Tab.Nb(); ++I)
        if (May_Be_Seen(Tab[I])) Row_Of.try_emplace(Key_Of(Tab[I]), I);
    if (Row_Of.empty()) return;
    for (const Stripe& Row : Rows_)
        for (const Stripe& Col : Cols_) {
            const auto Found = Row_Of.find(Key<R>(Col.Area, Row.Area, Col.Cell, Row.Cell));
            if (Found == Row_Of.end()) continue;
            Paint(
                Square_Px{
                    Col.From, Col.To, Row.From, Row.To, {Col.Area, Row.Area, Col.Cell, Row.Cell}},
                Tab[Found->second]);
        }
}
