// shapes/poly/poly_cut.cpp - each polygon along its own lines.
//
// A line changes only polygons that it touches, and the pieces of a polygon stay in its place.
// So each polygon is cut along all its lines before the next one is looked at, with the same
// result as if each line were taken across all polygons in turn.
#include "shapes/poly/poly_cut.h"

#include <algorithm>
#include <vector>

#include "core/host.h"
#include "core/work.h"
#include "grid/grid_lines.h"
#include "shapes/poly/convex_cut.h"
#include "shapes/poly/cut_view.h"
#include "shapes/poly/poly_collect.h"

namespace {

// Passes in their order: all parallels, then all meridians. No pass fails at first.
constexpr std::size_t No_Pass = static_cast<std::size_t>(-1);

class Grid_Cutter {
public:
    Grid_Cutter(const Grid_Lines& Lines, std::size_t End_Pass, Piece_Sink& To)
        : Lines_(Lines), To_(To), End_Pass_(End_Pass) {}

    // The pieces of a polygon after all passes before End_Pass.
    void Cut(const WPoly& W);

    // The earliest pass that could not be done, or No_Pass.
    std::size_t Failed_Pass() const { return Failed_; }

private:
    struct Waiting {
        std::size_t Nb;    // its points are the last ones of the stack
        std::size_t Line;  // the next line that may cut it
    };

    // What a cut in one direction works on; kept from polygon to polygon.
    struct Scratch {
        Two_Pieces Two;
        std::vector<Waiting> Open;
        std::vector<Pix> Piece;
    };

    // From where to where a line may stand that a polygon has to do with.
    struct Extent {
        Double Low, High;
    };

    template <typename Axis>
    void Cut_Along(const Axis& A, std::size_t First_Pass, std::span<const Pix> Polygon);
    template <typename Axis>
    Cut_Result Cut_Piece(const Axis& A, std::size_t First_Pass, std::size_t& Line, Scratch& S);
    template <typename Axis>
    static Extent Extent_Of(const Axis& A, std::span<const Pix> Polygon);
    Scratch& Scratch_Of(const Parallels&) { return By_Parallel_; }
    Scratch& Scratch_Of(const Meridians&) { return By_Meridian_; }
    void Done(const Parallels&, std::span<const Pix> Piece) {
        Cut_Along(Meridians{Lines_.X, Lines_.TolX, Lines_.TolY}, Lines_.Y.size(), Piece);
    }
    void Done(const Meridians&, std::span<const Pix> Piece) { To_.Take(*Source_, Piece); }

