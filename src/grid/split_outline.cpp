// grid/split_outline.cpp - finding and taking off runs without looking at the whole outline again.
#include "grid/split_outline.h"

#include "grid/turn.h"

void Split_Outline::Load(std::span<const Pix> Points) {
    Point_.assign(Points.begin(), Points.end());
    Nb_ = static_cast<Long>(Points.size());
    First_ = 0;
    Nb_Reflex_ = 0;
    Size_ = Size_Of(Points);
    Next_.resize(Points.size());
    Prev_.resize(Points.size());
    for (Long V = 0; V < Nb_; ++V) {
        Next_[Ix(V)] = V + 1 == Nb_ ? 0 : V + 1;
        Prev_[Ix(V)] = V == 0 ? Nb_ - 1 : V - 1;
    }
    for (auto* Links : {&Blocker_, &First_Blocked_, &Next_Blocked_, &Prev_Blocked_})
        Links->assign(Points.size(), None);
    Reflex_.Reset(Nb_);
    Open_.Reset(Nb_);
    for (Long V = 0; V < Nb_; ++V) {
        if (Turn(At(Prev(V)), At(V), At(Next(V)), Size_) == 1) {
            Reflex_.Add(V);
            ++Nb_Reflex_;
        } else {
            Open_.Add(V);
        }
    }
    if (Is_Convex()) return;
    Boxes_.Reset(Nb_);
    for (Long V = 0; V < Nb_; ++V) Boxes_.Put(V, At(V), At(Next(V)));
    Boxes_.Refresh_All();
}

Long Split_Outline::Find_Start() {
    const Long Reflex = Reflex_.Next_Round(First_);
    for (Long V = Open_.Next_Round(Reflex);; V = Open_.Next_Round(V)) {
        if (V < 0) return None;
        const Long E = Crossed_Edge(Prev(V), Next(V));
        if (E < 0) return V;
        Block(V, E);
    }
}

// An edge whose ends lie on one side of the line cannot cross it, unless the rounding of the
// meeting point comes into it (see Edge_Boxes); only then it takes the real test. The point
// strays from the line as much as the edge's slope lets it, and from the edge as much as the
// line's. Compared after multiplying by the edge's extent in X, which saves a division; an
// upright edge always takes the real test.
bool Split_Outline::Meets_Diag(Long E, const Diag& D) const {
    const Pix P1 = At(E), P2 = At(Next(E));
    const Double ex = std::abs(P2.X - P1.X), ey = std::abs(P2.Y - P1.Y);
    const Double Z1 = D.dx * (P1.Y - D.A.Y) - D.dy * (P1.X - D.A.X);
    const Double Z2 = D.dx * (P2.Y - D.A.Y) - D.dy * (P2.X - D.A.X);
    const Double Margin = ex * D.Margin + ey * D.Margin_A_Slope;
    if ((Z1 * ex > Margin && Z2 * ex > Margin) || (Z1 * ex < -Margin && Z2 * ex < -Margin))
        return false;
    return Seg_Cross(P1, P2, D.A, D.B).Code == 2;
}

// Some edge that the line from A to B crosses, or -1.
Long Split_Outline::Crossed_Edge(Long A, Long B) {
    const Long Before = Prev(A);
    if (B == Before || Next(B) == Before) return None;
    const Diag D(At(A), At(B), Size_);
    Long Found = None;
    Boxes_.Any_Near(D.A, D.B, Size_, {Before, B + 1}, [&](Long E) {
        if (Meets_Diag(E, D)) Found = E;
        return Found >= 0;
    });
    return Found;
}

void Split_Outline::Cut(Long A, Long B) {
    Free_Blocked_By(A);
    for (Long V = Next(A), Before = A; V != B; Before = V, V = Next(V)) {
        Take_Out(V);
        if (!Edge_Boxes::Share_Node(Before, V)) Boxes_.Refresh(Before);
        if (Next(V) == B) Boxes_.Refresh(V);
    }
    Next_[Ix(A)] = B;
    Prev_[Ix(B)] = A;
    First_ = A;
    Boxes_.Put(A, At(A), At(B));
    Boxes_.Refresh(A);
    Renew(A);
    Renew(B);
}

// Looks at the turn of V again after one of its neighbours has changed.
void Split_Outline::Renew(Long V) {
    Unblock(V);
    const bool Is_Now = Turn(At(Prev(V)), At(V), At(Next(V)), Size_) == 1;
    if (Is_Now != Reflex_.Has(V)) Nb_Reflex_ += Is_Now ? 1 : -1;
    if (Is_Now) {
        Reflex_.Add(V);
        Open_.Remove(V);
    } else {
        Reflex_.Remove(V);
        Open_.Add(V);
    }
}

void Split_Outline::Take_Out(Long V) {
    Unblock(V);
    Free_Blocked_By(V);
    if (Reflex_.Has(V)) {
        Reflex_.Remove(V);
        --Nb_Reflex_;
    }
    Open_.Remove(V);
    Boxes_.Drop(V);
    --Nb_;
}

void Split_Outline::Block(Long V, Long E) {
    Open_.Remove(V);
    const Long Other = First_Blocked_[Ix(E)];
    Blocker_[Ix(V)] = E;
    Prev_Blocked_[Ix(V)] = None;
    Next_Blocked_[Ix(V)] = Other;
    if (Other >= 0) Prev_Blocked_[Ix(Other)] = V;
    First_Blocked_[Ix(E)] = V;
}

void Split_Outline::Unblock(Long V) {
    const Long E = Blocker_[Ix(V)];
    if (E < 0) return;
    Blocker_[Ix(V)] = None;
    const Long Before = Prev_Blocked_[Ix(V)], After = Next_Blocked_[Ix(V)];
    if (Before >= 0)
        Next_Blocked_[Ix(Before)] = After;
    else
        First_Blocked_[Ix(E)] = After;
    if (After >= 0) Prev_Blocked_[Ix(After)] = Before;
}

// Edge E is no more, so the points that it blocked may be free.
void Split_Outline::Free_Blocked_By(Long E) {
    while (First_Blocked_[Ix(E)] >= 0) {
        const Long V = First_Blocked_[Ix(E)];
        Unblock(V);
        Open_.Add(V);
    }
}
