// ui/canvas/objects_draw.cpp - painting of objects, with the extent of each kept between redraws.
#include "ui/canvas/objects_draw.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <vector>

#include "core/attr_kinds.h"
#include "core/model.h"
#include "core/model_changes.h"
#include "core/program.h"
#include "ui/canvas/edit_state.h"
#include "ui/canvas/view.h"

namespace {

constexpr Pen Backdrop{.Colour = 0xFF0000, .Width = 2};

// In their own colours: what can be told apart on sea and on land.
constexpr Long Road_Red = 0xE00000, Water_Blue = 0x0050FF, Coast_Orange = 0xFF8000,
               Polygon_Violet = 0xA000C0;
constexpr Int First_Water_Line = 1024, Last_Water_Line = 1133;  // shores, rivers, streams

bool Is_Water(const Attr& A) {
    if (Is_Polygon(A)) return A.LWM_VTP2 == Technique_LWM && A.Attrib == 0;
    return First_Water_Line <= A.LineType && A.LineType <= Last_Water_Line;
}

Long Colour_Of_Kind(const Attr& A) {
    if (Is_Coast(A)) return Coast_Orange;
    if (Is_Water(A)) return Water_Blue;
    return Is_Polygon(A) ? Polygon_Violet : Road_Red;
}

struct Extent {
    Double West = std::numeric_limits<Double>::infinity(), North = West;
    Double East = -West, South = -West;

    void Take(Double X, Double Y) {
        West = std::min(West, X), East = std::max(East, X);
        North = std::min(North, Y), South = std::max(South, Y);
    }
};

// The extent of each object in map pixels, as the model was when it was made.
struct Kept_Extents {
    std::uint64_t Changes = std::numeric_limits<std::uint64_t>::max();
    Long Objects = -1, Points = -1;
    std::vector<Extent> Of;  // by row of Tab_Obj
};

Extent Extent_Of(const Obj& O) {
    Extent B;
    Long P = O.First_Pt;
    for (Long N = 1; N <= O.Nb_Pts; ++N, P = Tab_Pt[P].Next) {
        B.Take(Tab_Pt[P].X, Tab_Pt[P].Y);
        if (P == O.Last_Pt) break;
    }
    return B;
}

const std::vector<Extent>& Extents_Now() {
    static Kept_Extents Kept;
    if (Kept.Changes == Model_Changes && Kept.Objects == Nb_Obj && Kept.Points == Nb_Pt)
        return Kept.Of;
    Kept = {Model_Changes, Nb_Obj, Nb_Pt,
            std::vector<Extent>(static_cast<std::size_t>(Nb_Obj) + 1)};
    for (Long I = First_Obj; I <= Nb_Obj; ++I)
        Kept.Of[static_cast<std::size_t>(I)] = Extent_Of(Tab_Obj[I]);
    return Kept.Of;
}

// Canvas pixels beyond which a position is brought back along its line, so that it fits a Long
// and its distances from others as well.
constexpr Double Far = 1e8;

bool Is_Far(Pic_Px P) {
    return !(std::fabs(P.X) <= Far && std::fabs(P.Y) <= Far);
}

// Cuts the line from A to B along one axis, each end by itself so that its place stays exact.
// False when nothing is left.
bool Cut(Pic_Px& A, Pic_Px& B, Double Pic_Px::*Along, Double Pic_Px::*Across) {
    if (std::max(A.*Along, B.*Along) < -Far || std::min(A.*Along, B.*Along) > Far) return false;
    const Double Slope = (B.*Across - A.*Across) / (B.*Along - A.*Along);
    for (Pic_Px* P : {&A, &B}) {
        const Double Edge = std::clamp(P->*Along, -Far, Far);
        if (Edge == P->*Along) continue;
        P->*Across += (Edge - P->*Along) * Slope;
        P->*Along = Edge;
    }
    return true;
}

// False when nothing of the line is near, or it has no place at all.
bool Bring_Near(Pic_Px& A, Pic_Px& B) {
    return Cut(A, B, &Pic_Px::X, &Pic_Px::Y) && Cut(A, B, &Pic_Px::Y, &Pic_Px::X) && !Is_Far(A) &&
           !Is_Far(B);
}

// What of the canvas a line of some width can paint: the canvas and a margin.
struct Reach {
    Long Left, Right, Top, Bottom;

    explicit Reach(Int Width)
        : Left(-((Width + 1) / 2)),
          Right(Pic_Width - 1 - Left),
          Top(Left),
          Bottom(Pic_Height - 1 - Top) {}

    bool Meets(const Line_Px& L) const {
        const auto [X_Low, X_High] = std::minmax(L.X1, L.X2);
        const auto [Y_Low, Y_High] = std::minmax(L.Y1, L.Y2);
        if (X_High < Left || X_Low > Right || Y_High < Top || Y_Low > Bottom) return false;
        if (Left <= X_Low && X_High <= Right && Top <= Y_Low && Y_High <= Bottom) return true;
        return !All_On_One_Side(L);
    }

