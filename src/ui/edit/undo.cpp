// ui/edit/undo.cpp - taking back and doing again what was done to the project, on the canvas.
#include "ui/edit/undo.h"

#include <algorithm>
#include <optional>

#include "core/history.h"
#include "core/program.h"
#include "grid/terrain_grid.h"
#include "ui/canvas/ima_pictures.h"
#include "ui/canvas/view.h"
#include "ui/edit/ima_tools.h"
#include "ui/edit/modes.h"
#include "ui/edit/route_tools.h"
#include "ui/edit/rubber.h"
#include "ui/edit/square_drag.h"
#include "ui/form/form_list.h"

namespace {

template <typename T>
T Record_Of(std::string_view Bytes) {
    T R;
    Record_Unpack(Bytes, R);
    return R;
}

Long Size_Of(const std::vector<Row_Bytes>& Rows) {
    return static_cast<Long>(Rows.size());
}

// The row of a changed record once those that came are in.
Long Row_After(const Table_Change& C, const Changed_Row& R) {
    Long Came = 0;
    while (Came < Size_Of(C.Came) && C.Came[static_cast<std::size_t>(Came)].At <= R.At + Came)
        ++Came;
    return R.At + Came;
}

// Calls Visit(row, record) for every record that came or changed, as it is now.
template <typename T, typename F>
void Each_Now(const Table_Change& C, F&& Visit) {
    for (const Row_Bytes& R : C.Came) Visit(R.At, Record_Of<T>(R.Bytes));
    for (const Changed_Row& R : C.Changed) Visit(Row_After(C, R), Record_Of<T>(R.After));
}

// --- places ---------------------------------------------------------------------------------

// Where something changed: the first of all places, and whether any is in view.
class Places {
public:
    void Take(const Step_Change& C) {
        const bool Any_Point = C[Table_Of::Pt].Has_Rows();
        Each<Pt>(C, Table_Of::Pt, [this](const Pt& P) { Take_Point({P.X, P.Y}); });
        if (!Any_Point) Each<Obj>(C, Table_Of::Obj, [this](const Obj& O) { Take_Chain(O); });
        Each<PtGrid>(C, Table_Of::PtGrid, [this](const PtGrid& P) { Take_Point({P.X, P.Y}); });
        Each<Ima>(C, Table_Of::Ima, [this](const Ima& M) { Take_Rect({M.X1, M.Y1, M.X2, M.Y2}); });
        Each<Area>(C, Table_Of::Area, [this](const Area& A) { Take_Square(Cell_Corner(A), 1.0); });
        Each<Excl>(C, Table_Of::Excl, [this](const Excl& E) { Take_Square(Cell_Corner(E), 1.0); });
        Each<Lod8>(C, Table_Of::Lod8, [this](const Lod8& L) {
            Take_Square(Cell_Corner({L.AreaLon, L.AreaLat, 0, 0}), Nb_Cell_In_Area);
        });
        Each<LC_Cell>(C, Table_Of::LC, [this](const LC_Cell& L) { Take_Class(L); });
        Each<WC_Cell>(C, Table_Of::WC, [this](const WC_Cell& W) { Take_Class(W); });
    }
    void Show() const {
        if (First_ && !In_View_)
            View_Center_On_Point({.X = (First_->Left + First_->Right) / 2.0,
                                  .Y = (First_->Top + First_->Bottom) / 2.0});
    }

private:
    // What is there now comes first.
    template <typename T, typename F>
    static void Each(const Step_Change& C, Table_Of Table, F&& Visit) {
        Each_Now<T>(C[Table], [&](Long, const T& Record) { Visit(Record); });
        for (const Row_Bytes& R : C[Table].Gone) Visit(Record_Of<T>(R.Bytes));
    }
    void Take_Rect(const Rect_Pix& R) {
        if (!First_) First_ = R;
        if (In_View_) return;
        const Rect_Pix On = Ima_On_Canvas(R);
        In_View_ =
            On.Right >= 0.0 && On.Left < Pic_Width && On.Bottom >= 0.0 && On.Top < Pic_Height;
    }
    void Take_Point(Pix P) { Take_Rect({P.X, P.Y, P.X, P.Y}); }
    // The points of an object stay in the pool when it goes.
    void Take_Chain(const Obj& O) {
        Long P = O.First_Pt;
        for (Long N = 1; N <= O.Nb_Pts && 1 <= P && P <= Nb_Pt; ++N, P = Tab_Pt[P].Next)
            Take_Point({Tab_Pt[P].X, Tab_Pt[P].Y});
    }
    void Take_Square(Geo NW, Double Cells) {
        const Pix From = LatLon_To_Pixel(NW);
        const Pix To =
            LatLon_To_Pixel({NW.Lat - Cells * Cell_StepLat, NW.Lon + Cells * Cell_StepLon});
        Take_Rect({From.X, From.Y, To.X, To.Y});
    }
    // Classes lie round the corners of the grid.
    void Take_Class(const Cell_Pos& C) {
        const Geo G = Cell_Corner(C);
        Take_Square({G.Lat + Cell_StepLat / 2.0, G.Lon - Cell_StepLon / 2.0}, 1.0);
    }

