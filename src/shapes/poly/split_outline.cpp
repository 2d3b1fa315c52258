// shapes/poly/split_outline.cpp - finding and taking off runs without looking at the whole outline
// again.
#include "shapes/poly/split_outline.h"

#include "geometry/segments.h"

void Split_Outline::Load(std::span<const Pix> Points) {
    Point_ = Points;
    Nb_ = static_cast<Long>(Points.size());
    First_ = 0;
    Nb_Reflex_ = 0;
    Size_ = 1.0;
    for (const Pix P : Points) Size_ = std::max({Size_, std::abs(P.X), std::abs(P.Y)});
    Next_.resize(Points.size());
    Prev_.resize(Points.size());
    for (Long V = 0; V < Nb_; ++V) {
        Next_[Ix(V)] = V + 1 == Nb_ ? 0 : V + 1;
        Prev_[Ix(V)] = V == 0 ? Nb_ - 1 : V - 1;
    }
    for (auto* Links : {&Blocker_, &First_Blocked_, &Next_Blocked_, &Prev_Blocked_}) Links->clear();
    Reflex_.Reset(Nb_);
    Open_.Reset(Nb_);
    for (Long V = 0; V < Nb_; ++V) {
        if (Sens_3Pts(At(Prev(V)), At(V), At(Next(V))) == 1) {
            Reflex_.Add(V);
            ++Nb_Reflex_;
        } else {
            Open_.Add(V);
        }
    }
    if (Is_Convex()) return;
    Boxes_.Reset(Nb_);
    for (Long V = 0; V < Nb_; ++V) Boxes_.Put(V, At(V), At(Next(V)));
    Boxes_.Settle();
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

// Some edge that the line from A to B crosses, or -1.
Long Split_Outline::Crossed_Edge(Long A, Long B) {
    const Long Before = Prev(A);
    if (B == Before || Next(B) == Before) return None;
    if (Boxes_.Wants_Slabs())
        Boxes_.Lay_Slabs([&](Long E) { return std::array{At(E), At(Next(E))}; });
    const Pix From = At(A), To = At(B);
    Long Found = None;
    Boxes_.Any_Near(From, To, Size_, {Before, B + 1}, [&](Long E) {
        if (Seg_Cross(At(E), At(Next(E)), From, To).Code == Meet::Cross) Found = E;
        return Found >= 0;
    });
    return Found;
}

void Split_Outline::Cut(Long A, Long B) {
    Free_Blocked_By(A);
    for (Long V = Next(A), Before = A; V != B; Before = V, V = Next(V)) {
        Take_Out(V);
        if (!Boxes_.Share_Node(Before, V)) Boxes_.Refresh(Before);
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
    const bool Is_Now = Sens_3Pts(At(Prev(V)), At(V), At(Next(V))) == 1;
    if (Is_Now != Reflex_.Has(V)) Nb_Reflex_ += Is_Now ? 1 : -1;
    if (Is_Now) {
        Reflex_.Add(V);
        Open_.Remove(V);
    } else {
        Reflex_.Remove(V);
        Open_.Add(V);
    }
}

// A point inside a run is never reflex.
void Split_Outline::Take_Out(Long V) {
    Unblock(V);
    Free_Blocked_By(V);
    Open_.Remove(V);
    Boxes_.Drop(V);
    --Nb_;
}

void Split_Outline::Block(Long V, Long E) {
    // In most outlines nothing ever is.
    if (Blocker_.empty())
        for (auto* Links : {&Blocker_, &First_Blocked_, &Next_Blocked_, &Prev_Blocked_})
            Links->assign(Point_.size(), None);
    Open_.Remove(V);
    const Long Other = First_Blocked_[Ix(E)];
    Blocker_[Ix(V)] = E;
    Prev_Blocked_[Ix(V)] = None;
    Next_Blocked_[Ix(V)] = Other;
    if (Other >= 0) Prev_Blocked_[Ix(Other)] = V;
    First_Blocked_[Ix(E)] = V;
}

void Split_Outline::Unblock(Long V) {
    if (Blocker_.empty()) return;
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
    if (Blocker_.empty()) return;
    while (First_Blocked_[Ix(E)] >= 0) {
        const Long V = First_Blocked_[Ix(E)];
        Unblock(V);
        Open_.Add(V);
    }
}
