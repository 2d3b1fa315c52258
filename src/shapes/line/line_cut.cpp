// shapes/line/line_cut.cpp - each line along its own rows and columns.
//
// A grid line changes only segments that it touches, and the pieces of a line stay in its place.
// Grid lines lie much further apart than their tolerance. So each segment is cut along the grid
// lines that touch it before the next one is looked at, with the same result as if each grid line
// were taken across all lines in turn.
#include "shapes/line/line_cut.h"

#include <algorithm>
#include <vector>

#include "shapes/poly/poly_cut.h"

namespace {

// A point of a line that is being cut.
struct Joint {
    WPt P;         // inside a piece, or as its first point
    Byte End_Tag;  // its tag as the last point of a piece
    bool Begins;   // a piece begins here, and the one before it ends
};

// The grid lines of one direction, seen so that both directions have one rule.
struct Rows {
    std::span<const Double> Lines;
    Double Tol;

    static Double Across(const WPt& P) { return P.Y; }
    static Double Across(const Joint& J) { return J.P.Y; }
    Seg_Cut Cut(const WPt& P1, const WPt& P2, Double Line) const {
        return Seg_Cut_Horiz(To_Pix(P1), To_Pix(P2), Line, Tol);
    }
};

struct Columns {
    std::span<const Double> Lines;
    Double Tol;

    static Double Across(const WPt& P) { return P.X; }
    static Double Across(const Joint& J) { return J.P.X; }
    Seg_Cut Cut(const WPt& P1, const WPt& P2, Double Line) const {
        return Seg_Cut_Vert(To_Pix(P1), To_Pix(P2), Line, Tol);
    }
};

// Pieces one behind the other: piece K is the points from End[K - 1] to before End[K].
struct Pieces {
    std::vector<WPt> Points;
    std::vector<std::size_t> End;