    std::optional<Rect_Pix> First_;
    bool In_View_ = false;
};

// --- pictures and selection -----------------------------------------------------------------

void Show_Picture_Of(Long I, const Ima& Now) {
    if (Now.Active == 0 || !Ima_Picture_Load(I)) Ima_Picture_Drop(I);
}

void Follow_With_Pictures(const Table_Change& C) {
    if (!C.Has_Rows()) return;
    if (WPicIma.size() > static_cast<std::size_t>(Nb_Ima))
        WPicIma.resize(static_cast<std::size_t>(Nb_Ima));
    for (const Row_Bytes& R : C.Came) Show_Picture_Of(R.At, Record_Of<Ima>(R.Bytes));
    for (const Changed_Row& R : C.Changed) {
        const Ima Before = Record_Of<Ima>(R.Before), After = Record_Of<Ima>(R.After);
        if (Before.Active != After.Active || Before.DirFic != After.DirFic)
            Show_Picture_Of(Row_After(C, R), After);
    }
}

// The object that a point belongs to, or 0.
Long Owner_Of(Long P) {
    for (Long N = 1; N <= Nb_Pt && Tab_Pt[P].Prev != 0; ++N) P = Tab_Pt[P].Prev;
    for (Long I = First_Obj; I <= Nb_Obj; ++I)
        if (Tab_Obj[I].Nb_Pts != 0 && Tab_Obj[I].First_Pt == P) return I;
    return 0;
}

// One that is there after all; the rows of one change need not be those of a later one.
struct Changed_Rows {
    Long Object = 0, Point = 0, Texture = 0, Sample = 0;

    void Take(const Step_Change& C) {
        Each_Now<Obj>(C[Table_Of::Obj], [this](Long I, const Obj&) { Object = I; });
        Each_Now<Pt>(C[Table_Of::Pt], [this](Long I, const Pt&) { Point = I; });
        Each_Now<Ima>(C[Table_Of::Ima], [this](Long I, const Ima&) { Texture = I; });
        Each_Now<PtGrid>(C[Table_Of::PtGrid], [this](Long I, const PtGrid&) { Sample = I; });
    }
    void Select() const {
        if (Mode_Route != 0) Select_Route();
        if (Mode_Ima != 0 && 1 <= Texture && Texture <= Nb_Ima && Tab_Ima[Texture].Active != 0) {
            Sel_Ima = Texture;
            Ima_Selected = 1;
            The_Host().Set_Enabled("Cmd_Sel_Crb_Ima", true);
        }
        if (Mode_PtGrid != 0 && 1 <= Sample && Sample <= Nb_PtGrid &&
            Tab_PtGrid[Sample].Active == 1)
            Sel_Alt_Pt = Sample;
    }

private:
    void Select_Route() const {
        Long I = Object;
        if (I == 0 && 1 <= Point && Point <= Nb_Pt) I = Owner_Of(Point);
        if (First_Obj <= I && I <= Nb_Obj) Select_Object(I);
    }
};

// While the rows that they are about are there.
void Leave_Tools() {
    Route_Leave();
    Rubbers_Hide();
    Mark_Hide();
    Square_Drag_Cancel();
    Ima_Leave();
    The_Host().Set_Enabled("Cmd_Sel_Crb_Ima", false);
    Sel_Alt_Pt = 0;
}

void Go(bool (*Step)(const Change_Told&)) {
    Leave_Tools();
    Places Where;
    Changed_Rows Rows;
    Step([&](const Step_Change& C) {
        Follow_With_Pictures(C[Table_Of::Ima]);
        Where.Take(C);
        Rows.Take(C);
    });
    Where.Show();
    Rows.Select();
    Hint_Show();
    View_Redraw();
}

bool Is_Free() {
    return Edit_On != 0 && Forms_Open().empty();
}

}  // namespace

bool May_Undo() {
    return Is_Free() && History_Undo_Count() != 0;
}

bool May_Redo() {
    return Is_Free() && History_Redo_Count() != 0;
}

void Cmd_Undo() {
    if (May_Undo()) Go(History_Undo);
}

void Cmd_Redo() {
    if (May_Redo()) Go(History_Redo);
}
