// grid/line_cut.cpp - each line along its own rows and columns.
//
// A grid line changes only lines that it touches, and the pieces of a line stay in its place. So
// each line is cut along all its grid lines before the next one is looked at, with the same
// result as if each grid line were taken across all lines in turn.
#include "grid/line_cut.h"

#include <algorithm>
#include <vector>

#include "grid/poly_cut.h"

namespace {

// The grid lines of one direction, seen so that both directions have one rule.
struct Rows {
    std::span<const Double> Lines;
    Double Tol;

    static Double Across(const WPt& P) { return P.Y; }
    Seg_Cut Cut(const WPt& P1, const WPt& P2, Double Line) const {
        return Seg_Cut_Horiz(To_Pix(P1), To_Pix(P2), Line, Tol);
    }
};

struct Columns {
    std::span<const Double> Lines;
    Double Tol;

    static Double Across(const WPt& P) { return P.X; }
    Seg_Cut Cut(const WPt& P1, const WPt& P2, Double Line) const {
        return Seg_Cut_Vert(To_Pix(P1), To_Pix(P2), Line, Tol);
    }
};

// Pieces one behind the other: piece K is the points from End[K - 1] to before End[K].
struct Pieces {
    std::vector<WPt> Points;
    std::vector<std::size_t> End;

    void Clear() {
        Points.clear();
        End.clear();
    }
    void Add(std::span<const WPt> Piece) {
        Points.insert(Points.end(), Piece.begin(), Piece.end());
        End.push_back(Points.size());
    }
    void Add(std::span<const WPt> Piece, const WPt& Last) {
        Points.insert(Points.end(), Piece.begin(), Piece.end());
        Points.push_back(Last);
        End.push_back(Points.size());
    }
    std::span<const WPt> operator[](std::size_t K) const {
        const std::size_t First = K == 0 ? 0 : End[K - 1];
        return std::span(Points).subspan(First, End[K] - First);
    }
};

void Append_Piece(const WPoly& Like, std::span<const WPt> Points) {
    WPoly Piece = Like;
    Piece.First = Nb_NPt + 1;
    for (const WPt& P : Points) Tab_NPt.Append(P);
    Piece.Last = Nb_NPt;
    Piece.Nb = static_cast<Long>(Points.size());
    Tab_NPoly.Append(Piece);
}

class Line_Cutter {
public:
    explicit Line_Cutter(const Line_Cut_Rule& Rule)
        : Rule_(Rule), Rows_{Rule.Grid.Y, Rule.Grid.TolY}, Columns_{Rule.Grid.X, Rule.Grid.TolX} {}

    // The pieces of a line into the output lists.
    void Cut(const WPoly& W);

private:
    struct Waiting {
        std::size_t Nb;    // its points are the last ones of the stack
        std::size_t Line;  // the next grid line that may cut it
    };

    template <typename Axis>
    Line_Range Lines_Of(const Axis& A, std::span<const WPt> Line) const;
    template <typename Axis>
    void Walk(const Axis& A, Double At, std::span<WPt> Line, Pieces& Out) const;
    template <typename Axis>
    void Cut_Along(const Axis& A, std::span<const WPt> Line, Pieces& Out) const;
    bool All_Fit(const Pieces& P) const;

