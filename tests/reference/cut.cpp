// reference/cut.cpp - every line of a grid taken across all polygons, or all lines.
#include <algorithm>
#include <cmath>

#include "geometry/segments.h"
#include "reference/plain.h"

namespace reference {

namespace {

using Outline = std::vector<WPt>;

// A parallel at Y = Where, or a meridian at X = Where.
struct Line {
    bool Parallel;
    Double Where, Tol, Tol_Along;

    Double Of(Pix P) const { return Parallel ? P.Y : P.X; }
    Double Along(Pix P) const { return Parallel ? P.X : P.Y; }
    Pix Cross(Pix P1, Pix P2) const {
        if (Parallel) return Line_Cross(P1, P2, {-100, Where}, {100, Where}).At;
        return Line_Cross(P1, P2, {Where, -100}, {Where, 100}).At;
    }
    // -1 before the line, 0 within the tolerance, ends included, 1 behind it.
    int Side(const WPt& P) const {
        const Double V = Of(To_Pix(P));
        if (V - Tol <= Where && Where <= V + Tol) return 0;
        return V < Where ? -1 : 1;
    }
    Seg_Meet Cut(const WPt& P1, const WPt& P2) const {
        const Double v1 = Of(To_Pix(P1)), v2 = Of(To_Pix(P2));
        if (v1 == v2) return {};
        if (Side(P1) == 0) return {Meet::End, To_Pix(P1)};
        if (Side(P2) == 0) return {Meet::End, To_Pix(P2)};
        if (Side(P1) == Side(P2)) return {Meet::Miss, {}};
        return {Meet::Cross, Cross(To_Pix(P1), To_Pix(P2))};
    }
};

// All parallels, then all meridians.
std::vector<Line> Lines_Of(const Grid_Lines& G) {
    std::vector<Line> Lines;
    for (const Double Y : G.Y) Lines.push_back({true, Y, G.TolY, G.TolX});
    for (const Double X : G.X) Lines.push_back({false, X, G.TolX, G.TolY});
    return Lines;
}

WPt As_WPt(Pix P, Byte Tag = 0) {
    return {.X = P.X, .Y = P.Y, .Tag = Tag};
}

// On the edge from place From to the next.
struct CutPt {
    std::size_t From, To;
    Meet Code;
    Pix At;
};

std::vector<CutPt> Find_Cuts(const Outline& P, const Line& L) {
    std::vector<CutPt> Cuts;
    for (std::size_t I = 0; I < (P.size() == 2 ? 1 : P.size()); ++I) {
        const std::size_t J = (I + 1) % P.size();
        const Seg_Meet M = L.Cut(P[I], P[J]);
        const auto Is_Same = [&](const CutPt& C) {
            const bool Neighbour = I == C.From || I == C.To || J == C.From || J == C.To;
            return Neighbour && std::abs(L.Along(M.At) - L.Along(C.At)) <= L.Tol_Along;
        };
        if (M.Code == Meet::Cross || (M.Code == Meet::End && std::ranges::none_of(Cuts, Is_Same)))
            Cuts.push_back({I, J, M.Code, M.At});
    }
    return Cuts;
}

// One from the first cut to the second, and two from there on round to the first.
std::pair<Outline, Outline> In_Two(const Outline& P, CutPt First, CutPt Second) {
    if (Second.From < First.From) std::swap(First, Second);
    Outline One{As_WPt(First.At)}, Two{As_WPt(Second.At)};
    for (std::size_t I = First.From + 1; I <= Second.From; ++I) One.push_back(P[I]);
    for (std::size_t I = Second.From + 1; I < P.size(); ++I) Two.push_back(P[I]);
    for (std::size_t I = 0; I <= First.From; ++I) Two.push_back(P[I]);
    One.push_back(As_WPt(Second.At));
    Two.push_back(As_WPt(First.At));
    return {One, Two};
}

bool Has_Both_Sides(const Outline& P, const Line& L) {
    bool Before = false, Behind = false;
    for (const WPt& W : P) {
        Before |= L.Side(W) < 0;
        Behind |= L.Side(W) > 0;
    }
    return Before && Behind;
}

bool Needs_Second_Look(const Outline& P, const std::vector<CutPt>& Cuts, const Line& L) {
    if (P.size() < 3) return false;
    if (Cuts.size() > 2) return true;
    if (!Has_Both_Sides(P, L)) return false;
    if (Cuts.size() != 2) return true;
    const auto [One, Two] = In_Two(P, Cuts[0], Cuts[1]);
    return Has_Both_Sides(One, L) || Has_Both_Sides(Two, L);
}

// The changes of side on the way round, for a polygon with points on both sides of the line.
std::vector<CutPt> Find_Passages(const Outline& P, const Line& L) {
    std::vector<CutPt> Passages;
    const auto Next = [&](std::size_t I) { return (I + 1) % P.size(); };
    std::size_t Start = 0;
    while (L.Side(P[Start]) == 0) ++Start;
    std::size_t I = Start;
    do {
        const std::size_t N = Next(I);
        std::size_t J = N;
        while (L.Side(P[J]) == 0) J = Next(J);
        if (L.Side(P[I]) != L.Side(P[J])) {
            if (N == J)
                Passages.push_back({I, J, Meet::Cross, L.Cross(To_Pix(P[I]), To_Pix(P[J]))});
            else
                Passages.push_back({I, N, Meet::End, To_Pix(P[N])});
        }
        I = J;
    } while (I != Start);
    return Passages;
}

// False when the cutting of all polygons ends here.
bool Cut_One(const Poly& W, const Line& L, Polys& Out) {
    std::vector<CutPt> Cuts = Find_Cuts(W.P, L);
    if (Needs_Second_Look(W.P, Cuts, L)) {
        if (!Has_Both_Sides(W.P, L)) {
            Out.push_back(W);
            return true;
        }
        const std::vector<CutPt> Passages = Find_Passages(W.P, L);
        if (Passages.size() == 2) Cuts = Passages;
    }
    if (Cuts.size() > 2) return false;
    Out.push_back(W);
    if (Cuts.size() == 2) {
        const auto [One, Two] = In_Two(W.P, Cuts[0], Cuts[1]);
        Out.back().P = One;
        Out.push_back(W);
        Out.back().P = Two;
    } else if (Cuts.size() == 1 && W.P.size() == 2 && Cuts[0].Code == Meet::Cross) {
        Out.back().P[1] = As_WPt(Cuts[0].At);
        Out.push_back(W);
        Out.back().P[0] = As_WPt(Cuts[0].At);
    }
    return true;
}

// A line cut at one grid line; its points from there on are moved as they are passed.
void Walk(Poly W, const Line& L, bool Tags_Cuts, Polys& Out) {
    Outline& P = W.P;
    const std::size_t Last = P.size() - 1;
    const auto Emit = [&](std::size_t First, std::size_t End) {
        Out.push_back(W);
        Out.back().P.assign(P.begin() + static_cast<std::ptrdiff_t>(First),
                            P.begin() + static_cast<std::ptrdiff_t>(End) + 1);
    };
    for (std::size_t Start = 0, I = 0;;) {
        const Seg_Meet M = L.Cut(P[I], P[I + 1]);
        if (M.Code == Meet::End && !(M.At == To_Pix(P[I]) && I == Start)) {
            Emit(Start, I + 1);
            if (++I == Last) return;
            Start = I;
            continue;
        }
        if (M.Code == Meet::Cross) {
            Emit(Start, I);
            Out.back().P.push_back(As_WPt(M.At, Tag_Cut));
            Start = I;
            P[I] = As_WPt(M.At, Tags_Cuts ? Tag_Cut : P[I].Tag);
        }
        if (++I == Last) return Emit(Start, Last);
    }
}

Polys Cut_Lines_Along(const Polys& List, const Line_Cut_Rule& Rule, bool Rows,
                      const std::vector<Long>& Whole) {
    Polys Now = List;
    for (const Line& L : Lines_Of(Rule.Grid)) {
        if (L.Parallel != Rows) continue;
        Polys Out;
        for (const Poly& W : Now) {
            if (std::ranges::count(Whole, W.Num) > 0)
                Out.push_back(W);
            else
                Walk(W, L, Rule.Tags_Cuts, Out);
        }
        Now = Out;
    }
    return Now;
}

}  // namespace

std::string Cut(Polys& List, const Grid_Lines& Grid) {
    for (const Line& L : Lines_Of(Grid)) {
        Polys Out;
        for (const Poly& W : List)
            if (!Cut_One(W, L, Out))
                return L.Parallel ? "Anormal Lat decoupe LOD13_8" : "Anormal Lon decoupe LOD13_8";
        List = Out;
    }
    return "";
}

// The lines of objects whose pieces fit after the columns alone skip the rows.
void Cut_Lines(Polys& List, const Line_Cut_Rule& Rule) {
    std::vector<Long> Whole;
    if (Rule.Skips_Rows) {
        for (const Poly& W : List)
            if (Rule.Skips_Rows(*W.Attr)) Whole.push_back(W.Num);
        for (const Poly& W : Cut_Lines_Along(List, Rule, false, {}))
            if (!Rule.Fits(W.P)) std::erase(Whole, W.Num);
    }
    List = Cut_Lines_Along(Cut_Lines_Along(List, Rule, true, Whole), Rule, false, {});
}

}  // namespace reference
