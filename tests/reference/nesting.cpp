// reference/nesting.cpp - which polygon lies in which, and the order that follows.
#include <algorithm>

#include "geometry/segments.h"
#include "reference/plain.h"

namespace reference {

namespace {

using Outline = std::vector<Pix>;

// The vertices of some outlines in the order of X and Y, shifted apart; the outlines follow.
struct Sorted_Vertices {
    struct Vertex {
        Pix At;
        std::size_t Poly, Place;
    };
    std::vector<Vertex> Rows;
    std::vector<Outline> Polys;

    Sorted_Vertices(std::vector<Outline> Of, Double Step) : Polys(std::move(Of)) {
        for (std::size_t K = 0; K < Polys.size(); ++K)
            for (std::size_t I = 0; I < Polys[K].size(); ++I) Rows.push_back({Polys[K][I], K, I});
        Exchange_Sort(Rows, [](const Vertex& A, const Vertex& B) {
            return A.At.X != B.At.X ? A.At.X < B.At.X : A.At.Y < B.At.Y;
        });
        Shift(&Pix::Y, Step);
        Shift(&Pix::X, Step);
        for (const Vertex& V : Rows) Polys[V.Poly][V.Place] = V.At;
    }

    // A run is compared with the value that its first entry has; each entry moves from its own.
    void Shift(Double Pix::*Axis, Double Step) {
        for (std::size_t I = 0, K = 1; I < Rows.size(); I += K)
            for (K = 1; I + K < Rows.size() && Rows[I + K].At.*Axis == Rows[I].At.*Axis; ++K)
                Rows[I + K].At.*Axis = Rows[I + K].At.*Axis + Step * static_cast<Double>(K);
    }
};

// A ray from P toward growing Y against an outline: how often it meets it, and where first.
struct Ray {
    Long Count = 0;
    Double Nearest = 1e10;
};

Ray Cast_Ray(Pix P, const Outline& O) {
    Ray R;
    for (std::size_t I = 0; I < O.size(); ++I) {
        const auto [x1, y1] = O[I];
        const auto [x2, y2] = O[(I + 1) % O.size()];
        if (!In_Span(P.X, x1, x2) || x1 == x2) continue;
        Double yc = y1;
        if (y1 != y2) {
            const Double a = (y2 - y1) / (x2 - x1);
            const Double b0 = y1 - x1 * a;
            yc = P.X * a + b0;
        }
        if (yc <= P.Y) continue;
        ++R.Count;
        R.Nearest = std::min(R.Nearest, yc);
    }
    return R;
}

bool Cross(const Outline& A, const Outline& B) {
    if (A.size() < 2 || B.size() < 2) return false;
    for (std::size_t I = 0; I < A.size(); ++I)
        for (std::size_t J = 0; J < B.size(); ++J)
            if (Seg_Cross(A[I], A[(I + 1) % A.size()], B[J], B[(J + 1) % B.size()]).Code >=
                Meet::Cross)
                return true;
    return false;
}

// The outermost polygons in the order of their first vertices, each before what it takes.
std::vector<std::vector<std::size_t>> Groups_Of(const Sorted_Vertices& S) {
    const std::vector<Outline>& O = S.Polys;
    std::vector<bool> Used(O.size()), Placed(O.size());
    Used[S.Rows[0].Poly] = true;
    std::vector<std::vector<std::size_t>> Groups;
    for (const auto& V : S.Rows) {
        if (Placed[V.Poly]) continue;
        std::vector<std::size_t> Group{V.Poly};
        for (std::size_t K = 0; K < O.size() && O[V.Poly].size() >= 3; ++K) {
            if (K == V.Poly || Used[K] || Cast_Ray(O[K][0], O[V.Poly]).Count % 2 == 0) continue;
            Used[K] = true;
            Group.push_back(K);
        }
        for (const std::size_t K : Group) Placed[K] = true;
        Groups.push_back(Group);
    }
    return Groups;
}

// The polygons of a group as a tree, and their numbers: branch by branch, the deepest first.
class Tree {
public:
    explicit Tree(const std::vector<Outline>& Group) : S_(Group, 0.0001), Order(Group.size()) {
        std::vector<bool> Has_Node(Group.size());
        for (const auto& V : S_.Rows) {
            // The first node is the outermost polygon.
            const std::size_t Poly = Nodes_.empty() ? 0 : V.Poly;
            if (Has_Node[Poly]) continue;
            Has_Node[Poly] = true;
            Add_Node(Poly, Nodes_.empty() ? None : Parent_Of(V.At));
        }
        Nodes_[0].Branch = true;
        for (Long Level = Deepest_Branch(); Level != 0; Level = Deepest_Branch())
            for (std::size_t N = 0; N < Nodes_.size(); ++N)
                if (Waits(Nodes_[N]) && Nodes_[N].Level == Level) Number_Branch(N);
    }

private:
    static constexpr auto None = static_cast<std::size_t>(-1);
    struct Node {
        std::size_t Poly, Parent;
        Long Level;
        bool Branch = false, Done = false;
        std::vector<std::size_t> Children = {};
    };