    std::span<const WPt> operator[](std::size_t K) const {
        const std::size_t First = K == 0 ? 0 : End[K - 1];
        return std::span(Points).subspan(First, End[K] - First);
    }
};

void Append_Piece(const WPoly& Like, std::span<const WPt> Points) {
    WPoly Piece = Like;
    Piece.First = Nb_NPt + 1;
    std::ranges::copy(Points, Tab_NPt.Append_Rows(Points.size()).begin());
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
    void Load(std::span<const WPt> Line);
    template <typename Axis>
    void Cut_Along(const Axis& A);
    template <typename Axis>
    void Cut_Segment(const Axis& A, std::span<const Double> Lines, const Joint& From, Joint& To);
    void List_Pieces();
    bool All_Fit() const;

    const Line_Cut_Rule& Rule_;
    Rows Rows_;
    Columns Columns_;
    std::vector<Joint> Line_, With_Cuts_;
    Pieces Done_;
};

template <typename Axis, typename Points>
Line_Range Lines_Of(const Axis& A, const Points& Line) {
    Double Low = A.Across(Line[0]), High = Low;
    for (const auto& P : Line) {
        Low = std::min(Low, A.Across(P));
        High = std::max(High, A.Across(P));
    }
    return Lines_Between(A.Lines, Low - A.Tol, High + A.Tol);
}

bool Is_Empty(const Line_Range& R) {
    return R.First == R.End;
}

void Line_Cutter::Load(std::span<const WPt> Line) {
    Line_.clear();
    Line_.reserve(Line.size());
    for (const WPt& P : Line) Line_.push_back({P, P.Tag, false});
    Line_.front().Begins = true;
}

// The cuts of a segment behind its first point. What an earlier grid line has cut off lies north
// or west of the later ones, so these may cut the part behind the last cut when the segment runs
// south or east, else the part before it. A crossing begins a piece. A vertex on a grid line ends
// a piece, unless the piece has just begun at it.
template <typename Axis>
void Line_Cutter::Cut_Segment(const Axis& A, std::span<const Double> Lines, const Joint& From,
                              Joint& To) {
    const bool Ascends = A.Across(From) < A.Across(To);
    const auto First_Cut = static_cast<std::ptrdiff_t>(With_Cuts_.size());
    WPt P1 = From.P, P2 = To.P;
    for (const Double Line : Lines) {
        const Seg_Cut C = A.Cut(P1, P2, Line);
        if (C.Code == Meet::Cross) {
            const Byte Tag = Rule_.Tags_Cuts ? Tag_Cut : P1.Tag;
            const WPt At{.X = C.At.X, .Y = C.At.Y, .Tag = Tag};
            With_Cuts_.push_back({At, Tag_Cut, true});
            (Ascends ? P1 : P2) = At;
        } else if (C.Code == Meet::End) {
            // Where a cut stands before To, a piece has begun already.
            const bool Is_Whole = To_Pix(P2) == To_Pix(To.P);
            const bool Just_Begun = From.Begins && C.At == To_Pix(From.P);
            if (Is_Whole && !Just_Begun) To.Begins = true;
        }
    }
    if (!Ascends) std::reverse(With_Cuts_.begin() + First_Cut, With_Cuts_.end());
}

// The first grid line of a segment is looked for from that of the segment before it.
template <typename Axis>
void Line_Cutter::Cut_Along(const Axis& A) {
    const Line_Range Range = Lines_Of(A, Line_);
    if (Is_Empty(Range)) return;
    With_Cuts_.clear();
    With_Cuts_.reserve(Line_.size());
    std::size_t First = Range.First;
    for (std::size_t I = 0; I + 1 < Line_.size(); ++I) {
        With_Cuts_.push_back(Line_[I]);
        const Double V1 = A.Across(Line_[I]), V2 = A.Across(Line_[I + 1]);
        const Double Low = std::min(V1, V2) - A.Tol, High = std::max(V1, V2) + A.Tol;
        while (First > Range.First && A.Lines[First - 1] >= Low) --First;
        while (First < Range.End && A.Lines[First] < Low) ++First;
        std::size_t End = First;
        while (End < Range.End && A.Lines[End] <= High) ++End;
        if (First < End)
            Cut_Segment(A, A.Lines.subspan(First, End - First), Line_[I], Line_[I + 1]);
    }
    With_Cuts_.push_back(Line_.back());
    Line_.swap(With_Cuts_);
}

void Line_Cutter::List_Pieces() {
    Done_.Points.clear();
    Done_.End.clear();
    Done_.Points.push_back(Line_[0].P);
    for (std::size_t I = 1; I < Line_.size(); ++I) {
        const Joint& J = Line_[I];
        const bool Is_Last = I + 1 == Line_.size();
        if (!J.Begins && !Is_Last) {
            Done_.Points.push_back(J.P);
            continue;
        }
        Done_.Points.push_back({.X = J.P.X, .Y = J.P.Y, .Tag = J.End_Tag});
        Done_.End.push_back(Done_.Points.size());
        if (!Is_Last) Done_.Points.push_back(J.P);
    }
}

bool Line_Cutter::All_Fit() const {
    for (std::size_t K = 0; K < Done_.End.size(); ++K)
        if (!Rule_.Fits(Done_[K])) return false;
    return true;
}

void Line_Cutter::Cut(const WPoly& W) {
    const auto Line = Tab_WPt.Rows().subspan(static_cast<std::size_t>(W.First - 1),
                                             static_cast<std::size_t>(W.Nb));
    if (Is_Empty(Lines_Of(Rows_, Line)) && Is_Empty(Lines_Of(Columns_, Line)))
        return Append_Piece(W, Line);
    bool Skips_Rows = Rule_.Skips_Rows && Rule_.Skips_Rows(*W.Attr);
    if (Skips_Rows) {
        Load(Line);
        Cut_Along(Columns_);
        List_Pieces();
        Skips_Rows = All_Fit();
    }
    if (!Skips_Rows) {
        Load(Line);
        Cut_Along(Rows_);
        Cut_Along(Columns_);
        List_Pieces();
    }
    for (std::size_t K = 0; K < Done_.End.size(); ++K) Append_Piece(W, Done_[K]);
}

}  // namespace

void Line_Cut(const Line_Cut_Rule& Rule) {
    Tab_NPoly.Dimension(Nb_WPoly);
    Tab_NPt.Dimension(Nb_WPt);
    Tab_NPoly.Reserve(Nb_WPoly);
    Tab_NPt.Reserve(Nb_WPt);
    Line_Cutter Cutter(Rule);
    for (const WPoly& W : Tab_WPoly.Rows()) Cutter.Cut(W);
    WPoly_Commit();
}

void Line_Emit_Piece(Long Poly, Long First, Long Last) {
    Append_Piece(Tab_WPoly[Poly],
                 Tab_WPt.Rows().subspan(static_cast<std::size_t>(First - 1),
                                        static_cast<std::size_t>(Last - First + 1)));
}
