// shapes/coast/coast_fill.cpp - the edges of the pieces, and the chain of those that are left.
//
// Lists of edges are sorted instead of searched: most Cells of a wide surface are filled, each by
// a few pieces, so that this test is a large part of the work on coastlines.
#include "shapes/coast/coast_fill.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "geometry/segments.h"
#include "grid/terrain_grid.h"

namespace {

using Place = std::uint16_t;

constexpr Place Place_At(Int LocX, Int LocY) {
    return static_cast<Place>(LocY << 8 | LocX);
}

Place Place_Of(const CPt& P) {
    return Place_At(P.LocX, P.LocY);
}

Pix Pix_Of(Place P) {
    return {static_cast<Double>(P & 0xFF), static_cast<Double>(P >> 8)};
}

constexpr Int Last = Loc_Cell_Span;
constexpr std::array<Place, 4> Corners{Place_At(0, 0), Place_At(Last, 0), Place_At(Last, Last),
                                       Place_At(0, Last)};

bool Runs_Through_Corners(std::array<Place, 4> Round) {
    std::rotate(Round.begin(), std::find(Round.begin(), Round.end(), Corners[0]), Round.end());
    return Round == Corners;
}

constexpr std::uint64_t Packed(std::uint32_t Key, std::size_t At) {
    return std::uint64_t{Key} << 32 | At;
}
constexpr std::uint32_t Key_Of(std::uint64_t Entry) {
    return static_cast<std::uint32_t>(Entry >> 32);
}
constexpr std::size_t At_Of(std::uint64_t Entry) {
    return static_cast<std::uint32_t>(Entry);
}

// All that fill a Cell do; so many runs need no chain.
bool Have_All_Corners(std::span<const CPoly> Polys, const Table<CPt>& Points) {
    unsigned Found = 0;
    for (const CPoly& P : Polys)
        for (Long I = P.First; I <= P.Last; ++I) {
            const Place At = Place_Of(Points[I]);
            for (std::size_t C = 0; C < Corners.size(); ++C)
                Found |= static_cast<unsigned>(At == Corners[C]) << C;
        }
    return Found == 15;
}

}  // namespace

bool Fills_Cell(std::span<const CPt> Points) {
    if (Points.size() != 4) return false;
    return Runs_Through_Corners(
        {Place_Of(Points[0]), Place_Of(Points[1]), Place_Of(Points[2]), Place_Of(Points[3])});
}

void Fill_Test::Read_Edges(std::span<const CPoly> Polys, const Table<CPt>& Points) {
    Edge_.clear();
    for (const CPoly& P : Polys)
        for (Long I = P.First; I <= P.Last; ++I)
            Edge_.push_back({Place_Of(Points[I]), Place_Of(Points[I == P.Last ? P.First : I + 1]),
                             &P == &Polys[0]});
}

// An edge of a piece behind the first that runs against one in front of it is left out and marks
// that one as used; of equal ones the first, as often as it comes. Only edges between the same
// two places have to do with each other.
void Fill_Test::Match_Edges() {
    Order_.clear();
    for (std::size_t I = 0; I < Edge_.size(); ++I) {
        const auto [Low, High] = std::minmax(Edge_[I].From, Edge_[I].To);
        Order_.push_back(Packed(std::uint32_t{Low} << 16 | High, I));
    }
    std::sort(Order_.begin(), Order_.end());
    constexpr auto None = static_cast<std::size_t>(-1);
    std::array<std::size_t, 2> First_With{None, None};  // by direction
    for (std::size_t K = 0; K < Order_.size(); ++K) {
        if (K > 0 && Key_Of(Order_[K]) != Key_Of(Order_[K - 1])) First_With = {None, None};
        Edge& E = Edge_[At_Of(Order_[K])];
        const std::size_t Way = E.From < E.To ? 1 : 0;
        const std::size_t Reverse = First_With[E.From == E.To ? Way : 1 - Way];
        if (!E.Of_First_Piece && Reverse != None) {
            Edge_[Reverse].Is = State::Used;
            E.Is = State::Left_Out;
        } else if (First_With[Way] == None) {
            First_With[Way] = At_Of(Order_[K]);
        }
    }
    std::erase_if(Edge_, [](const Edge& E) { return E.Is == State::Left_Out; });
}

// The first edge not used; the number of edges when a chain from there cannot be that of a Cell.
std::size_t Fill_Test::Start_Of_Chain() const {
    const auto First = std::ranges::find(Edge_, State::Free, &Edge::Is);
    const auto At = static_cast<std::size_t>(First - Edge_.begin());
    return At + 2 < Edge_.size() ? At : Edge_.size();
}

void Fill_Test::List_Free_Edges() {
    Order_.clear();
    for (std::size_t I = 0; I < Edge_.size(); ++I)
        if (Edge_[I].Is == State::Free) Order_.push_back(Packed(Edge_[I].From, I));
    std::sort(Order_.begin(), Order_.end());
    Skip_.resize(Order_.size() + 1);
    std::iota(Skip_.begin(), Skip_.end(), 0U);
}

// The first row of Order_ from At on that is not taken, or its size.
std::size_t Fill_Test::Not_Taken(std::size_t At) {
    while (Skip_[At] != At) {
        Skip_[At] = Skip_[Skip_[At]];
        At = Skip_[At];
    }
    return At;
}

// The row of Order_ of the first free edge that begins at a place and stands behind an edge, or
// else, the list gone through again, from its start. The size of Order_ when there is none.
std::size_t Fill_Test::Next_Free(Place From, std::size_t Behind) {
    for (const std::size_t First : {Behind + 1, std::size_t{0}}) {
        const auto Row = std::ranges::lower_bound(Order_, Packed(From, First));
        const std::size_t At = Not_Taken(static_cast<std::size_t>(Row - Order_.begin()));
        if (At < Order_.size() && Key_Of(Order_[At]) == From) return At;
    }
    return Order_.size();
}

// The starts of the edges of the chain from an edge on.
void Fill_Test::Chain_From(std::size_t At) {
    List_Free_Edges();
    Chain_.clear();
    for (std::size_t Row = Next_Free(Edge_[At].From, At - 1); Row < Order_.size();
         Row = Next_Free(Edge_[At].To, At)) {
        At = At_Of(Order_[Row]);
        Skip_[Row] = Row + 1;
        Chain_.push_back(Edge_[At].From);
    }
}

bool Fill_Test::Chain_Runs_Round_Cell() {
    const std::size_t N = Chain_.size();
    if (N < 4) return false;
    Turns_.clear();
    for (std::size_t I = 0; I < N; ++I)
        if (Sens_3Pts(Pix_Of(Chain_[I == 0 ? N - 1 : I - 1]), Pix_Of(Chain_[I]),
                      Pix_Of(Chain_[I + 1 == N ? 0 : I + 1])) != 0)
            Turns_.push_back(Chain_[I]);
    return Turns_.size() == 4 && Runs_Through_Corners({Turns_[0], Turns_[1], Turns_[2], Turns_[3]});
}

bool Fill_Test::Fill_Cell(std::span<const CPoly> Polys, const Table<CPt>& Points) {
    if (!Have_All_Corners(Polys, Points)) return false;
    Read_Edges(Polys, Points);
    Match_Edges();
    const std::size_t Start = Start_Of_Chain();
    if (Start == Edge_.size()) return false;
    Chain_From(Start);
    return Chain_Runs_Round_Cell();
}
