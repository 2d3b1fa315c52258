// geometry/edge_sweep.cpp - the order of the edges along a moving line.
#include "geometry/edge_sweep.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <set>

#include "geometry/exact_turn.h"

namespace {

constexpr Double Largest = 1e9;  // coordinates beyond give no order to rely on
constexpr Double Roundings = 256 * std::numeric_limits<Double>::epsilon();

bool Lies_Before(Pix A, Pix B) {
    return A.X != B.X ? A.X < B.X : A.Y < B.Y;
}

// An edge has the number of the point that it leaves.
class Sweep {
public:
    explicit Sweep(const Edge_Outlines& Lines);
    Edge_Order Run();

private:
    struct Edge {
        Pix A, B;  // west and east; of an upright one north and south
        Double Slope = 0.0, Stray = 0.0;
        Long Outline = 0;
        bool Eastward = true;

        Double Y_At(Double X) const {
            return X == A.X ? A.Y : X == B.X ? B.Y : A.Y + (X - A.X) * Slope;
        }
        Double High(Double X) const { return A.X == B.X ? B.Y : Y_At(X); }
    };
    struct Comes_First {
        const Sweep* Of;
        bool operator()(Long E, Long F) const { return Of->Is_North(E, F); }
    };
    using Order = std::set<Long, Comes_First>;

    const Edge& At(Long E) const { return Edge_[static_cast<std::size_t>(E)]; }
    Long First(Long K) const {
        return static_cast<Long>(Lines_.First[static_cast<std::size_t>(K)]);
    }
    Long Nb(Long K) const { return First(K + 1) - First(K); }
    Long Nb_Edge(Long K) const { return Lines_.Closed ? Nb(K) : Nb(K) - 1; }
    Long Beside(Long E, Long Step) const;
    void Add_Edge(Long E, Long Next, Long Outline);
    bool Is_North(Long E, Long F) const;
    int Side(Long Later, Long Earlier) const;
    bool Share_Point(Long E, Long F) const;
    bool Are_Apart(Long E, Long F) const;
    bool Is_Clear(Long E, Long F) const;
    bool Folds() const;
    bool Outlines_Are_Clear() const;
    bool Insert(Long E);
    bool Remove(Long E);
    void Place_Outline(Long E, Order::const_iterator Place);

