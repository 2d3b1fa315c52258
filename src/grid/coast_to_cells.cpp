// grid/coast_to_cells.cpp - local coordinates, and the Cells that are filled.
#include "grid/coast_to_cells.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <set>
#include <unordered_map>
#include <vector>

#include "grid/poly_prepare.h"
#include "grid/terrain_grid.h"

namespace {

constexpr Int Mode_Cells = 0;

// A place of the Cell as one number; from the north-west to the south-east corner.
using Place = std::uint16_t;
constexpr Place Place_At(Int LocX, Int LocY) {
    return static_cast<Place>(LocY << 8 | LocX);
}

constexpr Int Last = Loc_Cell_Span;
constexpr std::array<Place, 4> Corners{Place_At(0, 0), Place_At(Last, 0), Place_At(Last, Last),
                                       Place_At(0, Last)};

Pix Pix_Of(Place P) {
    return {static_cast<Double>(P & 0xFF), static_cast<Double>(P >> 8)};
}

bool Runs_Through_Corners(std::array<Place, 4> Round) {
    std::rotate(Round.begin(), std::find(Round.begin(), Round.end(), Corners[0]), Round.end());
    return Round == Corners;
}

struct Cell_Edge {
    Place From, To;
    bool Used = false;

    std::uint32_t Key() const { return std::uint32_t{From} << 16 | To; }
    std::uint32_t Reverse_Key() const { return std::uint32_t{To} << 16 | From; }
};

// The edges of the pieces. An edge of a piece behind the first that runs against one of the list
// is left out and marks that one as used; of equal ones the first.
std::vector<Cell_Edge> Edges_Of(std::span<const CPoly> Polys, const Table<CPt>& Points) {
    std::vector<Cell_Edge> Edges;
    std::unordered_map<std::uint32_t, std::size_t> First_With;
    const auto Place_Of = [&](Long I) { return Place_At(Points[I].LocX, Points[I].LocY); };
    for (const CPoly& P : Polys)
        for (Long I = P.First; I <= P.Last; ++I) {
            const Cell_Edge E{Place_Of(I), Place_Of(I == P.Last ? P.First : I + 1)};
            const auto Reverse = First_With.find(E.Reverse_Key());
            if (&P != &Polys[0] && Reverse != First_With.end()) {
                Edges[Reverse->second].Used = true;
                continue;
            }
            First_With.emplace(E.Key(), Edges.size());
            Edges.push_back(E);
        }
    return Edges;
}

// The starts of the edges of a chain from the first edge not used. Each next edge is the first
// that fits behind the one before in the list, or else, the list gone through again, from its
// start. Empty when the chain cannot be the edge of a Cell.
std::vector<Place> Chain_Of(const std::vector<Cell_Edge>& Edges) {
    std::set<std::pair<Place, std::size_t>> Free;
    for (std::size_t I = 0; I < Edges.size(); ++I)
        if (!Edges[I].Used) Free.emplace(Edges[I].From, I);
    const auto First = std::ranges::find(Edges, false, &Cell_Edge::Used);
    auto At = static_cast<std::size_t>(First - Edges.begin());
    if (At + 2 >= Edges.size()) return {};
    std::vector<Place> Starts{Edges[At].From};
    Free.erase({Edges[At].From, At});
    for (Place End = Edges[At].To;; End = Edges[At].To) {
        auto Next = Free.lower_bound({End, At + 1});
        if (Next == Free.end() || Next->first != End) Next = Free.lower_bound({End, 0});
        if (Next == Free.end() || Next->first != End) return Starts;
        At = Next->second;
        Starts.push_back(End);
        Free.erase(Next);
    }
}

// The starts that are corners of the chain.
std::vector<Place> Turns_Of(const std::vector<Place>& Chain) {
    const std::size_t N = Chain.size();
    std::vector<Place> Turns;
    for (std::size_t I = 0; I < N; ++I)
        if (Sens_3Pts(Pix_Of(Chain[(I + N - 1) % N]), Pix_Of(Chain[I]),
                      Pix_Of(Chain[(I + 1) % N])) != 0)
            Turns.push_back(Chain[I]);
    return Turns;
}

// All that fill a Cell do; so most runs need no chain.
bool Have_All_Corners(std::span<const CPoly> Polys, const Table<CPt>& Points) {
    unsigned Found = 0;
    for (const CPoly& P : Polys)
        for (Long I = P.First; I <= P.Last; ++I) {
            const auto C = std::ranges::find(Corners, Place_At(Points[I].LocX, Points[I].LocY));
            if (C != Corners.end()) Found |= 1U << (C - Corners.begin());
        }
    return Found == 15;
}

void Append(CPoly P, const Table<CPt>& Points) {
    const Long First = Nb_CCoastPt + 1;
    for (Long I = P.First; I <= P.Last; ++I) Tab_CCoastPt.Append(Points[I]);
    P.First = First;
    P.Last = Nb_CCoastPt;
    Tab_CCoast.Append(P);
}

}  // namespace

bool Fills_Cell(std::span<const CPt> Points) {
    if (Points.size() != 4) return false;
    std::array<Place, 4> Round;
    std::ranges::transform(Points, Round.begin(),
                           [](const CPt& P) { return Place_At(P.LocX, P.LocY); });
    return Runs_Through_Corners(Round);
}

bool Fill_Cell(std::span<const CPoly> Polys, const Table<CPt>& Points) {
    if (!Have_All_Corners(Polys, Points)) return false;
    const std::vector<Place> Chain = Chain_Of(Edges_Of(Polys, Points));
    if (Chain.size() < 4) return false;
    const std::vector<Place> Turns = Turns_Of(Chain);
    return Turns.size() == 4 && Runs_Through_Corners({Turns[0], Turns[1], Turns[2], Turns[3]});
}

void Coast_To_Cells() {
    Table<CPoly> Polys{20, 20};
    Table<CPt> Points{200, 200};
    Poly_To_Cells_Into(Mode_Cells, Polys, Points, Fills_Cell);
    Tab_CCoast.Dimension(Polys.Nb());
    Tab_CCoastPt.Dimension(Points.Nb());
    const std::span<const CPoly> All = Polys.Rows();
    for (std::size_t First = 0, End = 0; First < All.size(); First = End) {
        while (End < All.size() && Same_Cell(All[First], All[End])) ++End;
        const auto Run = All.subspan(First, End - First);
        if (Fill_Cell(Run, Points)) continue;
        for (const CPoly& P : Run) Append(P, Points);
    }
}
