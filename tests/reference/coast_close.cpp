// reference/coast_close.cpp - coastlines closed straight or by a walk round their frame.
#include <array>
#include <tuple>
#include <vector>

#include "geometry/segments.h"
#include "reference/coasts.h"
#include "shapes/coast/coast_loc.h"

namespace reference {

namespace {

bool Is_Level(int s) {
    return s == 1 || s == 3;
}

int Next_Side(int s) {
    return s == 4 ? 1 : s + 1;
}

// A move by one Cell east, or south.
void Step_East(CoastLoc& C) {
    if (++C.Cell.CellLon < 32) return;
    C.Cell.CellLon = 0;
    ++C.Cell.AreaLon;
}
void Step_West(CoastLoc& C) {
    if (--C.Cell.CellLon >= 0) return;
    C.Cell.CellLon = 31;
    --C.Cell.AreaLon;
}
void Step_South(CoastLoc& C) {
    if (++C.Cell.CellLat < 32) return;
    C.Cell.CellLat = 0;
    ++C.Cell.AreaLat;
}
void Step_North(CoastLoc& C) {
    if (--C.Cell.CellLat >= 0) return;
    C.Cell.CellLat = 31;
    --C.Cell.AreaLat;
}

auto Place_X(const CoastLoc& C) {
    return std::tuple(C.Cell.AreaLon, C.Cell.CellLon, C.Loc.LocX);
}
auto Place_Y(const CoastLoc& C) {
    return std::tuple(C.Cell.AreaLat, C.Cell.CellLat, C.Loc.LocY);
}

// One line while it is closed. P are its points from 1 to Last; A is the first, B the last.
class Closing {
public:
    explicit Closing(const WPoly& W);

    bool Is_Empty() const { return Last < 2; }
    // False, and a message, when there is no way to close the line.
    bool Close();
    const std::vector<WPt>& Outline() const { return Outline_; }

private:
    bool Ends_Aligned() const;
    template <typename Test>
    bool All_Inner(Test Holds) const;
    void Find_Extremes();
    void Normalise();
    void Make_Frame();
    bool Start_Of_Walk();
    bool Exit_Side();
    bool Is_Rejected(Pix Q) const;
    bool Walk_Frame();
    bool Leave_Frame();
    bool Is_Connector_Free() const;
    bool Is_On_The_Way(Pix P, Pix From, Pix To) const;
    bool Go_To_Corner();
    void Add(Pix At) { Outline_.push_back({.X = At.X, .Y = At.Y}); }

    int Cmp_Along(Pix V, Pix U) const { return Is_Level(s) ? Cmp_X(V.X, U.X) : Cmp_Y(V.Y, U.Y); }
    int Cmp_Off(Pix V, Pix U) const { return Is_Level(s) ? Cmp_Y(V.Y, U.Y) : Cmp_X(V.X, U.X); }
    const CoastLoc& A() const { return P[1]; }
    const CoastLoc& B() const { return P[static_cast<std::size_t>(Last)]; }
    Pix At(Long i) const { return P[static_cast<std::size_t>(i)].At; }
    Pix Corner(int k) const { return Frame[static_cast<std::size_t>(k)].At; }