    const Line_Cut_Rule& Rule_;
    Rows Rows_;
    Columns Columns_;
    Pieces By_Row_, Done_;
};

template <typename Axis>
Line_Range Line_Cutter::Lines_Of(const Axis& A, std::span<const WPt> Line) const {
    Double Low = A.Across(Line[0]), High = Low;
    for (const WPt& P : Line) {
        Low = std::min(Low, A.Across(P));
        High = std::max(High, A.Across(P));
    }
    return Lines_Between(A.Lines, Low - A.Tol, High + A.Tol);
}

// The pieces that one grid line leaves of a line. A crossing takes the place of the point before
// it, so that the next piece begins there. A vertex on the grid line ends a piece, unless the
// piece has just begun at it.
template <typename Axis>
void Line_Cutter::Walk(const Axis& A, Double At, std::span<WPt> Line, Pieces& Out) const {
    const std::size_t Last = Line.size() - 1;
    std::size_t Start = 0;
    for (std::size_t I = 0; I < Last; ++I) {
        const Seg_Cut C = A.Cut(Line[I], Line[I + 1], At);
        if (C.Code == 3 && !(I == Start && C.At == To_Pix(Line[I]))) {
            Out.Add(Line.subspan(Start, I + 2 - Start));
            Start = I + 1;
        } else if (C.Code == 2) {
            WPt Cut = Line[I];
            Cut.X = C.At.X;
            Cut.Y = C.At.Y;
            if (Rule_.Tags_Cuts) Cut.Tag = Tag_Cut;
            Out.Add(Line.subspan(Start, I + 1 - Start), {.X = C.At.X, .Y = C.At.Y, .Tag = Tag_Cut});
            Start = I;
            Line[I] = Cut;
        }
    }
    if (Start < Last) Out.Add(Line.subspan(Start));
}

template <typename Axis>
void Line_Cutter::Cut_Along(const Axis& A, std::span<const WPt> Line, Pieces& Out) const {
    const Line_Range Range = Lines_Of(A, Line);
    if (Range.First == Range.End) {
        Out.Add(Line);
        return;
    }
    std::vector<WPt> Stack(Line.begin(), Line.end());
    std::vector<Waiting> Open{{Line.size(), Range.First}};
    std::vector<WPt> Piece;
    Pieces Cut;
    while (!Open.empty()) {
        auto [Nb, K] = Open.back();
        Open.pop_back();
        const auto First = Stack.end() - static_cast<std::ptrdiff_t>(Nb);
        Piece.assign(First, Stack.end());
        Stack.erase(First, Stack.end());
        const Line_Range Own = Lines_Of(A, Piece);
        Cut.Clear();
        for (K = std::max(K, Own.First); K < Own.End && Cut.End.size() < 2; ++K) {
            Cut.Clear();
            Walk(A, A.Lines[K], Piece, Cut);
        }
        if (Cut.End.size() < 2) {
            Out.Add(Piece);
            continue;
        }
        for (std::size_t N = Cut.End.size(); N-- > 0;) {
            Stack.insert(Stack.end(), Cut[N].begin(), Cut[N].end());
            Open.push_back({Cut[N].size(), K});
        }
    }
}

bool Line_Cutter::All_Fit(const Pieces& P) const {
    for (std::size_t K = 0; K < P.End.size(); ++K)
        if (!Rule_.Fits(P[K])) return false;
    return true;
}

void Line_Cutter::Cut(const WPoly& W) {
    const auto Line = Tab_WPt.Rows().subspan(static_cast<std::size_t>(W.First - 1),
                                             static_cast<std::size_t>(W.Nb));
    Done_.Clear();
    const bool Skips_Rows = Rule_.Skips_Rows && Rule_.Skips_Rows(*W.Attr);
    if (Skips_Rows) Cut_Along(Columns_, Line, Done_);
    if (!Skips_Rows || !All_Fit(Done_)) {
        By_Row_.Clear();
        Done_.Clear();
        Cut_Along(Rows_, Line, By_Row_);
        for (std::size_t K = 0; K < By_Row_.End.size(); ++K) Cut_Along(Columns_, By_Row_[K], Done_);
    }
    for (std::size_t K = 0; K < Done_.End.size(); ++K) Append_Piece(W, Done_[K]);
}

}  // namespace

void Line_Cut(const Line_Cut_Rule& Rule) {
    Tab_NPoly.Dimension(Nb_WPoly);
    Tab_NPt.Dimension(Nb_WPt);
    Line_Cutter Cutter(Rule);
    for (const WPoly& W : Tab_WPoly.Rows()) Cutter.Cut(W);
    WPoly_Commit();
}

void Line_Emit_Piece(Long Poly, Long First, Long Last) {
    Append_Piece(Tab_WPoly[Poly],
                 Tab_WPt.Rows().subspan(static_cast<std::size_t>(First - 1),
                                        static_cast<std::size_t>(Last - First + 1)));
}
