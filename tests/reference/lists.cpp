// reference/lists.cpp - the work lists copied, and self-crossings.
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

}  // namespace reference
