// ui/edit/route_tools.cpp - taking up a tool of Mode_Route, and stepping back from it.
#include "ui/edit/route_tools.h"

#include "core/history.h"
#include "core/model.h"
#include "core/point_pool.h"
#include "core/program.h"
#include "ui/canvas/edit_state.h"
#include "ui/canvas/view.h"
#include "ui/edit/object_paint.h"
#include "ui/edit/rubber.h"

namespace {

void Cancel_Extend() {
    if (Tool_Armed != 0) return Tool_Clear();
    Rubbers_Hide();
    Mark_Hide();
    Tool_Clear();
    if (Tab_Obj[Sel_Obj].Nb_Pts == 1) Obj_Paint_Red(Sel_Obj);
    Hold_Point(Sel_Pt);
}

void Cancel_Insert() {
    if (Tool_Armed != 0) return Tool_Clear();
    Rubbers_Hide();
    Tool_Armed = 1;
    Insert_Closing = 0;
}

// A point being moved keeps its place.
void Cancel_Sel_Point() {
    if (Tool_Armed == 0) {
        if (Pt_Fresh != 0)
            Mark_Hide();
        else
            Rubbers_Hide();
    }
    Tool_Sel_Point = Tool_Armed = Pt_Fresh = 0;
}

void Two_Steps_Back() {
    Tool_Cancel();
    Tool_Cancel();
}

// The tools that change the selected object go through here: none is left without one.
bool Ready_For_Tool(Long Least_Points) {
    Two_Steps_Back();
    Tool_Clear();
    return Obj_Selected != 0 && Tab_Obj[Sel_Obj].Nb_Pts >= Least_Points;
}

}  // namespace

void Tool_Cancel() {
    if (Edit_On == 0) return;
    if (Pending_New != 0) {
        Pending_New = 0;
        return;
    }
    if (Obj_Selected == 0) return;
    if (Tool_Extend != 0) return Cancel_Extend();
    if (Tool_Insert != 0) return Cancel_Insert();
    if (Tool_Sel_Point != 0) return Cancel_Sel_Point();
}

void Tool_Clear() {
    Pending_New = Pending_Select = 0;
    Tool_Insert = Tool_Extend = Tool_Sel_Point = 0;
    Tool_Armed = Pt_Fresh = 0;
}

void Tool_Leave() {
    Two_Steps_Back();
    if (Last_Obj_Set != 0) Obj_Paint_Plain(Last_Obj);
    Last_Obj_Set = 0;
}

void Route_Reset() {
    Tool_Clear();
    Last_Obj_Set = 0;
    Select_No_Object();
}

void Route_Leave() {
    if (Mode_Route != 0) Two_Steps_Back();
    Route_Reset();
}

void Select_Object(Long I) {
    Obj_Selected = Last_Obj_Set = 1;
    Sel_Obj = Last_Obj = I;
    Pt_Selected = 0;
    Sel_Pt = 0;
}

void Select_No_Object() {
    Obj_Selected = Pt_Selected = 0;
    Sel_Obj = Sel_Pt = 0;
}

void Select_Point(Long P) {
    Pt_Selected = 1;
    Sel_Pt = P;
}

void Hold_Point(Long P) {
    Select_Point(P);
    Tool_Sel_Point = Pt_Fresh = 1;
    Mark_Point(P);
}

void Points_Tidy(Long Most) {
    if (History_Redo_Count() != 0 || Nb_Dead_Pt() <= Most) return;  // that would be lost
    const std::vector<Long> New_Row = Pt_Compact();
    for (Long* Row : {&Sel_Pt, &Sel_Pt2, &Pt_Next, &Pt_Prev}) {
        const auto Old = static_cast<std::size_t>(*Row);
        *Row = Old < New_Row.size() ? New_Row[Old] : 0;
    }
    History_Points_Tidied();
}

void Cmd_New_Route() {
    Tool_Leave();
    Tool_Clear();
    Last_Obj_Set = 0;
    Last_Obj = 0;
    Pending_New = 1;
    View_Redraw();
}

void Cmd_Sel_Route() {
    Tool_Leave();
    Tool_Clear();
    Last_Obj_Set = 0;
    Last_Obj = 0;
    Select_No_Object();
    Pending_Select = Tool_Armed = 1;
    View_Redraw();
}

void Cmd_Sel_Pt_Route() {
    if (Ready_For_Tool(0)) {
        Tool_Sel_Point = Tool_Armed = Pt_Fresh = 1;
        Pt_Selected = 0;
        Sel_Pt = 0;
    }
    View_Redraw();
}

void Cmd_Extr_Pt_Route() {
    if (Ready_For_Tool(0)) Tool_Extend = Tool_Armed = 1;
    View_Redraw();
}

void Cmd_Ins_Pt_Route() {
    if (Ready_For_Tool(2)) Tool_Insert = Tool_Armed = 1;
    View_Redraw();
}
