// reference/nesting.cpp - which polygon lies in which, and the order that follows.
#include <algorithm>
#include <string>
#include <utility>

#include "geometry/segments.h"
#include "reference/polygons.h"

namespace reference {

namespace {

struct PolyRef {
    Long Num = 0;
    Byte Used = 0;
    Long WPoly_Ix = 0;
    Long First_Vtx = 0, Last_Vtx = 0;

    Long Nb() const { return Last_Vtx - First_Vtx + 1; }
};

struct Vtx {
    Long Poly = 0;  // row of Tab_PolyRef
    Long Pt = 0;    // row of Tab_WPt
    Long Rank = 0;  // its place in the sorted list in use
};

// A vertex in sorted order, with coordinates of its own.
struct SVtx {
    Double X = 0.0, Y = 0.0;
    Long Vtx = 0;
};

struct Outer {
    Long Poly = 0;
    Byte Has_Inner = 0;
    Long First_Inner = 0, Last_Inner = 0;
};

Table<PolyRef> Tab_PolyRef{20, 10};
Table<Vtx> Tab_Vtx{20, 10};
Table<SVtx> Tab_Sorted{20, 10};
Table<SVtx> Tab_GSorted{20, 10};
Table<Outer> Tab_Outer{10, 10};
Table<Long> Tab_Inner{10, 10};

void Free_Lists() {
    Tab_PolyRef.Reset();
    Tab_Vtx.Reset();
    Tab_Sorted.Reset();
    Tab_GSorted.Reset();
    Tab_Outer.Reset();
    Tab_Inner.Reset();
}

template <typename T, typename Before>
void Exchange_Sort(Table<T>& Tab, Before Comes_Before) {
    for (Long i = 1; i <= Tab.Nb() - 1; ++i)
        for (Long j = i + 1; j <= Tab.Nb(); ++j)
            if (Comes_Before(Tab[j], Tab[i])) std::swap(Tab[i], Tab[j]);
}

void Sort_Vertices(Table<SVtx>& Sorted) {
    Exchange_Sort(Sorted,
                  [](const SVtx& A, const SVtx& B) { return A.X != B.X ? A.X < B.X : A.Y < B.Y; });
    for (Long i = 1; i <= Sorted.Nb(); ++i) Tab_Vtx[Sorted[i].Vtx].Rank = i;
}

// A run is compared with the value that its first entry has; each entry moves from its own.
void Perturb(Table<SVtx>& Sorted, Double SVtx::*Axis, Double Step) {
    for (Long i = 1; i <= Sorted.Nb();) {
        const Double First = Sorted[i].*Axis;
        Long k = 1;
        for (; i + k <= Sorted.Nb() && Sorted[i + k].*Axis == First; ++k)
            Sorted[i + k].*Axis = Sorted[i + k].*Axis + Step * k;
        i += k;
    }
}

void Perturb_Both(Table<SVtx>& Sorted, Double Step) {
    Perturb(Sorted, &SVtx::Y, Step);
    Perturb(Sorted, &SVtx::X, Step);
}

Pix Sorted_Pix(const Table<SVtx>& Sorted, Long V) {
    const SVtx& S = Sorted[Tab_Vtx[V].Rank];
    return {S.X, S.Y};
}

Long Next_Vtx(const PolyRef& P, Long V) {
    return V == P.Last_Vtx ? P.First_Vtx : V + 1;
}

void List_Polygons() {
    for (Long I = 1; I <= Nb_WPoly; ++I) {
        const WPoly& W = Tab_WPoly[I];
        if (!W.Attr->Imbrication.empty()) continue;
        PolyRef R{.Num = W.Num, .WPoly_Ix = I, .First_Vtx = Tab_Vtx.Nb() + 1};
        for (Long P = W.First; P <= W.Last; ++P) {
            const Long V = Tab_Vtx.Append({Tab_PolyRef.Nb() + 1, P, Tab_Vtx.Nb() + 1});
            Tab_Sorted.Append({Tab_WPt[P].X, Tab_WPt[P].Y, V});
        }
        R.Last_Vtx = Tab_Vtx.Nb();
        Tab_PolyRef.Append(R);
    }
}

bool Polygons_Cross(const PolyRef& A, const PolyRef& B) {
    for (Long i = A.First_Vtx; i <= A.Last_Vtx; ++i)
        for (Long j = B.First_Vtx; j <= B.Last_Vtx; ++j) {
            const Meet Code =
                Seg_Cross(Sorted_Pix(Tab_Sorted, i), Sorted_Pix(Tab_Sorted, Next_Vtx(A, i)),
                          Sorted_Pix(Tab_Sorted, j), Sorted_Pix(Tab_Sorted, Next_Vtx(B, j)))
                    .Code;
            if (Code >= Meet::Cross) return true;
        }
    return false;
}

bool Poly_Cross_Check() {
    for (Long a = 1; a <= Tab_PolyRef.Nb(); ++a)
        for (Long b = a + 1; b <= Tab_PolyRef.Nb(); ++b) {
            const PolyRef &A = Tab_PolyRef[a], &B = Tab_PolyRef[b];
            if (A.Nb() > 1 && B.Nb() > 1 && Polygons_Cross(A, B)) return true;
        }
    return false;
}

// A ray from P toward growing Y against the outline B: how often it meets it, and where first.
struct Ray {
    Long Count = 0;
    Double Nearest = 1e10;
};

Ray Cast_Ray(Pix P, const PolyRef& B, const Table<SVtx>& Sorted) {
    Ray R;
    for (Long V = B.First_Vtx; V <= B.Last_Vtx; ++V) {
        const auto [x1, y1] = Sorted_Pix(Sorted, V);
        const auto [x2, y2] = Sorted_Pix(Sorted, Next_Vtx(B, V));
        if (!In_Span(P.X, x1, x2) || x1 == x2) continue;
        Double yc = y1;
        if (y1 != y2) {
            const Double a = (y2 - y1) / (x2 - x1);
            const Double b0 = y1 - x1 * a;
            yc = P.X * a + b0;
        }
        if (yc <= P.Y) continue;
        ++R.Count;
        if (yc < R.Nearest) R.Nearest = yc;
    }
    return R;
}

bool Poly_Inside(Long a, Long b) {
    const PolyRef &A = Tab_PolyRef[a], &B = Tab_PolyRef[b];
    if (B.Nb() < 3) return false;
    const Ray R = Cast_Ray(Sorted_Pix(Tab_Sorted, A.First_Vtx), B, Tab_Sorted);
    return R.Count % 2 == 1 && R.Nearest < 1e10;
}

void Add_Outer(Long This) {
    Outer O{.Poly = This};
    if (Tab_PolyRef[This].Nb() >= 3) {
        for (Long Other = 1; Other <= Tab_PolyRef.Nb(); ++Other) {
            if (Other == This || Tab_PolyRef[Other].Used != 0) continue;
            if (!Poly_Inside(Other, This)) continue;
            Tab_PolyRef[Other].Used = 1;
            O.Last_Inner = Tab_Inner.Append(Other);
            if (O.Has_Inner == 0) O.First_Inner = O.Last_Inner;
            O.Has_Inner = 1;
        }
    }
    Tab_Outer.Append(O);
}

bool Is_Placed(Long Poly) {
    for (const Outer& O : Tab_Outer.Rows())
        if (O.Poly == Poly) return true;
    const auto Inner = Tab_Inner.Rows();
    return std::find(Inner.begin(), Inner.end(), Poly) != Inner.end();
}

void Find_Outers() {
    const auto Poly_Of = [](Long i) { return Tab_Vtx[Tab_Sorted[i].Vtx].Poly; };
    Tab_PolyRef[Poly_Of(1)].Used = 1;
    Add_Outer(Poly_Of(1));
    for (Long i = 2; i <= Tab_Sorted.Nb(); ++i)
        if (!Is_Placed(Poly_Of(i))) Add_Outer(Poly_Of(i));
}

}  // namespace

void Imbric_Order() {
    struct Named {
        Long WPoly_Ix = 0;
        std::string Text;
    };
    Table<Named> List{20, 20};
    for (Long I = 1; I <= Nb_WPoly; ++I) {
        const std::string& Text = Tab_WPoly[I].Attr->Imbrication;
        if (!Text.empty()) List.Append({I, Text});
    }
    if (List.Nb() == 0) return;
    Exchange_Sort(List, [](const Named& A, const Named& B) { return A.Text < B.Text; });
    for (Long First = 1; First <= List.Nb();) {
        const std::string Group = List[First].Text.substr(0, 3);
        Long Last = First;
        while (Last < List.Nb() && List[Last + 1].Text.substr(0, 3) == Group) ++Last;
        for (Long k = First; k <= Last; ++k) {
            WPoly& W = Tab_WPoly[List[k].WPoly_Ix];
            W.Draw_Order = k - First + 1;
            W.Group_Root = Tab_WPoly[List[Last].WPoly_Ix].Num;
        }
        First = Last + 1;
    }
    Has_Imbric = 1;
}

Int Auto_Order() {
    Has_Auto = 0;
    Free_Lists();
    List_Polygons();
    if (Tab_PolyRef.Nb() == 0) return 0;
    Has_Auto = 1;
    Sort_Vertices(Tab_Sorted);
    if (Poly_Cross_Check()) {
        Free_Lists();
        return 4;
    }
    Perturb_Both(Tab_Sorted, 1e-05);
    Find_Outers();
    Tab_Sorted.Reset();
    return 0;
}

namespace {

struct GroupPoly {
    Long Poly = 0;
    Long Order = 0;
    Long First = 0, Last = 0;  // rows of Tab_Vtx
};

struct Node {
    Long Group_Ix = 0;
    Long Nb_Vtx = 0;
    Long Level = 0;
    Byte Branch = 0;
    Long Parent = 0;
    Long Nb_Child = 0;
    Long First_Child = 0;
    Long Next_Sibling = 0;
    Byte Done = 0;
};

Table<GroupPoly> Tab_Group{20, 10};
Table<Node> Tab_Node{20, 10};
Long Order_Count = 0;

void Group_Append(Long Poly) {
    const PolyRef& R = Tab_PolyRef[Poly];
    Tab_Group.Append({.Poly = Poly, .First = R.First_Vtx, .Last = R.Last_Vtx});
    for (Long V = R.First_Vtx; V <= R.Last_Vtx; ++V) {
        const WPt& P = Tab_WPt[Tab_Vtx[V].Pt];
        Tab_GSorted.Append({P.X, P.Y, V});
    }
}

void Build_Group(const Outer& O) {
    Tab_Group.Reset();
    Tab_GSorted.Reset();
    Group_Append(O.Poly);
    if (O.Has_Inner != 0)
        for (Long I = O.First_Inner; I <= O.Last_Inner; ++I) Group_Append(Tab_Inner[I]);
    Sort_Vertices(Tab_GSorted);
    Perturb_Both(Tab_GSorted, 0.0001);
}

Long Group_Of_Poly(Long Poly) {
    for (Long g = 1;; ++g)
        if (Tab_Group[g].Poly == Poly) return g;
}

Long Node_Of_Group(Long g) {
    for (Long n = 1; n <= Tab_Node.Nb(); ++n)
        if (Tab_Node[n].Group_Ix == g) return n;
    return 0;
}

Long Find_Parent(Pix P) {
    Long Parent = 1;
    Double Nearest = 1e10;
    for (Long n = 1; n <= Tab_Node.Nb(); ++n) {
        if (Tab_Node[n].Nb_Vtx < 3) continue;
        const PolyRef& B = Tab_PolyRef[Tab_Group[Tab_Node[n].Group_Ix].Poly];
        const Ray R = Cast_Ray(P, B, Tab_GSorted);
        if (R.Count % 2 == 0 || R.Nearest >= Nearest) continue;
        Nearest = R.Nearest;
        Parent = n;
    }
    return Parent;
}

void Node_Append(Long g, Long p) {
    const GroupPoly& G = Tab_Group[g];
    const Long n = Tab_Node.Append({.Group_Ix = g,
                                    .Nb_Vtx = G.Last - G.First + 1,
                                    .Level = p == 0 ? 1 : Tab_Node[p].Level + 1,
                                    .Parent = p});
    if (p == 0) return;
    Node& Parent = Tab_Node[p];
    ++Parent.Nb_Child;
    if (Parent.Nb_Child == 1) {
        Parent.First_Child = n;
        return;
    }
    Parent.Branch = 1;
    for (Long s = 2; s < n; ++s)
        if (Tab_Node[s].Parent == p && Tab_Node[s].Next_Sibling == 0) {
            Tab_Node[s].Next_Sibling = n;
            return;
        }
}

void Build_Tree() {
    Tab_Node.Reset();
    Node_Append(1, 0);
    for (Long i = 2; i <= Tab_GSorted.Nb(); ++i) {
        const Long g = Group_Of_Poly(Tab_Vtx[Tab_GSorted[i].Vtx].Poly);
        if (Node_Of_Group(g) == 0)
            Node_Append(g, Find_Parent({Tab_GSorted[i].X, Tab_GSorted[i].Y}));
    }
}

void Number_Node(Node& N) {
    Tab_Group[N.Group_Ix].Order = ++Order_Count;
    N.Done = 1;
}

// The chain below child c of a branch node, from its last node up to c.
void Number_Chain(Long c) {
    Long n = c;
    while (Tab_Node[n].First_Child != 0 && Tab_Node[Tab_Node[n].First_Child].Branch == 0)
        n = Tab_Node[n].First_Child;
    do {
        if (Tab_Node[n].Nb_Vtx < 3) {
            Tab_Node[n].Done = 1;
            n = Tab_Node[n].Parent;
        }
        Number_Node(Tab_Node[n]);
        n = Tab_Node[n].Parent;
    } while (Tab_Node[n].Branch == 0);
}

void Number_Branch(Long m) {
    for (Long c = Tab_Node[m].First_Child; c != 0; c = Tab_Node[c].Next_Sibling) {
        const Node& C = Tab_Node[c];
        if (C.Done == 0 && C.Nb_Vtx >= 3 && C.Branch == 0) Number_Chain(c);
    }
    for (Long c = Tab_Node[m].First_Child; c != 0; c = Tab_Node[c].Next_Sibling)
        Tab_Node[c].Done = 1;
    Number_Node(Tab_Node[m]);
}

// The deepest level of a branch that waits, 0 when none does.
Long Deepest_Branch() {
    Long Level = 0;
    for (const Node& N : Tab_Node.Rows())
        if (N.Branch != 0 && N.Done == 0) Level = std::max(Level, N.Level);
    return Level;
}

void Number_Tree() {
    Tab_Node[1].Branch = 1;
    Order_Count = 0;
    for (Long Level = Deepest_Branch(); Level != 0; Level = Deepest_Branch())
        for (Long m = 1; m <= Tab_Node.Nb(); ++m) {
            const Node& N = Tab_Node[m];
            if (N.Branch != 0 && N.Done == 0 && N.Level == Level) Number_Branch(m);
        }
}

}  // namespace

void Auto_Tree() {
    for (const Outer& O : Tab_Outer.Rows()) {
        Build_Group(O);
        Build_Tree();
        Number_Tree();
        for (const GroupPoly& G : Tab_Group.Rows()) {
            WPoly& W = Tab_WPoly[Tab_PolyRef[G.Poly].WPoly_Ix];
            W.Draw_Order = G.Order;
            W.Group_Root = Tab_PolyRef[O.Poly].Num;
        }
    }
    Tab_Group.Reset();
    Tab_Node.Reset();
    Free_Lists();
}

}  // namespace reference
