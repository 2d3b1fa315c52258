// core/model_ops.cpp - the changes of the project that touch more than one value.
#include "core/model_ops.h"

#include <algorithm>
#include <limits>
#include <utility>
#include <vector>

#include "core/attr_kinds.h"
#include "core/messages.h"
#include "core/model_changes.h"

namespace {

// The rows grow by the pool's own rule; a point is never taken from a hole.
Long Pt_New(Double X, Double Y) {
    ++Model_Changes;
    return Tab_Pt.Append({.Prev = 0, .Next = 0, .X = X, .Y = Y});
}

void Chain_Start(Obj& O, Long P) {
    O.First_Pt = P;
    O.Last_Pt = P;
    O.Nb_Pts = 1;
}

// 0 when every number is taken.
Int Free_Ima_Num() {
    constexpr Int Most = std::numeric_limits<Int>::max();
    std::vector<bool> Taken(std::size_t{Most} + 1);
    Int Highest = 0;
    for (const Ima& M : Tab_Ima.Rows()) {
        Highest = std::max(Highest, M.Num);
        if (M.Num > 0) Taken[static_cast<std::size_t>(M.Num)] = true;
    }
    if (Highest < Most) return static_cast<Int>(Highest + 1);
    for (Int Num = 1; Num < Most; ++Num)
        if (!Taken[static_cast<std::size_t>(Num)]) return Num;
    return 0;
}

}  // namespace

Attr Attr_Zero() {
    Attr A;
    A.Attrib = A.SurfShore = A.Largeur = A.LineType = A.LandOnRight = A.FermerLine = 0;
    A.Alti = A.Alt_Coast = 0.0;
    A.Layer = 0;
    A.Link_Ima = A.LWM_VTP2 = A.LandClass = A.LC = A.Layer_Vtp2 = 0;
    A.Drive_Right = A.Line_Night = A.LayerScasm = A.Vtp1_Line = 0;
    A.Effil_Deb = A.Effil_Fin = A.VTP1_SpecNor = A.Flip_VTP1Texture = 0;
    return A;
}

void Init_Tables() {
    ++Model_Changes;
    Tab_Obj.Reset();
    Tab_Pt.Reset();
    Tab_Area.Reset();
    Tab_Lod8.Reset();
    Tab_Excl.Reset();
    Tab_LC.Reset();
    Tab_WC.Reset();
    Tab_Ima.Reset();
    Tab_PtGrid.Reset();
    Tab_Obj.Append({.Attr = Attr_Zero()});
    Last_Num_Obj = 0;
    LodMesh = 2;
    Mesh_Done = 0;
    PtGrid_Forget();
}

void Model_Reset() {
    The_Head = {};
    The_Calibration = {};
    The_Edits = {};
    Init_Tables();
}

Long Obj_Add(const Attr& A, Double X, Double Y) {
    if (Last_Num_Obj == std::numeric_limits<Long>::max()) return 0;
    Obj O{.Num = ++Last_Num_Obj, .Attr = A};
    Chain_Start(O, Pt_New(X, Y));
    return Tab_Obj.Append(std::move(O));
}

Long Obj_Add_Empty(const Attr& A) {
    if (Last_Num_Obj == std::numeric_limits<Long>::max()) return 0;
    ++Model_Changes;
    return Tab_Obj.Append({.Num = ++Last_Num_Obj, .Attr = A});
}

void Obj_Delete(Long I) {
    Check(I >= First_Obj, "the reserved element is never deleted");
    Tab_Obj.Remove(I);
    ++Model_Changes;
}

void Obj_Set_Attr(Long I, const Attr& A) {
    Tab_Obj.Edit(I).Attr = A;
    ++Model_Changes;
}

void Obj_Move(Long I, Double DX, Double DY) {
    const Obj& O = Tab_Obj[I];
    Long P = O.First_Pt;
    for (Long N = 1; N <= O.Nb_Pts; ++N, P = Tab_Pt[P].Next) {
        Tab_Pt.Edit(P).X += DX;
        Tab_Pt.Edit(P).Y += DY;
    }
    ++Model_Changes;
}

Long Pt_Append(Long I, Double X, Double Y) {
    const Long P = Pt_New(X, Y);
    Obj& O = Tab_Obj.Edit(I);
    if (O.Nb_Pts == 0) {
        Chain_Start(O, P);
        return P;
    }
    Tab_Pt.Edit(O.Last_Pt).Next = P;
    Tab_Pt.Edit(P).Prev = O.Last_Pt;
    O.Last_Pt = P;
    ++O.Nb_Pts;
    return P;
}

