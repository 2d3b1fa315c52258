// reference/lists.cpp - the work lists copied, self-crossings, and Cells that are full.
#include <algorithm>

#include "geometry/segments.h"
#include "reference/plain.h"

namespace reference {

Polys Work_Lists() {
    Polys List;
    for (const WPoly& W : Tab_WPoly.Rows()) {
        List.push_back({W, {}});
        for (Long I = W.First; I <= W.Last; ++I) List.back().P.push_back(Tab_WPt[I]);
    }
    return List;
}

namespace {

std::optional<Pix> Edges_Cross(const Poly& W, std::size_t I, std::size_t J) {
    const auto At = [&](std::size_t K) { return To_Pix(W.P[K % W.P.size()]); };
    const Pix P1 = At(I), P2 = At(I + 1), P3 = At(J), P4 = At(J + 1);
    const auto [Found, P] = Line_Cross(P1, P2, P3, P4);
    if (Found == 1 && In_Span(P.X, P1.X, P2.X) && In_Span(P.X, P3.X, P4.X) &&
        In_Span(P.Y, P1.Y, P2.Y) && In_Span(P.Y, P3.Y, P4.Y))
        return P;
    return std::nullopt;
}

struct Edge {
    Int FromX, FromY, ToX, ToY;
    bool Used = false;
};

std::vector<Edge> Edges_Of(std::span<const CPoly> Polys, const Table<CPt>& Points) {
    std::vector<Edge> List;
    for (std::size_t K = 0; K < Polys.size(); ++K)
        for (Long I = Polys[K].First; I <= Polys[K].Last; ++I) {
            const CPt &From = Points[I], &To = Points[I == Polys[K].Last ? Polys[K].First : I + 1];
            const auto Reverse = std::ranges::find_if(List, [&](const Edge& L) {
                return L.ToX == From.LocX && L.ToY == From.LocY && L.FromX == To.LocX &&
                       L.FromY == To.LocY;
            });
            if (K > 0 && Reverse != List.end())
                Reverse->Used = true;
            else
                List.push_back({From.LocX, From.LocY, To.LocX, To.LocY});
        }
    return List;
}

// The starts of the edges of the chain. Empty when the pieces stay whatever it is.
std::vector<Pix> Chain_Of(std::vector<Edge> List) {
    std::size_t First = 0;
    while (First < List.size() && List[First].Used) ++First;
    if (First + 2 >= List.size()) return {};
    List[First].Used = true;
    std::vector<Edge> Chain{List[First]};
    std::size_t Sweeps = 0;
    for (bool Added = true; Added;) {
        Added = false;
        if (++Sweeps > List.size() + 2) return {};
        for (Edge& E : List) {
            if (E.Used || E.FromX != Chain.back().ToX || E.FromY != Chain.back().ToY) continue;
            E.Used = Added = true;
            Chain.push_back(E);
        }
    }
    std::vector<Pix> Starts;
    for (const Edge& E : Chain) Starts.push_back({1.0 * E.FromX, 1.0 * E.FromY});
    return Starts;
}

}  // namespace

std::optional<Pix> Self_Cross(const Polys& List, bool Closed) {
    for (const Poly& W : List) {
        const std::size_t Nb = W.P.size();
        if (Nb < 4) continue;
        for (std::size_t I = 0; I + 3 < Nb; ++I)
            for (std::size_t J = I + 2; J + 1 < Nb; ++J)
                if (const auto At = Edges_Cross(W, I, J)) return At;
        for (std::size_t J = 1; Closed && J + 2 < Nb; ++J)
            if (const auto At = Edges_Cross(W, Nb - 1, J)) return At;
    }
    return std::nullopt;
}

bool Fill_Cell(std::span<const CPoly> Polys, const Table<CPt>& Points) {
    const std::vector<Pix> Chain = Chain_Of(Edges_Of(Polys, Points));
    const std::size_t n = Chain.size();
    std::vector<Pix> Left;
    for (std::size_t I = 0; I < n; ++I)
        if (Sens_3Pts(Chain[(I + n - 1) % n], Chain[I], Chain[(I + 1) % n]) != 0)
            Left.push_back(Chain[I]);
    if (n < 4 || Left.size() != 4) return false;
    std::rotate(Left.begin(), std::ranges::find(Left, Pix{0, 0}), Left.end());
    return Left == std::vector<Pix>{{0, 0}, {255, 0}, {255, 255}, {0, 255}};
}

}  // namespace reference
