// shapes/poly/poly_split.cpp - convex runs taken off an outline until the rest is convex.
//
// Two passes are run, the second over the pieces of the first; as pieces keep their polygon's
// place, both are run for one polygon before the next.
#include "shapes/poly/poly_split.h"

#include <span>
#include <vector>

#include "core/host.h"
#include "core/number_text.h"
#include "core/work.h"
#include "geometry/ear_clip.h"
#include "geometry/segments.h"
#include "shapes/poly/cut_view.h"
#include "shapes/poly/split_outline.h"

namespace {

// Twice the signed area of a piece may be this far below 0, in square pixels.
constexpr Double Area_Slack = 1e-6;

// The pieces of one polygon, one after the other.
class Piece_List {
public:
    void Clear() {
        Point_.clear();
        Piece_.clear();
        Is_Sound_ = true;
    }
    void Add(Pix P) { Point_.push_back(P); }
    // Ends the piece. Final: the second pass would copy it.
    void End(bool Final) {
        const std::size_t First = Piece_.empty() ? 0 : Piece_.back().End;
        Piece_.push_back({Point_.size(), Final});
        Is_Sound_ = Is_Sound_ && Twice_Area(std::span(Point_).subspan(First)) >= -Area_Slack;
    }

    bool Is_Sound() const { return Is_Sound_; }
    std::size_t Nb() const { return Piece_.size(); }
    bool Is_Final(std::size_t K) const { return Piece_[K].Final; }
    std::span<const Pix> Points(std::size_t K) const {
        const std::size_t First = K == 0 ? 0 : Piece_[K - 1].End;
        return std::span(Point_).subspan(First, Piece_[K].End - First);
    }

private:
    static Double Twice_Area(std::span<const Pix> P) {
        Double Sum = 0.0;
        for (std::size_t I = 0; I < P.size(); ++I) {
            const Pix P1 = P[I], P2 = P[I + 1 == P.size() ? 0 : I + 1];
            Sum += P1.X * P2.Y - P2.X * P1.Y;
        }
        return Sum;
    }

    struct Mark {
        std::size_t End;
        bool Final;
    };
    std::vector<Pix> Point_;
    std::vector<Mark> Piece_;
    bool Is_Sound_ = true;
};

class Splitter {
public:
    explicit Splitter(Long Limit) : Limit_(Limit) {}

    // The pieces of an outline after one pass.
    void Split(std::span<const Pix> Points, Piece_List& Pieces);

    // One step, as the label counts them.
    void Count();
    Long Counter() const { return Counter_; }

private:
    bool Split_Plain(std::span<const Pix> Points, Piece_List& Pieces);
    bool Take_Run(Piece_List& Pieces);
    Long End_Of_Run(Long A, Long V);
    bool Bends_Well(Long A, Long W, Long N) const;
    void Divide_Convex(Piece_List& Pieces);
    void Copy_Run(Long Start, Long N, Piece_List& Pieces);