    std::size_t Size(std::size_t N) const { return S_.Polys[Nodes_[N].Poly].size(); }
    static bool Waits(const Node& N) { return N.Branch && !N.Done; }

    std::size_t Parent_Of(Pix P) const {
        std::size_t Parent = 0;
        Double Nearest = 1e10;
        for (std::size_t N = 0; N < Nodes_.size(); ++N) {
            if (Size(N) < 3) continue;
            const Ray R = Cast_Ray(P, S_.Polys[Nodes_[N].Poly]);
            if (R.Count % 2 == 0 || R.Nearest >= Nearest) continue;
            Nearest = R.Nearest;
            Parent = N;
        }
        return Parent;
    }

    void Add_Node(std::size_t Poly, std::size_t Parent) {
        if (Parent != None) {
            Nodes_[Parent].Children.push_back(Nodes_.size());
            if (Nodes_[Parent].Children.size() > 1) Nodes_[Parent].Branch = true;
        }
        Nodes_.push_back({Poly, Parent, Parent == None ? 1 : Nodes_[Parent].Level + 1});
    }

    Long Deepest_Branch() const {
        Long Level = 0;
        for (const Node& N : Nodes_)
            if (Waits(N)) Level = std::max(Level, N.Level);
        return Level;
    }

    void Number(std::size_t N) {
        Order[Nodes_[N].Poly] = ++Count_;
        Nodes_[N].Done = true;
    }

    // The chain below child N of a branch, from its last node up.
    void Number_Chain(std::size_t N) {
        while (!Nodes_[N].Children.empty() && !Nodes_[Nodes_[N].Children[0]].Branch)
            N = Nodes_[N].Children[0];
        do {
            if (Size(N) < 3) {
                Nodes_[N].Done = true;
                N = Nodes_[N].Parent;
            }
            Number(N);
            N = Nodes_[N].Parent;
        } while (!Nodes_[N].Branch);
    }

    void Number_Branch(std::size_t N) {
        for (const std::size_t C : Nodes_[N].Children)
            if (!Nodes_[C].Done && Size(C) >= 3 && !Nodes_[C].Branch) Number_Chain(C);
        for (const std::size_t C : Nodes_[N].Children) Nodes_[C].Done = true;
        Number(N);
    }

    Sorted_Vertices S_;
    std::vector<Node> Nodes_;
    Long Count_ = 0;

public:
    std::vector<Long> Order;
};

void Nest_By_Text(Polys& List) {
    std::vector<Poly*> Named;
    for (Poly& W : List)
        if (!W.Attr->Imbrication.empty()) Named.push_back(&W);
    Exchange_Sort(Named, [](const Poly* A, const Poly* B) {
        return A->Attr->Imbrication < B->Attr->Imbrication;
    });
    const auto Group = [&](std::size_t I) { return Named[I]->Attr->Imbrication.substr(0, 3); };
    for (std::size_t First = 0, End = 0; First < Named.size(); First = End) {
        while (End < Named.size() && Group(End) == Group(First)) ++End;
        for (std::size_t K = First; K < End; ++K) {
            Named[K]->Draw_Order = static_cast<Long>(K - First + 1);
            Named[K]->Group_Root = Named[End - 1]->Num;
        }
    }
}

}  // namespace

bool Nest(Polys& List) {
    Nest_By_Text(List);
    std::vector<Poly*> Of;
    std::vector<Outline> Outlines;
    for (Poly& W : List) {
        if (!W.Attr->Imbrication.empty()) continue;
        Of.push_back(&W);
        Outlines.emplace_back();
        for (const WPt& P : W.P) Outlines.back().push_back(To_Pix(P));
    }
    for (std::size_t A = 0; A < Outlines.size(); ++A)
        for (std::size_t B = A + 1; B < Outlines.size(); ++B)
            if (Cross(Outlines[A], Outlines[B])) return false;
    if (Of.empty()) return true;
    for (const auto& Group : Groups_Of(Sorted_Vertices(Outlines, 1e-05))) {
        std::vector<Outline> Members;
        for (const std::size_t K : Group) Members.push_back(Outlines[K]);
        const Tree T(Members);
        for (std::size_t I = 0; I < Group.size(); ++I) {
            Of[Group[I]]->Draw_Order = T.Order[I];
            Of[Group[I]]->Group_Root = Of[Group[0]]->Num;
        }
    }
    return true;
}

}  // namespace reference
