// shapes/coast/coast_frame.cpp - the frame, and the walk round it.
#include "shapes/coast/coast_frame.h"

#include <algorithm>

#include "core/messages.h"
#include "geometry/box.h"
#include "geometry/segments.h"

namespace {

// Columns and rows of Cells count over the whole globe, and beyond its edges.
Long Col_Of(const CoastLoc& C) {
    return C.Cell.AreaLon * Nb_Cell_In_Area + C.Cell.CellLon;
}

Long Row_Of(const CoastLoc& C) {
    return C.Cell.AreaLat * Nb_Cell_In_Area + C.Cell.CellLat;
}

// A point on the line between two Cells counts to the inner one of them.
Long Inner_First(Long Cell, Int Loc) {
    return Loc == Loc_Cell_Span ? Cell + 1 : Cell;
}

Long Inner_Last(Long Cell, Int Loc) {
    return Loc == 0 ? Cell - 1 : Cell;
}

Pix Corner_Of(Long Col, Int LocX, Long Row, Int LocY) {
    const auto High = [](Long N) { return static_cast<Int>(N >> 5); };
    const auto Low = [](Long N) { return static_cast<Int>(N & 31); };
    return Cell_Loc_To_Pixel({High(Col), High(Row), Low(Col), Low(Row)}, {LocX, LocY});
}

// A side of the frame runs from corner S to the next one: 0 east along the top, 1 south, 2 west
// along the bottom, 3 north. Along and across are meant as on that side.
struct Frame_Side {
    int S = 0;

    int Next() const { return (S + 1) % 4; }
    bool Is_Level() const { return S % 2 == 0; }
    int Forward() const { return S < 2 ? 1 : -1; }
    int Cmp_Along(Pix A, Pix B) const { return Is_Level() ? Cmp_X(A.X, B.X) : Cmp_Y(A.Y, B.Y); }
    int Cmp_Across(Pix A, Pix B) const { return Is_Level() ? Cmp_Y(A.Y, B.Y) : Cmp_X(A.X, B.X); }
    // Whether an edge of its Cell leads from P straight to the side, and where it ends there.
    bool Is_Joined(const CoastLoc& P) const {
        return On_Edge(Is_Level() ? P.Loc.LocX : P.Loc.LocY);
    }
    Pix Foot(Pix On_Side, Pix P) const {
        return Is_Level() ? Pix{P.X, On_Side.Y} : Pix{On_Side.X, P.Y};
    }
    // Whether P lies on the connector, From left out.
    bool Is_On_Connector(Pix P, Pix From, Pix To) const {
        const int Way = Cmp_Across(To, From);
        return Cmp_Along(P, From) == 0 && Cmp_Across(P, From) == Way && Cmp_Across(P, To) != Way;
    }
};

// Whether a connector keeps off a stretch of the line. The line has a point wherever it crosses
// the edge of a Cell, so connectors meet it in its points: those are told by comparing, since of
// a crossing at the very end of a segment the last bit would decide. Segments meet only where
// their boxes do.
bool Is_Free(const Frame_Side& Side, Pix From, Pix To, std::span<const CoastLoc> Stretch) {
    Box_Pix Box;
    Box.Add(From);
    Box.Add(To);
    for (std::size_t I = 0; I < Stretch.size(); ++I) {
        const Pix P = Stretch[I].At;
        if (Side.Is_On_Connector(P, From, To)) return false;
        if (I + 1 == Stretch.size()) break;
        const Pix Next = Stretch[I + 1].At;
        Box_Pix Segment;
        Segment.Add(P);
        Segment.Add(Next);
        if (Box.Meets(Segment) && Seg_Cross(From, To, P, Next).Code >= Meet::Cross) return false;
    }
    return true;
}

class Frame_Walk {
public:
    Frame_Walk(const Coast_Frame& Frame, std::span<const CoastLoc> Line)
        : Frame_(Frame), Line_(Line), Start_(Line.front()), End_(Line.back()) {}

    std::optional<std::vector<Pix>> Way_Back() {
        if (!Is_On_Frame() && !Find_Exit()) return std::nullopt;
        Pos_ = Cur_;
        if (!Walk()) return std::nullopt;
        return Way_;
    }

private:
    static constexpr int Most_Turns = 5;

    bool Is_On_Frame();
    bool Find_Exit();
    bool Walk();
    bool Comes_To_Start(bool& On_Side);
    bool Leaves();
    bool Turns();
    Pix Next_Corner() const { return Frame_[static_cast<std::size_t>(Side_.Next())]; }
    // The way that counts as ahead; after a full turn only what was passed at first is left.
    int Ahead() const { return Nb_Turns_ <= 3 ? Side_.Forward() : -Side_.Forward(); }

