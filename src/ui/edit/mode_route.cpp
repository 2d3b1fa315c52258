// ui/edit/mode_route.cpp - the mode in which objects are drawn and changed: what each press, double
// click and move does in each state of its tools.
//
// A tool is armed by its button, pointed at its target by a double click, used by presses, and
// left by Esc (route_tools.h). While it is armed a press does nothing.
#include "core/dialog_flags.h"
#include "core/host.h"
#include "core/messages.h"
#include "core/model.h"
#include "core/model_ops.h"
#include "core/program.h"
#include "gen/driver.h"
#include "ui/canvas/surface.h"
#include "ui/canvas/view.h"
#include "ui/edit/modes.h"
#include "ui/edit/object_move.h"
#include "ui/edit/object_paint.h"
#include "ui/edit/route_hint.h"
#include "ui/edit/route_hits.h"
#include "ui/edit/route_search.h"
#include "ui/edit/route_tools.h"
#include "ui/edit/rubber.h"

namespace {

constexpr const char* Tools[] = {"Cmd_Sel_Route",    "Cmd_New_Route",     "Cmd_Ins_Pt_Route",
                                 "Cmd_Sel_Pt_Route", "Cmd_Extr_Pt_Route", "Cmd_Sup_Route_Ou_Pt",
                                 "Cmd_Tabul"};

Pic_Px Click() {
    return {Click_X, Click_Y};
}

Pic_Px Mouse() {
    return {Move_X, Move_Y};
}

void Paint() {
    Grid_Draw();
    Obj_Paint_All();
    Rubbers_Follow_View();
}

// --- double click ---------------------------------------------------------------------------

void Pick_Object() {
    const Long I = Nearest_Object(Click());
    if (I == 0) return;
    Tool_Armed = Pending_Select = 0;
    Select_Object(I);
    Obj_Paint_Red(I);
}

void Pick_End() {
    Tool_Armed = 0;
    Select_Point(Nearest_End(Sel_Obj, Click()));
    Mark_Point(Sel_Pt);
    Rubber_1(Sel_Pt, Click());
}

void Pick_Segment() {
    const Segment_Hit Hit = Nearest_Segment(Sel_Obj, Click());
    if (Hit.A == 0) return;
    Tool_Armed = 0;
    Select_Point(Hit.A);
    Sel_Pt2 = Hit.B;
    Insert_Closing = Hit.Closing ? 1 : 0;
    Rubber_1(Sel_Pt, Click());
    Rubber_2(Sel_Pt2, Click());
}

void Pick_Point() {
    const Obj& O = Tab_Obj[Sel_Obj];
    const Long P = O.Nb_Pts == 1 ? O.First_Pt : Nearest_Point(Sel_Obj, Click());
    if (P == 0) return;
    Tool_Armed = 0;
    Hold_Point(P);
}

void Double_Click() {
    if (Tool_Armed == 0) return;
    if (Pending_Select != 0) return Pick_Object();
    if (Obj_Selected == 0 || Tab_Obj[Sel_Obj].Nb_Pts == 0) return;
    if (Tool_Extend != 0) return Pick_End();
    if (Tool_Insert != 0) return Pick_Segment();
    if (Tool_Sel_Point != 0) return Pick_Point();
}

// --- press ----------------------------------------------------------------------------------

bool Attributes_Accepted() {
    Route_Cancelled = 1;
    The_Host().Run_Form("Frm_Route");
    return Route_Cancelled == 0;
}

void Create_Object() {
    const bool Accepted = Attributes_Accepted();
    Pending_New = 0;
    if (!Accepted) return;
    const Long I = Obj_Add(Prev_Attr, Click_Map_X, Click_Map_Y);
    if (I == 0)
        return Plain_Box(In_Language("The project has no number left for an object",
                                     "Le projet n'a plus de num\xE9ro pour un objet"));
    Select_Object(I);
    Select_Point(Tab_Obj[I].First_Pt);
    Tool_Extend = 1;
    View_Redraw();
    Mark_Point(Sel_Pt);
}

void Lay_Point() {
    Rubbers_Hide();
    Mark_Hide();
    Segment_Paint_Laid(Sel_Pt);
    const bool At_End = Tab_Pt[Sel_Pt].Next == 0;
    Select_Point(At_End ? Pt_Append(Sel_Obj, Click_Map_X, Click_Map_Y)
                        : Pt_Prepend(Sel_Obj, Click_Map_X, Click_Map_Y));
    Mark_Point(Sel_Pt);
}

// On the closing segment the point goes before the first.
void Insert_Point() {
    Rubbers_Hide();
    const Long P = Insert_Closing != 0 ? Pt_Prepend(Sel_Obj, Click_Map_X, Click_Map_Y)
                                       : Pt_Insert(Sel_Obj, Sel_Pt, Click_Map_X, Click_Map_Y);
    Tool_Clear();
    Hold_Point(P);
    View_Redraw();
}

void Grab_Point() {
    Pt_Fresh = 0;
    Mark_Hide();
    const Obj& O = Tab_Obj[Sel_Obj];
    const Pt& P = Tab_Pt[Sel_Pt];
    Pt_Next = Sel_Pt == O.Last_Pt ? O.First_Pt : P.Next;
    Pt_Prev = Sel_Pt == O.First_Pt ? O.Last_Pt : P.Prev;
    Rubber_Neighbours(Click());
}

void Drop_Point() {
    Pt_Move(Sel_Pt, Click_Map_X, Click_Map_Y);
    Rubbers_Hide();
    Hold_Point(Sel_Pt);
    View_Redraw();
}

void Change_Attributes() {
    Prev_Attr = Tab_Obj[Sel_Obj].Attr;
    if (!Attributes_Accepted()) return;
    Obj_Set_Attr(Sel_Obj, Prev_Attr);
    View_Redraw();
}

void Press(const Mouse_Event& E) {
    if (Pending_New != 0) return Create_Object();
    if (Obj_Selected == 0) return;
    if (E.Button != Mouse_Left) return Change_Attributes();
    if (Tool_Armed != 0) return;
    if (Tool_Extend != 0) return Lay_Point();
    if (Tool_Insert != 0) return Insert_Point();
    if (Tool_Sel_Point != 0) return Pt_Fresh != 0 ? Grab_Point() : Drop_Point();
}

// --- move, keys, deletion -------------------------------------------------------------------

void Move(const Mouse_Event&) {
    if (Mouse_Off_Grid || Obj_Selected == 0 || Tool_Armed != 0) return;
    if (Tool_Insert != 0) {
        Rubber_2(Sel_Pt2, Mouse());
        Rubber_1(Sel_Pt, Mouse());
    } else if (Tool_Extend != 0) {
        Rubber_1(Sel_Pt, Mouse());
    } else if (Tool_Sel_Point != 0 && Pt_Fresh == 0) {
        Rubber_Neighbours(Mouse());
    }
}

// False after No to the question that comes before a whole object goes.
bool Delete_Selected() {
    if (Pt_Selected != 0) {
        Tool_Cancel();
        Tool_Cancel();
        return Pt_Delete(Sel_Obj, Sel_Pt);
    }
    Msg_Result = Msg_Show(20);
    if (Msg_Result == Button_No) return false;
    Obj_Delete(Sel_Obj);
    return true;
}

void Delete() {
    if (Obj_Selected == 0) return;
    const Long Objects = Nb_Obj;
    if (Delete_Selected()) {
        Tool_Clear();
        Pt_Selected = 0;
        Sel_Pt = 0;
        if (Nb_Obj != Objects) {
            Select_No_Object();
            Last_Obj_Set = 0;
            Last_Obj = 0;
        }
    }
    View_Redraw();
}

bool Key(Key_Event K) {
    if (K.Code == Key_Delete) {
        Delete();
    } else if (K.Code == Key_Escape) {
        Tool_Cancel();
        View_Redraw();
    } else {
        return false;
    }
    The_Host().Set_Focus("Pic");
    return true;
}

}  // namespace

const Mode_Row Row_Of_Route{
    .Name = "Mode_Route",
    .Flag = &Mode_Flags::Mode_Route,
    .Button = "Cmd_Saisie_Routes",
    .Tools = Tools,
    .Leave_Former = Tex_Link_Check,
    .Paint = Paint,
    .Press = Press,
    .Move = Move,
    .Double_Click = Double_Click,
    .Key = Key,
    .Form_Key = Object_Arrow_Key,
    .Delete = Delete,
    .Search = Search_Next,
    .Hint = Route_Hint,
    .Help = {
        "Draws polygons, roads, rivers, shores and coastlines, point by point.\n"
        "New object and a click start one; each click lays a point until Esc. The other tools\n"
        "select, insert and go on; the right button opens what the selected object is.",
        "Dessine polygones, routes, rivi\xE8res, rivages et c\xF4tes, point par point.\n"
        "Nouvel objet et un clic en commencent un ; chaque clic pose un point jusqu'\xE0 Echap. "
        "Les\n"
        "autres outils s\xE9lectionnent, ins\xE8rent, continuent ; le clic droit ouvre les "
        "attributs."}};
