// ui/edit/mode_ima.cpp - the mode in which textures are laid on the map: what each press, double
// click, move and release does, and what is painted.
#include <cmath>
#include <limits>

#include "core/attr_kinds.h"
#include "core/dialog_flags.h"
#include "core/grid_colours.h"
#include "core/host.h"
#include "core/messages.h"
#include "core/model.h"
#include "core/model_ops.h"
#include "core/program.h"
#include "ui/canvas/ima_pictures.h"
#include "ui/canvas/objects_draw.h"
#include "ui/canvas/surface.h"
#include "ui/canvas/view.h"
#include "ui/edit/ima_tools.h"
#include "ui/edit/ima_zones.h"
#include "ui/edit/modes.h"
#include "ui/edit/object_paint.h"
#include "ui/edit/route_tools.h"

namespace {

constexpr const char* Tools[] = {"Cmd_New_Ima", "Cmd_Sel_Ima", "Cmd_Sup_Route_Ou_Pt", "Cmd_Tabul"};
constexpr Int No_Picture = 124;  // message

constexpr Pen Outline{.Colour = Contrast_Colour, .Style = Line_Style::Dotted};
constexpr Pen Yellow{.Colour = 0xFFFF00}, Red{.Colour = 0xFF0000}, Magenta{.Colour = 0xFF00FF};

// --- painting -------------------------------------------------------------------------------

// In pixels, both ends counted, as far as a Long holds it.
Long Length(Long First, Long Last) {
    return Round_Lng(std::fabs(static_cast<Double>(Last) - First + 1.0));
}

void Paint_Texture(Long I) {
    const Rect_Pix R = Ima_On_Canvas(Ima_Rect(I));
    const Long X1 = Round_Lng(R.Left), Y1 = Round_Lng(R.Top);
    const Long X2 = Round_Lng(R.Right), Y2 = Round_Lng(R.Bottom);
    if (X1 > Pic_Width || Y1 > Pic_Height || X2 < 0 || Y2 < 0) return;
    if (const Picture* P = Show_Ima ? Ima_Picture(I) : nullptr)
        The_Surface().Stretch_Copy(*P, {0, 0, P->Width, P->Height},
                                   Edges_Of({X1, Y1, Length(X1, X2), Length(Y1, Y2)}));
    if (Show_Ima) return;
    const Line_Px Edges[] = {
        {X1, Y1, X2, Y1}, {X2, Y1, X2, Y2}, {X2, Y2, X1, Y2}, {X1, Y2, X1, Y1}};
    The_Surface().Lines(Edges, Outline);
}

// By link: the polygon chosen, those of the selected texture, others, and what no link fits.
Pen Pen_Of(Long Row) {
    const Obj& O = Tab_Obj[Row];
    if (!Is_Special_Vtp1(O.Attr)) return Magenta;
    if (Ima_Poly_Selected != 0 && Row == Ima_Poly) return O.Nb_Pts == 1 ? Red : Yellow;
    if (Ima_Selected != 0 && O.Attr.Link_Ima == Tab_Ima[Sel_Ima].Num) return Red;
    return Plain_Pen(O);
}

void Paint() {
    for (Long I = 1; I <= Nb_Ima; ++I)
        if (Tab_Ima[I].Active != 0) Paint_Texture(I);
    if (Ima_Selected != 0) Ima_Lines_Show(Ima_Rect(Sel_Ima));
    Objects_Draw(Pen_Of, Single_Points::As_Blocks);
}

// --- the selection --------------------------------------------------------------------------

void Hit_Zone_At(Pic_Px At, const Rect_Pix& On_Map) {
    const Ima_Hit Hit = Ima_Hit_Zone(At, Ima_On_Canvas(On_Map));
    Ima_Hot = Hit.Is_Hot() ? 1 : 0;
    Ima_Zone = Hit.Zone;
    Ima_Pointer = Hit.Pointer;
    Canvas_Pointer(Ima_Pointer);
}

void Select(Long I) {
    Ima_Pick = 0;
    Sel_Ima = I;
    Ima_Selected = 1;
    Ima_Drag = 0;
    Ima_Dialog = Ima_Dialogs::None;
    The_Host().Set_Enabled("Cmd_Sel_Crb_Ima", true);
}

void Unselect() {
    Sel_Ima = 0;
    Ima_Selected = Ima_Drag = 0;
    Ima_Dialog = Ima_Dialogs::None;
    The_Host().Set_Enabled("Cmd_Sel_Crb_Ima", false);
}

bool Is_On(Pic_Px At, const Rect_Pix& R) {
    return R.Left <= At.X && At.X <= R.Right && R.Top <= At.Y && At.Y <= R.Bottom;
}

// The lowest of those that lie there, though the highest is painted above it.
void Pick_Texture_At(Pic_Px At) {
    Ima_Pick = 0;
    for (Long I = 1; I <= Nb_Ima; ++I) {
        if (Tab_Ima[I].Active == 0 || !Is_On(At, Ima_On_Canvas(Ima_Rect(I)))) continue;
        Select(I);
        Hit_Zone_At(At, Ima_Rect(I));
        return View_Redraw();
    }
}

Double Distance_To(const Obj& O, Pic_Px At) {
    Double Best = std::numeric_limits<Double>::infinity();
    for (Long P = O.First_Pt;; P = Tab_Pt[P].Next) {
        const Pic_Px V = Map_To_Pic({Tab_Pt[P].X, Tab_Pt[P].Y});
        const Double D = (V.X - At.X) * (V.X - At.X) + (V.Y - At.Y) * (V.Y - At.Y);
        if (D < Best) Best = D;
        if (P == O.Last_Pt) return Best;
    }
}

void Pick_Polygon_At(Pic_Px At) {
    Long Nearest = 0;
    Double Best = std::numeric_limits<Double>::infinity();
    for (Long I = First_Obj; I <= Nb_Obj; ++I) {
        const Obj& O = Tab_Obj[I];
        if (O.Nb_Pts == 0 || !Is_Special_Vtp1(O.Attr)) continue;
        const Double D = Distance_To(O, At);
        if (D < Best) Best = D, Nearest = I;
    }
    if (Nearest == 0) return;
    Ima_Pick = Ima_Pick_Poly = 0;
    Ima_Poly_Selected = 1;
    Ima_Poly = Nearest;
    View_Redraw();
}

void Double_Click() {
    if (Ima_Pick == 0) return;
    if (Ima_Pick_Poly != 0) return Pick_Polygon_At(Click_Raw);
    Pick_Texture_At(Click_Raw);
}

// --- press ----------------------------------------------------------------------------------

bool Ask(const char* English, const char* French) {
    return The_Host().Show_Box({.Text = In_Language(English, French),
                                .Style = Box_Question + Box_Yes_No}) == Button_Yes;
}

void Link_Question() {
    const Int Linked = Tab_Obj[Ima_Poly].Attr.Link_Ima, Num = Tab_Ima[Sel_Ima].Num;
    if (Linked == Num) {
        if (Ask("Do you want to suppress the link to this texture ?",
                "Voulez-vous supprimer le lien \xE0 cette texture ?"))
            Obj_Unlink(Ima_Poly);
    } else if (Linked == 0 ? Ask("Do you want to attach the surface to this texture ?",
                                 "Voulez-vous attacher cette surface \xE0 cette texture ?")
                           : Ask("Do you want to change the link to this new texture ?",
                                 "Voulez-vous changer le lien pour cette nouvelle texture ?")) {
        Obj_Link(Ima_Poly, Num);
    }
    View_Redraw();
}

bool Dialog_Accepted(Ima_Dialogs What) {
    Ima_Dialog = What;
    Ima_Cancelled = 1;
    The_Host().Run_Form("Frm_Ima");
    Ima_Dialog = Ima_Dialogs::None;
    return Ima_Cancelled == 0;
}

// The rectangle stays when the picture changes.
void Edit() {
    const Ima Before = Tab_Ima[Sel_Ima];
    if (!Dialog_Accepted(Ima_Dialogs::Edit)) return;
    if (!Ima_Picture_Load(Sel_Ima)) {
        Msg_Show(No_Picture);
        Ima Record = Tab_Ima[Sel_Ima];
        Record.DirFic = Before.DirFic;
        Record.Ima_Width = Before.Ima_Width;
        Record.Ima_Height = Before.Ima_Height;
        Ima_Store(Sel_Ima, std::move(Record));
    }
    View_Redraw();
}

void Begin_Drag(Pic_Px At) {
    const Pix On_Map = Pic_To_Map(At);
    The_Ima.Drag = Ima_Rect(Sel_Ima);
    Drag_Last_X = On_Map.X, Drag_Last_Y = On_Map.Y;
    Ima_Drag = 1;
}

// Centred on the press, a map pixel for each of its own; it follows the mouse until the release.
void Place_New(Pic_Px At) {
    const Pix M = Pic_To_Map(At);
    const Ima& New = Tab_Ima[Sel_Ima];
    const Double X1 = M.X - New.Ima_Width / 2.0, Y1 = M.Y - New.Ima_Height / 2.0;
    Ima_Place(Sel_Ima, X1, Y1, New.Ima_Width + X1 - 1.0, New.Ima_Height + Y1 - 1.0);
    Begin_Drag(At);
    Hit_Zone_At(At, Ima_Rect(Sel_Ima));
    View_Redraw();
}

void Create(Pic_Px At) {
    if (!Dialog_Accepted(Ima_Dialogs::Create)) return;
    Select(Nb_Ima);
    if (Ima_Picture_Load(Sel_Ima)) return Place_New(At);
    Msg_Show(No_Picture);
    Ima_Drop(Sel_Ima);
    Unselect();
}

void End_Drag(Pic_Px At) {
    const Rect_Pix R = The_Ima.Drag;
    Ima_Place(Sel_Ima, R.Left, R.Top, R.Right, R.Bottom);
    Ima_Pick = Ima_Drag = 0;
    Ima_Dialog = Ima_Dialogs::None;
    Hit_Zone_At(At, R);
    View_Redraw();
}

void Press(const Mouse_Event& E) {
    const Pic_Px At{E.X, E.Y};
    if (Ima_Pick != 0) return;
    if (Ima_Drag != 0) return End_Drag(At);  // its own release went elsewhere
    if (E.Button != Mouse_Left) {
        if (Ima_Selected == 0) return;
        return Ima_Poly_Selected != 0 ? Link_Question() : Edit();
    }
    if (Ima_Dialog == Ima_Dialogs::Create) return Create(At);
    if (Ima_Selected != 0 && Ima_Hot != 0) Begin_Drag(At);
}

// --- move and release -----------------------------------------------------------------------

// A move of less than half a pixel waits for the next one.
void Drag_To(Pic_Px At) {
    const Pix M = Pic_To_Map(At);
    const Long DX = Round_Lng(M.X - Drag_Last_X), DY = Round_Lng(M.Y - Drag_Last_Y);
    if (DX == 0 && DY == 0) return;
    const auto To = Ima_Dragged(The_Ima.Drag, Ima_Zone, DX, DY);
    if (!To) return;
    The_Ima.Drag = *To;
    Ima_Lines_Show(*To);
    Drag_Last_X = M.X, Drag_Last_Y = M.Y;
}

void Move(const Mouse_Event& E) {
    if (Ima_Pick != 0 || Ima_Selected == 0) return;
    const Pic_Px At{E.X, E.Y};
    if (Ima_Drag == 0) return Hit_Zone_At(At, Ima_Rect(Sel_Ima));
    if (Ima_Hot != 0) Drag_To(At);
}

void Release(const Mouse_Event& E) {
    if (Ima_Drag != 0) End_Drag({E.X, E.Y});
}

// --- keys and commands ----------------------------------------------------------------------

void Delete() {
    if (Ima_Selected == 0) return;
    Ima_Picture_Drop(Sel_Ima);
    Ima_Delete(Sel_Ima);
    Ima_Leave();
    View_Redraw();
}

bool Key(Key_Event K) {
    if (K.Code != Key_Escape && K.Code != Key_Delete) return false;
    if (K.Code == Key_Escape)
        Ima_Leave();
    else
        Delete();
    The_Host().Set_Enabled("Cmd_Sel_Crb_Ima", false);
    The_Host().Set_Focus("Pic");
    return true;
}

// The next texture in use, so that one that lies off the map is found again.
void Search() {
    for (Long Step = 1; Step <= Nb_Ima; ++Step) {
        const Long I = (Sel_Ima + Step - 1) % Nb_Ima + 1;
        if (Tab_Ima[I].Active == 0) continue;
        Ima_Leave();
        Select(I);
        const Ima& M = Tab_Ima[I];
        View_Center_On_Point({.X = (M.X1 + M.X2) / 2.0, .Y = (M.Y1 + M.Y2) / 2.0});
        return View_Redraw();
    }
}

}  // namespace

const Mode_Row Row_Of_Ima{
    .Name = "Mode_Ima",
    .Flag = &Mode_Flags::Mode_Ima,
    .Button = "Cmd_TrtIma",
    .Tools = Tools,
    .Leave_Former = Route_Leave,
    .Checks_Textures = false,
    .On_Enter = Ima_Leave,
    .Paint = Paint,
    .Press = Press,
    .Move = Move,
    .Release = Release,
    .Away = Release,
    .Double_Click = Double_Click,
    .Key = Key,
    .Delete = Delete,
    .Search = Search,
    .Help = {"Lays textures on the map as rectangles and links polygons to them.\n"
             "The mouse moves a texture and sizes it at its edges; the right button opens it.",
             "Pose des textures sur la carte comme rectangles et leur lie des polygones.\n"
             "La souris d\xE9place une texture et la dimensionne par ses bords ; le clic droit "
             "l'ouvre."}};