    const Coast_Frame& Frame_;
    std::span<const CoastLoc> Line_;
    const CoastLoc& Start_;  // of the line, where the walk ends
    const CoastLoc& End_;
    Frame_Side Side_;
    Pix Cur_;  // where the walk began
    Pix Pos_;
    int Nb_Turns_ = 0;
    std::vector<Pix> Way_;
};

// Whether the line ends on the frame itself; the walk then begins there.
bool Frame_Walk::Is_On_Frame() {
    for (int S = 0; S < 4; ++S) {
        Side_ = {S};
        if (Side_.Cmp_Across(End_.At, Frame_[static_cast<std::size_t>(S)]) != 0) continue;
        if (Side_.Cmp_Along(End_.At, Next_Corner()) == 0) Side_ = {Side_.Next()};
        Cur_ = End_.At;
        return true;
    }
    return false;
}

// The last segment is left out, since it ends where the connector begins.
bool Frame_Walk::Find_Exit() {
    for (int S = 0; S < 4; ++S) {
        Side_ = {S};
        if (!Side_.Is_Joined(End_)) continue;
        Cur_ = Side_.Foot(Frame_[static_cast<std::size_t>(S)], End_.At);
        if (!Is_Free(Side_, End_.At, Cur_, Line_.first(Line_.size() - 1))) continue;
        Way_.push_back(Cur_);
        return true;
    }
    return false;
}

bool Frame_Walk::Walk() {
    bool On_Side = false;
    while (!Comes_To_Start(On_Side)) {
        if (!On_Side) {
            while (!Leaves())
                if (!Turns()) return false;
            return true;
        }
        if (!Turns()) return false;
    }
    return true;
}

// Whether the start of the line lies ahead on this side of the frame. On_Side stays set once the
// side was found.
bool Frame_Walk::Comes_To_Start(bool& On_Side) {
    if (Side_.Cmp_Across(Pos_, Next_Corner()) != 0 || Side_.Cmp_Across(Start_.At, Pos_) != 0)
        return false;
    On_Side = true;
    return Side_.Cmp_Along(Start_.At, Pos_) == Ahead();
}

// Whether a free connector leads from this side, ahead of where the walk began, to the start.
bool Frame_Walk::Leaves() {
    if (!Side_.Is_Joined(Start_)) return false;
    const Pix Foot = Side_.Foot(Pos_, Start_.At);
    if (Seg_Cross(Start_.At, Foot, End_.At, Cur_).Code >= Meet::Cross) return false;
    if (!Is_Free(Side_, Start_.At, Foot, Line_.subspan(1))) return false;
    if (Side_.Cmp_Across(Cur_, Pos_) == 0 && Side_.Cmp_Along(Cur_, Foot) != -Ahead()) return false;
    Way_.push_back(Foot);
    return true;
}

bool Frame_Walk::Turns() {
    Pos_ = Next_Corner();
    Way_.push_back(Pos_);
    if (++Nb_Turns_ == Most_Turns) {
        Msg_Show(132);
        return false;
    }
    Side_ = {Side_.Next()};
    return true;
}

}  // namespace

Coast_Frame Coast_Frame_Of(std::span<const CoastLoc> Line) {
    const auto By_X = [](const CoastLoc& C) { return std::pair(Col_Of(C), C.Loc.LocX); };
    const auto By_Y = [](const CoastLoc& C) { return std::pair(Row_Of(C), C.Loc.LocY); };
    const auto [West_X, West_Loc] = By_X(*std::ranges::min_element(Line, {}, By_X));
    const auto [East_X, East_Loc] = By_X(*std::ranges::max_element(Line, {}, By_X));
    const auto [North_Y, North_Loc] = By_Y(*std::ranges::min_element(Line, {}, By_Y));
    const auto [South_Y, South_Loc] = By_Y(*std::ranges::max_element(Line, {}, By_Y));
    const Long West = Inner_First(West_X, West_Loc) - 1, East = Inner_Last(East_X, East_Loc) + 1;
    const Long North = Inner_First(North_Y, North_Loc) - 1;
    const Long South = Inner_Last(South_Y, South_Loc) + 1;
    constexpr Int Last = Loc_Cell_Span;
    return {Corner_Of(West, 0, North, 0), Corner_Of(East, Last, North, 0),
            Corner_Of(East, Last, South, Last), Corner_Of(West, 0, South, Last)};
}

std::optional<std::vector<Pix>> Coast_Way_Back(const Coast_Frame& Frame,
                                               std::span<const CoastLoc> Line) {
    return Frame_Walk(Frame, Line).Way_Back();
}