    const Grid_Lines& Lines_;
    Piece_Sink& To_;
    std::size_t End_Pass_;
    std::size_t Failed_ = No_Pass;
    const WPoly* Source_ = nullptr;
    std::vector<Pix> Points_;
    Scratch By_Parallel_, By_Meridian_;
};

void Grid_Cutter::Cut(const WPoly& W) {
    Source_ = &W;
    Points_.clear();
    for (Long I = W.First; I <= W.Last; ++I) Points_.push_back(To_Pix(Tab_WPt[I]));
    Cut_Along(Parallels{Lines_.Y, Lines_.TolX, Lines_.TolY}, 0, Points_);
}

template <typename Axis>
Grid_Cutter::Extent Grid_Cutter::Extent_Of(const Axis& A, std::span<const Pix> Polygon) {
    Double Low = A.Across(Polygon[0]), High = Low;
    for (const Pix P : Polygon) {
        Low = std::min(Low, A.Across(P));
        High = std::max(High, A.Across(P));
    }
    return {Low - A.Tol, High + A.Tol};
}

// Takes the piece to the next line that changes it, from Line on. Line is then the one behind.
template <typename Axis>
Cut_Result Grid_Cutter::Cut_Piece(const Axis& A, std::size_t First_Pass, std::size_t& Line,
                                  Scratch& S) {
    const Extent E = Extent_Of(A, S.Piece);
    while (Line < A.Lines.size() && A.Lines[Line] < E.Low) ++Line;
    while (Line < A.Lines.size() && A.Lines[Line] <= E.High && First_Pass + Line < End_Pass_) {
        const Cut_Result Result = Convex_Cut(A, A.Lines[Line++], S.Piece, S.Two);
        if (Result != Cut_Result::Whole) return Result;
    }
    return Cut_Result::Whole;
}

template <typename Axis>
void Grid_Cutter::Cut_Along(const Axis& A, std::size_t First_Pass, std::span<const Pix> Polygon) {
    const Extent E = Extent_Of(A, Polygon);
    const Line_Range Range = Lines_Between(A.Lines, E.Low, E.High);
    if (Range.First == Range.End) {
        Done(A, Polygon);
        return;
    }
    Scratch& S = Scratch_Of(A);
    std::vector<Pix>& Stack = S.Two.Stack;
    Stack.assign(Polygon.begin(), Polygon.end());
    S.Open.assign(1, {Polygon.size(), Range.First});
    while (!S.Open.empty()) {
        auto [Nb, Line] = S.Open.back();
        S.Open.pop_back();
        S.Piece.assign(Stack.end() - static_cast<std::ptrdiff_t>(Nb), Stack.end());
        Stack.resize(Stack.size() - Nb);
        switch (Cut_Piece(A, First_Pass, Line, S)) {
            case Cut_Result::Whole:
                Done(A, S.Piece);
                break;
            case Cut_Result::Two:
                S.Open.push_back({S.Two.Nb_Second, Line});
                S.Open.push_back({S.Two.Nb_First, Line});
                break;
            case Cut_Result::Too_Often:
                // No pass from this one on counts; an earlier one may fail yet.
                Failed_ = End_Pass_ = First_Pass + Line - 1;
                break;
        }
    }
}

std::size_t Cut_All(const Grid_Lines& Lines, std::size_t End_Pass, Piece_Sink& To) {
    To.Begin();
    Grid_Cutter Cutter(Lines, End_Pass, To);
    Long Nb_Done = 0;
    for (const WPoly& W : Tab_WPoly.Rows()) {
        Work_At(0.5 + 0.5 * Nb_Done++ / Nb_WPoly);
        Cutter.Cut(W);
    }
    return Cutter.Failed_Pass();
}

struct Output_Lists final : Piece_Sink {
    void Begin() override {
        Tab_NPoly.Dimension(Nb_WPoly);
        Tab_NPt.Dimension(Nb_WPt);
    }
    void Take(const WPoly& Like, std::span<const Pix> Points) override {
        NPoly_Append(Like, Points);
    }
};

// Shows the pieces on their way. Those of a pass that fails show as well.
struct Shown final : Piece_Sink {
    explicit Shown(Piece_Sink& To) : To_(To) {}
    void Begin() override { To_.Begin(); }
    void Take(const WPoly& Like, std::span<const Pix> Points) override {
        The_Cut_View.Piece_Cut(Points);
        To_.Take(Like, Points);
    }
    Piece_Sink& To_;
};

}  // namespace

void Poly_Cut_Cells(Int Mode, Piece_Sink& To) {
    The_Host().Set_Caption("LCompileNom", "Lod8/13 cut");
    The_Host().Refresh();
    const Grid_Lines Lines = Grid_Lines_Of(Mode == Mode_VTP2 ? Polys_By_Area : Polys_By_Cell);
    Shown Watched(To);
    Piece_Sink& Sink = The_Cut_View.Piece_Cut != nullptr ? Watched : To;
    std::size_t End_Pass = No_Pass;
    for (std::size_t Failed = 0; (Failed = Cut_All(Lines, End_Pass, Sink)) != No_Pass;)
        End_Pass = Failed;
    if (End_Pass == No_Pass) return;
    Plain_Box(End_Pass < Lines.Y.size() ? "Anormal Lat decoupe LOD13_8"
                                        : "Anormal Lon decoupe LOD13_8");
}

void Poly_Cut_Cells(Int Mode) {
    Output_Lists Lists;
    Poly_Cut_Cells(Mode, Lists);
    WPoly_Commit();
}