    std::vector<CoastLoc> P{CoastLoc{}};
    Long Last = 0;
    std::array<CoastLoc, 6> Ext, Frame;
    int s = 1, n = 2;
    int Turns = 0;
    Pix Cur, Pos;
    std::vector<WPt> Outline_;
};

// In place: the middle of the last segment sees its start moved.
Closing::Closing(const WPoly& W) {
    for (Long i = W.First; i <= W.Last; ++i) {
        const Pix From = Pix_Of(Tab_WPt[i < W.Last ? i : i - 1]);
        const Pix To = Pix_Of(Tab_WPt[i < W.Last ? i + 1 : i]);
        CoastLoc C;
        Pixel_To_Cell_Loc({(From.X + To.X) / 2, (From.Y + To.Y) / 2}, C.Cell);
        C.Loc = Pixel_Loc_In_Cell(Pix_Of(Tab_WPt[i]), C.Cell);
        C.At = Cell_Loc_To_Pixel(C.Cell, C.Loc);
        Tab_WPt[i].X = C.At.X;
        Tab_WPt[i].Y = C.At.Y;
        P.push_back(C);
    }
    Last = W.Nb;
    while (Last >= 2 && Same_Place(At(1), At(2))) {
        P.erase(P.begin() + 1);
        --Last;
    }
    while (Last >= 2 && Same_Place(At(Last - 1), At(Last))) {
        P.pop_back();
        --Last;
    }
}

template <typename Test>
bool Closing::All_Inner(Test Holds) const {
    for (Long i = 2; i < Last; ++i)
        if (!Holds(At(i))) return false;
    return true;
}

bool Closing::Ends_Aligned() const {
    if (Last < 3) return false;
    const Pix a = A().At, b = B().At;
    const int Row = Cmp_Y(a.Y, b.Y), Col = Cmp_X(a.X, b.X);
    if (Row == 0 && Col == -1) return All_Inner([&](Pix V) { return Cmp_Y(V.Y, a.Y) == -1; });
    if (Row == 0) return All_Inner([&](Pix V) { return Cmp_Y(V.Y, a.Y) == 1; });
    if (Col == 0 && Row == -1) return All_Inner([&](Pix V) { return Cmp_X(V.X, a.X) == 1; });
    if (Col == 0) return All_Inner([&](Pix V) { return Cmp_X(V.X, a.X) == -1; });
    return false;
}

// 1 west, 2 north, 3 east, 4 south.
void Closing::Find_Extremes() {
    for (int k = 1; k <= 4; ++k) {
        const Int Cell = static_cast<Int>(k <= 2 ? 16000 : -16000);
        const Int Loc = static_cast<Int>(k <= 2 ? 999 : -999);
        Ext[static_cast<std::size_t>(k)] = {{Cell, Cell, Cell, Cell}, {Loc, Loc}, {}};
    }
    for (Long i = 1; i <= Last; ++i) {
        const CoastLoc& C = P[static_cast<std::size_t>(i)];
        if (Place_X(C) < Place_X(Ext[1])) Ext[1] = C;
        if (Place_Y(C) < Place_Y(Ext[2])) Ext[2] = C;
        if (Place_X(C) > Place_X(Ext[3])) Ext[3] = C;
        if (Place_Y(C) > Place_Y(Ext[4])) Ext[4] = C;
    }
}

void Closing::Normalise() {
    if (Ext[1].Loc.LocX == 255) Step_East(Ext[1]);
    if (Ext[2].Loc.LocY == 255) Step_South(Ext[2]);
    if (Ext[3].Loc.LocX == 0) Step_West(Ext[3]);
    if (Ext[4].Loc.LocY == 0) Step_North(Ext[4]);
}

void Closing::Make_Frame() {
    for (int k = 1; k <= 4; ++k) {
        const bool West = k == 1 || k == 4, North = k <= 2;
        const CoastLoc &Col = Ext[West ? 1 : 3], &Row = Ext[North ? 2 : 4];
        CoastLoc& C = Frame[static_cast<std::size_t>(k)];
        C.Cell = {Col.Cell.AreaLon, Row.Cell.AreaLat, Col.Cell.CellLon, Row.Cell.CellLat};
        C.Loc = {static_cast<Int>(West ? 0 : 255), static_cast<Int>(North ? 0 : 255)};
        West ? Step_West(C) : Step_East(C);
        North ? Step_North(C) : Step_South(C);
        C.At = Cell_Loc_To_Pixel(C.Cell, C.Loc);
    }
    Frame[5] = Frame[1];
}

bool Closing::Start_Of_Walk() {
    for (s = 1; s <= 4; ++s) {
        n = Next_Side(s);
        if (Cmp_Off(B().At, Corner(s)) != 0) continue;
        if (Cmp_Along(B().At, Corner(n)) == 0) {
            s = n;
            n = Next_Side(s);
        }
        Cur = B().At;
        return true;
    }
    return Exit_Side();
}

bool Closing::Is_On_The_Way(Pix V, Pix From, Pix To) const {
    const int Way = Cmp_Off(To, From);
    return Cmp_Along(V, From) == 0 && Cmp_Off(V, From) == Way && Cmp_Off(V, To) != Way;
}

// A point of the line on the way is told by comparing: for Seg_Cross the last bit would decide at
// the very end of a segment.
bool Closing::Is_Rejected(Pix Q) const {
    for (Long i = 1; i < Last; ++i)
        if (Is_On_The_Way(At(i), B().At, Q)) return true;
    for (Long i = 1; i < Last; ++i) {
        if (Same_Place(Q, At(i))) return true;
        if (i + 1 == Last) continue;
        if (Same_Place(Q, At(i + 1))) return true;
        if (Seg_Cross(B().At, Q, At(i), At(i + 1)).Code >= Meet::Cross) return true;
    }
    return false;
}

bool Closing::Exit_Side() {
    for (s = 1; s <= 4; ++s) {
        n = Next_Side(s);
        if (!On_Edge(Is_Level(s) ? B().Loc.LocX : B().Loc.LocY)) continue;
        Pix Q = Corner(s);
        (Is_Level(s) ? Q.X : Q.Y) = Is_Level(s) ? B().At.X : B().At.Y;
        if (Is_Rejected(Q)) continue;
        Cur = Q;
        Add(Q);
        return true;
    }
    return false;
}

bool Closing::Go_To_Corner() {
    Add(Corner(n));
    Pos = Corner(n);
    if (++Turns == 5) {
        Messages.push_back("132");
        return false;
    }
    s = n;
    n = Next_Side(s);
    return true;
}

bool Closing::Is_Connector_Free() const {
    const Pix a = A().At;
    for (Long i = 2; i <= Last; ++i)
        if (Is_On_The_Way(At(i), a, Pos)) return false;
    if (Seg_Cross(a, Pos, B().At, Cur).Code >= Meet::Cross) return false;
    for (Long i = 2; i < Last; ++i) {
        if (Same_Place(Pos, At(i))) return false;
        if (i + 1 != Last && Same_Place(Pos, At(i + 1))) return false;
        if (Seg_Cross(a, Pos, At(i), At(i + 1)).Code >= Meet::Cross) return false;
    }
    return true;
}

bool Closing::Leave_Frame() {
    if (!On_Edge(Is_Level(s) ? A().Loc.LocX : A().Loc.LocY)) return false;
    (Is_Level(s) ? Pos.X : Pos.Y) = Is_Level(s) ? A().At.X : A().At.Y;
    if (!Is_Connector_Free()) return false;
    if (Cmp_Off(Cur, Pos) == 0) {
        const int Wanted = (s <= 2) == (Turns <= 3) ? -1 : 1;
        if (Cmp_Along(Cur, Pos) != Wanted) return false;
    }
    Add(Pos);
    return true;
}

bool Closing::Walk_Frame() {
    Pos = Cur;
    bool On_Side = false;
    while (true) {
        if (Cmp_Off(Pos, Corner(n)) == 0 && Cmp_Off(A().At, Pos) == 0) {
            On_Side = true;
            const int Wanted = (s <= 2) == (Turns <= 3) ? 1 : -1;
            if (Cmp_Along(A().At, Pos) == Wanted) return true;
        }
        if (!On_Side) break;
        if (!Go_To_Corner()) return false;
    }
    while (!Leave_Frame())
        if (!Go_To_Corner()) return false;
    return true;
}

bool Closing::Close() {
    for (Long i = 1; i <= Last; ++i) Add(At(i));
    if (Ends_Aligned()) return true;
    Find_Extremes();
    Normalise();
    Make_Frame();
    if (On_Edge(A().Loc) && On_Edge(B().Loc) && Start_Of_Walk() && Walk_Frame()) return true;
    Messages.push_back("132");
    return false;
}

}  // namespace

void Coast_Close() {
    Tab_NPoly.Dimension(Nb_WPoly);
    Tab_NPt.Dimension(Nb_WPt);
    for (const WPoly& W : Tab_WPoly.Rows()) {
        Closing C(W);
        if (C.Is_Empty()) continue;
        if (!C.Close()) {
            Tab_WPoly.Dimension(0);
            return;
        }
        NPoly_Append(W, C.Outline());
    }
    WPoly_Commit();
}

}  // namespace reference