    Edge_Outlines Lines_;
    std::vector<Edge> Edge_;
    std::vector<Long> By_Start_, By_End_;
    Double Size_ = 1.0;
    Order Order_{Comes_First{this}};
    std::vector<Order::iterator> Place_;
    std::vector<Long> Around_;
    std::vector<char> Is_Placed_, East_Is_South_;
};

Sweep::Sweep(const Edge_Outlines& Lines)
    : Lines_(Lines), Edge_(Lines.Point.size()), Place_(Lines.Point.size()) {
    for (const Pix P : Lines.Point) Size_ = std::max({Size_, std::abs(P.X), std::abs(P.Y)});
    const auto Nb_Outline = static_cast<Long>(Lines.First.size()) - 1;
    for (Long K = 0; K < Nb_Outline; ++K)
        for (Long E = 0; E < Nb_Edge(K); ++E)
            Add_Edge(First(K) + E, First(K) + (E + 1 == Nb(K) ? 0 : E + 1), K);
    By_End_ = By_Start_;
    std::sort(By_Start_.begin(), By_Start_.end(), [&](Long E, Long F) {
        return At(E).A == At(F).A ? E < F : Lies_Before(At(E).A, At(F).A);
    });
    std::sort(By_End_.begin(), By_End_.end(),
              [&](Long E, Long F) { return At(E).B.X < At(F).B.X; });
    Around_.assign(static_cast<std::size_t>(Nb_Outline), -1);
    Is_Placed_.assign(Around_.size(), 0);
    East_Is_South_.assign(Around_.size(), 0);
}

void Sweep::Add_Edge(Long E, Long Next, Long Outline) {
    Edge& New = Edge_[static_cast<std::size_t>(E)];
    New.A = Lines_.Point[static_cast<std::size_t>(E)];
    New.B = Lines_.Point[static_cast<std::size_t>(Next)];
    New.Outline = Outline;
    New.Eastward = Lies_Before(New.A, New.B);
    if (!New.Eastward) std::swap(New.A, New.B);
    if (New.A.X != New.B.X) New.Slope = (New.B.Y - New.A.Y) / (New.B.X - New.A.X);
    New.Stray = Roundings * (std::abs(New.Slope) * Size_ + Size_);
    By_Start_.push_back(E);
}

// The edge some steps on along the outline; -1 beyond the ends of an open one.
Long Sweep::Beside(Long E, Long Step) const {
    const Long K = At(E).Outline, N = Nb_Edge(K);
    const Long To = E - First(K) + Step;
    if (Lines_.Closed) return First(K) + (To + N) % N;
    return 0 <= To && To < N ? First(K) + To : -1;
}

bool Sweep::Share_Point(Long E, Long F) const {
    return At(E).Outline == At(F).Outline && (E == F || Beside(E, 1) == F || Beside(F, 1) == E);
}

// Where the start of an edge lies beside one that started before: -1 north, 1 south.
int Sweep::Side(Long Later, Long Earlier) const {
    const Edge &N = At(Later), &O = At(Earlier);
    if (!(N.A == O.A)) {
        const int Turn = O.A.X == O.B.X ? 0 : Exact_Turn(O.A, O.B, N.A);
        return Turn == 0 ? 1 : Turn;
    }
    const int Turn = Exact_Turn(O.A, O.B, N.B);
    return Turn != 0 ? Turn : Later < Earlier ? -1 : 1;
}

bool Sweep::Is_North(Long E, Long F) const {
    if (E == F) return false;
    const bool E_Is_Later = At(E).A == At(F).A ? E > F : Lies_Before(At(F).A, At(E).A);
    return E_Is_Later ? Side(E, F) < 0 : Side(F, E) > 0;
}

// Over all X that both have.
bool Sweep::Are_Apart(Long E, Long F) const {
    const Edge &A = At(E), &B = At(F);
    const Double West = std::max(A.A.X, B.A.X), East = std::min(A.B.X, B.B.X);
    if (West > East) return true;
    const Double Room = A.Stray + B.Stray;
    const auto Is_Above = [&](const Edge& N, const Edge& S) {
        return S.Y_At(West) - N.High(West) > Room && S.Y_At(East) - N.High(East) > Room;
    };
    return Is_Above(A, B) || Is_Above(B, A);
}

// Two neighbours of the order, and those beside them in their outlines.
bool Sweep::Is_Clear(Long E, Long F) const {
    if (Share_Point(E, F)) return true;
    for (const Long I : {0, -1, 1})
        for (const Long J : {0, -1, 1}) {
            const Long By_E = Beside(E, I), By_F = Beside(F, J);
            if (By_E < 0 || By_F < 0 || Share_Point(By_E, By_F)) continue;
            if (!Are_Apart(By_E, By_F)) return false;
        }
    return true;
}

// Whether an outline comes straight back somewhere, so that two edges have no order.
bool Sweep::Folds() const {
    for (const Long E : By_Start_) {
        const Long F = Beside(E, 1);
        if (F < 0 || Nb(At(E).Outline) < 3) continue;
        const Pix P1 = At(E).Eastward ? At(E).A : At(E).B, P2 = At(E).Eastward ? At(E).B : At(E).A;
        const Pix P3 = At(F).Eastward ? At(F).B : At(F).A;
        if (P1 == P2 || P2 == P3) return true;
        if (Exact_Turn(P1, P2, P3) == 0 && At(E).Eastward != At(F).Eastward) return true;
    }
    return false;
}

// Edges two and three steps apart: the order may never show them side by side.
bool Sweep::Outlines_Are_Clear() const {
    for (const Long E : By_Start_)
        for (const Long Step : {2, 3}) {
            if (Nb_Edge(At(E).Outline) <= Step) continue;
            const Long F = Beside(E, Step);
            if (F >= 0 && !Share_Point(E, F) && !Are_Apart(E, F)) return false;
        }
    return true;
}

// The first edge of an outline shows, by the one north of it, what the outline lies in.
void Sweep::Place_Outline(Long E, Order::const_iterator Place) {
    const auto K = static_cast<std::size_t>(At(E).Outline);
    if (Is_Placed_[K] != 0 || !Lines_.Closed) return;
    Is_Placed_[K] = 1;
    const Long Out = At(E).Eastward ? E : Beside(E, 1), In = Beside(Out, -1);
    East_Is_South_[K] = Is_North(In, Out) ? 1 : 0;
    if (Place == Order_.begin()) return;
    const Edge& North = At(*std::prev(Place));
    const auto G = static_cast<std::size_t>(North.Outline);
    const bool Inside = Nb(North.Outline) >= 3 && North.Eastward != (East_Is_South_[G] != 0);
    Around_[K] = Inside ? North.Outline : Around_[G];
}

bool Sweep::Insert(Long E) {
    const auto [Place, Is_New] = Order_.insert(E);
    if (!Is_New) return false;
    Place_[static_cast<std::size_t>(E)] = Place;
    Place_Outline(E, Place);
    const auto After = std::next(Place);
    return (Place == Order_.begin() || Is_Clear(*std::prev(Place), E)) &&
           (After == Order_.end() || Is_Clear(E, *After));
}

bool Sweep::Remove(Long E) {
    const auto Place = Place_[static_cast<std::size_t>(E)];
    const auto After = Order_.erase(Place);
    return After == Order_.begin() || After == Order_.end() || Is_Clear(*std::prev(After), *After);
}

// What begins at an X comes before what ends there, so that edges which only touch are compared.
Edge_Order Sweep::Run() {
    if (Folds() || !Outlines_Are_Clear()) return {};
    auto End = By_End_.begin();
    for (const Long E : By_Start_) {
        for (; At(*End).B.X < At(E).A.X; ++End)
            if (!Remove(*End)) return {};
        if (!Insert(E)) return {};
    }
    for (; End != By_End_.end(); ++End)
        if (!Remove(*End)) return {};
    return {true, std::move(Around_)};
}

}  // namespace

Edge_Order Sweep_Edges(const Edge_Outlines& Lines) {
    const auto Is_Usual = [](Pix P) { return std::abs(P.X) < Largest && std::abs(P.Y) < Largest; };
    if (!std::ranges::all_of(Lines.Point, Is_Usual)) return {};
    return Sweep(Lines).Run();
}