    // Whether the four corners lie on one side of the line.
    bool All_On_One_Side(const Line_Px& L) const {
        const std::int64_t DX = std::int64_t{L.X2} - L.X1, DY = std::int64_t{L.Y2} - L.Y1;
        int Right_Of = 0, Left_Of = 0;
        for (const Long X : {Left, Right})
            for (const Long Y : {Top, Bottom}) {
                const std::int64_t Turn =
                    DX * (std::int64_t{Y} - L.Y1) - DY * (std::int64_t{X} - L.X1);
                if (Turn >= 0) ++Right_Of;
                if (Turn <= 0) ++Left_Of;
            }
        return Right_Of == 0 || Left_Of == 0;
    }
};

class Object_Painter {
public:
    void Paint(const Obj& O, const Pen& With) {
        if (O.Nb_Pts == 1) return Paint_Block(O, With);
        const Reach Seen(With.Width);
        Long P = O.First_Pt;
        Spot A = Spot_Of(On_Canvas(Tab_Pt[P]));
        for (Long N = 2; N <= O.Nb_Pts && P != O.Last_Pt; ++N) {
            const Pt& Next = Tab_Pt[P = Tab_Pt[P].Next];
            const Pic_Px At = On_Canvas(Next);
            // Seen from afar most points fall on the pixel where the segment before has ended.
            if (N > 2 && A.Has_On_Its_Pixel(At)) {
                A.At = At;
                continue;
            }
            const Spot B = Spot_Of(At);
            Paint_Segment(A, B, Seen, With);
            A = B;
        }
    }

    void Paint_Block(const Obj& O, const Pen& With) {
        const Pic_Px P = On_Canvas(Tab_Pt[O.First_Pt]);
        if (Is_Far(P)) return;
        const Long X = Round_Lng(P.X), Y = Round_Lng(P.Y);
        for (Long D = -1; D <= 1; ++D) Out_.Add({X - 1, Y + D, X + 1, Y + D}, With);
    }

    bool May_Be_Seen(const Extent& B) const {
        return !(B.East < North_West_.X || B.West > South_East_.X || B.South < North_West_.Y ||
                 B.North > South_East_.Y);
    }

private:
    // As Map_To_Pic does it, with the canvas's origin worked out once.
    Pic_Px On_Canvas(const Pt& P) const {
        return {(P.X - Origin_.X) * Zoom_, (P.Y - Origin_.Y) * Zoom_};
    }

    // A point on the canvas, and its pixel if it is near.
    struct Spot {
        Pic_Px At;
        bool Is_Near = false;
        Double X = 0.0, Y = 0.0;

        // Halves are rounded to even ones and may belong to it, too.
        bool Has_On_Its_Pixel(Pic_Px P) const {
            return Is_Near && std::fabs(P.X - X) < 0.5 && std::fabs(P.Y - Y) < 0.5;
        }
    };

    static Spot Spot_Of(Pic_Px At) {
        if (Is_Far(At)) return {At};
        return {At, true, Whole(At.X), Whole(At.Y)};
    }

    // As Round_Lng rounds what is near: from this number on Doubles have no fractions.
    static Double Whole(Double X) {
        constexpr Double No_Fractions = 6755399441055744.0;  // 1.5 times 2 to the 52nd
        return (X + No_Fractions) - No_Fractions;
    }

    void Paint_Segment(const Spot& A, const Spot& B, const Reach& Seen, const Pen& With) {
        const std::optional<Line_Px> L =
            A.Is_Near && B.Is_Near ? Line_Px{static_cast<Long>(A.X), static_cast<Long>(A.Y),
                                             static_cast<Long>(B.X), static_cast<Long>(B.Y)}
                                   : Line_On_Canvas(A.At, B.At);
        if (L && Seen.Meets(*L)) Out_.Add(*L, With);
    }

    static constexpr Double Margin = 8.0;  // more than the width of any pen
    const Double Zoom_ = Zoom;
    const Pix Origin_ = Pic_To_Map({0.0, 0.0});
    const Pix North_West_ = Pic_To_Map({-Margin, -Margin});
    const Pix South_East_ = Pic_To_Map({Pic_Width + Margin, Pic_Height + Margin});
    Line_Batch Out_;
};

}  // namespace

std::optional<Line_Px> Line_On_Canvas(Pic_Px A, Pic_Px B) {
    if ((Is_Far(A) || Is_Far(B)) && !Bring_Near(A, B)) return {};
    return Line_Px{Round_Lng(A.X), Round_Lng(A.Y), Round_Lng(B.X), Round_Lng(B.Y)};
}

void Objects_Draw(const std::function<std::optional<Pen>(Long Row)>& Pen_Of,
                  Single_Points Singles) {
    const std::vector<Extent>& Extents = Extents_Now();
    const Long Fewest = Singles == Single_Points::As_Blocks ? 1 : 2;
    Object_Painter Painter;
    for (Long I = First_Obj; I <= Nb_Obj; ++I) {
        const Obj& O = Tab_Obj[I];
        if (!Show_Objects && !(Obj_Selected != 0 && I == Sel_Obj)) continue;
        if (O.Nb_Pts < Fewest || !Painter.May_Be_Seen(Extents[static_cast<std::size_t>(I)]))
            continue;
        if (const std::optional<Pen> With = Pen_Of(I)) Painter.Paint(O, *With);
    }
}

void Object_Paint(Long Row, const Pen& With) {
    if (Tab_Obj[Row].Nb_Pts > 0) Object_Painter().Paint(Tab_Obj[Row], With);
}

void Objects_Draw_Backdrop() {
    Objects_Draw([](Long Row) {
        Pen With = Backdrop;
        if (Kind_Colours != 0) With.Colour = Colour_Of_Kind(Tab_Obj[Row].Attr);
        return With;
    });
}

void Objects_Changed() {
    ++Model_Changes;
}