    Long Limit_;
    Long Counter_ = 0;
    Split_Outline Line_;
    std::vector<Pix> Rest_;
};

// The label shows the count of steps; a host that paints seldom need not be told of each, as
// there are millions.
void Splitter::Count() {
    if (++Counter_ % 1024 == 0) {
        The_Host().Set_Caption("LCompile", Num_Text(Counter_));
        The_Host().Refresh();
    }
}

void Splitter::Split(std::span<const Pix> Points, Piece_List& Pieces) {
    Pieces.Clear();
    if (Split_Plain(Points, Pieces) && Pieces.Is_Sound()) return;
    Pieces.Clear();
    for (const Ear& E : Ear_Clip(Points)) {
        for (const Long V : E) Pieces.Add(Points[static_cast<std::size_t>(V)]);
        Pieces.End(false);
    }
}

// False when the walk round the outline would never end.
bool Splitter::Split_Plain(std::span<const Pix> Points, Piece_List& Pieces) {
    Count();
    if (Points.size() < 4) {
        for (const Pix P : Points) Pieces.Add(P);
        Pieces.End(true);
        return true;
    }
    for (Line_.Load(Points); !Line_.Is_Convex() && Line_.Nb() >= 4; Count())
        if (!Take_Run(Pieces)) return false;
    Rest_.clear();
    for (Long I = 0, V = Line_.First(); I < Line_.Nb(); ++I, V = Line_.Next(V))
        Rest_.push_back(Line_.At(V));
    if (Line_.Nb() < 4 || Line_.Nb() < Limit_)
        Copy_Run(1, Line_.Nb() - 1, Pieces);
    else
        Divide_Convex(Pieces);
    return true;
}

// Takes the first run off that the walk comes to. False when it would never come to one.
bool Splitter::Take_Run(Piece_List& Pieces) {
    const Long Start = Line_.Find_Start();
    if (Start < 0) return false;
    const Long A = Line_.Prev(Start);
    const Long B = End_Of_Run(A, Start);
    Long Nb = 1;
    for (Long V = A; V != B; V = Line_.Next(V), ++Nb) Pieces.Add(Line_.At(V));
    Pieces.Add(Line_.At(B));
    // A run is convex as it stands; only a large one has work for the second pass.
    Pieces.End(Nb < Limit_);
    if (The_Cut_View.Run_Taken_Off != nullptr)
        The_Cut_View.Run_Taken_Off(Pieces.Points(Pieces.Nb() - 1));
    Line_.Cut(A, B);
    return true;
}

// The run from A over V grows while the line from its end to A keeps it convex and crosses
// nothing. (Where the run would not be convex, it would have to be looked at whether its last
// point lies inside it; but only runs of up to 3 points go on then, and this one has 4.)
Long Splitter::End_Of_Run(Long A, Long V) {
    Long W = Line_.Next(V);
    while (!Line_.Is_Reflex(W)) {
        const Long N = Line_.Next(W);
        if (!Bends_Well(A, W, N) || Line_.Diag_Crosses(A, N)) break;
        W = N;
    }
    return W;
}

// Whether the run from A to N, W before it, has no left turn when closed. Inside the run there
// is none; it has been looked at on the way.
bool Splitter::Bends_Well(Long A, Long W, Long N) const {
    const Pix From = Line_.At(A), To = Line_.At(N);
    return Sens_3Pts(To, From, Line_.At(Line_.Next(A))) != 1 &&
           Sens_3Pts(Line_.At(W), To, From) != 1;
}

// A large convex polygon as fans from its first point.
void Splitter::Divide_Convex(Piece_List& Pieces) {
    const auto Nb = static_cast<Long>(Rest_.size());
    const Long H = Limit_ / 2 - 5;
    const Long Nb_Piece = Nb / H + (Nb % H != 0 ? 1 : 0);
    const Long Size = Nb / Nb_Piece;
    const Long Over = Nb - Nb_Piece * Size;
    Long Start = 1;
    for (Long P = 1; P <= Nb_Piece; ++P) {
        Long M = Size;
        if (P == 1 && (Over == 1 || Over == 2))
            M = 2;
        else if (P == Nb_Piece)
            M = Nb - Start + 1;
        Copy_Run(Start, M, Pieces);
        Start = Start + M - 1;
    }
}

// The points at places Start to Start + N - 1 of the rest, and one more: a run from the
// beginning goes on by one, any other is closed with the first point.
void Splitter::Copy_Run(Long Start, Long N, Piece_List& Pieces) {
    const auto At = [&](Long Place) { return Rest_[static_cast<std::size_t>(Place - 1)]; };
    for (Long Place = Start; Place < Start + N; ++Place) Pieces.Add(At(Place));
    Pieces.Add(At(Start == 1 || N == 1 ? N + 1 : 1));
    const bool Whole = N + 1 == static_cast<Long>(Rest_.size()) && Start == 1;
    Pieces.End(Whole);
}

}  // namespace

void Poly_Split_Max(Long Limit) {
    The_Host().Set_Caption("LCompileNom", "Concave/convexe");
    The_Host().Refresh();
    Tab_NPoly.Dimension(Nb_WPoly + 10);
    Tab_NPt.Dimension(Nb_WPt);
    Tab_NPoly.Reserve(Nb_WPt);
    Tab_NPt.Reserve(Room_For_Points(Nb_WPt));
    Splitter Both_Passes(Limit);
    Piece_List Pieces, Second;
    std::vector<Pix> Points;
    Long Nb_Done = 0;
    for (const WPoly& W : Tab_WPoly.Rows()) {
        Work_At(0.5 * Nb_Done++ / Nb_WPoly);
        Points.clear();
        for (Long I = W.First; I <= W.Last; ++I) Points.push_back({Tab_WPt[I].X, Tab_WPt[I].Y});
        Both_Passes.Split(Points, Pieces);
        for (std::size_t K = 0; K < Pieces.Nb(); ++K) {
            if (Pieces.Is_Final(K)) {
                Both_Passes.Count();
                NPoly_Append(W, Pieces.Points(K));
                continue;
            }
            Both_Passes.Split(Pieces.Points(K), Second);
            for (std::size_t S = 0; S < Second.Nb(); ++S) NPoly_Append(W, Second.Points(S));
        }
    }
    The_Host().Set_Caption("LCompile", Num_Text(Both_Passes.Counter()));
    The_Host().Refresh();
    WPoly_Commit();
}