Long Pt_Prepend(Long I, Double X, Double Y) {
    const Long P = Pt_New(X, Y);
    Obj& O = Tab_Obj.Edit(I);
    if (O.Nb_Pts == 0) {
        Chain_Start(O, P);
        return P;
    }
    Tab_Pt.Edit(O.First_Pt).Prev = P;
    Tab_Pt.Edit(P).Next = O.First_Pt;
    O.First_Pt = P;
    ++O.Nb_Pts;
    return P;
}

Long Pt_Insert(Long I, Long After, Double X, Double Y) {
    Obj& O = Tab_Obj.Edit(I);
    if (After == O.Last_Pt) return Pt_Append(I, X, Y);
    const Long P = Pt_New(X, Y);
    const Long Before = Tab_Pt[After].Next;
    Tab_Pt.Edit(P).Prev = After;
    Tab_Pt.Edit(P).Next = Before;
    Tab_Pt.Edit(After).Next = P;
    Tab_Pt.Edit(Before).Prev = P;
    ++O.Nb_Pts;
    return P;
}

void Pt_Move(Long P, Double X, Double Y) {
    Tab_Pt.Edit(P).X = X;
    Tab_Pt.Edit(P).Y = Y;
    ++Model_Changes;
}

bool Pt_Delete(Long I, Long P) {
    Obj& O = Tab_Obj.Edit(I);
    if (O.Nb_Pts == 1) {
        Msg_Result = Msg_Show(20);
        if (Msg_Result == Button_No) return false;
        Obj_Delete(I);
        return true;
    }
    const Long Prev = Tab_Pt[P].Prev;
    const Long Next = Tab_Pt[P].Next;
    if (P == O.First_Pt) {
        O.First_Pt = Next;
        Tab_Pt.Edit(Next).Prev = 0;
    } else if (P == O.Last_Pt) {
        O.Last_Pt = Prev;
        Tab_Pt.Edit(Prev).Next = 0;
    } else {
        Tab_Pt.Edit(Prev).Next = Next;
        Tab_Pt.Edit(Next).Prev = Prev;
    }
    --O.Nb_Pts;
    ++Model_Changes;
    return true;
}

std::uint64_t Square_Key(const Cell_Pos& Cell) {
    std::uint64_t Key = 0;
    for (const Int Part : {Cell.AreaLon, Cell.AreaLat, Cell.CellLon, Cell.CellLat})
        Key = Key << 16 | static_cast<std::uint16_t>(Part);
    return Key;
}

std::uint64_t Square_Key(const Lod8& Record) {
    return Square_Key(Cell_Pos{Record.AreaLon, Record.AreaLat});
}

Long Ima_Add(Ima Record) {
    const Int Num = Free_Ima_Num();
    if (Num == 0) return 0;
    Record.Active = 1;
    Record.Num = Num;
    return Tab_Ima.Append(std::move(Record));
}

void Ima_Place(Long I, Double X1, Double Y1, Double X2, Double Y2) {
    Ima& M = Tab_Ima.Edit(I);
    M.X1 = X1, M.Y1 = Y1, M.X2 = X2, M.Y2 = Y2;
}

void Ima_Store(Long I, Ima Record) {
    Record.Num = Tab_Ima[I].Num;
    Tab_Ima.Edit(I) = std::move(Record);
}

void Ima_Drop(Long I) {
    Tab_Ima.Edit(I).Active = 0;
}

void Obj_Link(Long I, Int Num) {
    Attr& A = Tab_Obj.Edit(I).Attr;
    A.Link_Ima = Num;
    A.LWM_VTP2 = Technique_VTP1;
    A.VTP1_SpecNor = Vtp1_Special;
}

void Obj_Unlink(Long I) {
    Tab_Obj.Edit(I).Attr.Link_Ima = 0;
}

void Ima_Delete(Long I) {
    const Int Num = Tab_Ima[I].Num;
    for (Long K = First_Obj; K <= Nb_Obj; ++K) {
        if (Tab_Obj[K].Attr.Link_Ima != Num) continue;
        Attr& A = Tab_Obj.Edit(K).Attr;
        A.Link_Ima = 0;
        A.LWM_VTP2 = Technique_LWM;
        A.VTP1_SpecNor = Vtp1_Normal;
    }
    Tab_Ima.Edit(I).Active = 0;
}

Long PtGrid_Add(Double X, Double Y, Single Alt) {
    return Tab_PtGrid.Append({.Active = 1, .X = X, .Y = Y, .Alt = Alt});
}

void PtGrid_Change(Long I, Double X, Double Y, Single Alt) {
    PtGrid& P = Tab_PtGrid.Edit(I);
    if (P.Active != 1) P = {.Active = 1, .X = X, .Y = Y};
    P.Alt = Alt;
}

void PtGrid_Delete(Long I) {
    Tab_PtGrid.Edit(I).Active = 0;
}

void PtGrid_Forget() {
    Last_Alt_Pt = 0.0F;
    Sel_Alt_Pt = 0;
    Dialog_Up = 0;
}
