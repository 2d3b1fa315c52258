// ui/dialogs/frm_fsuipc.cpp - follows the aircraft of the running simulator, and records its path
// as a line.
#include <cmath>

#include "core/attr_kinds.h"
#include "core/host.h"
#include "core/model.h"
#include "core/model_ops.h"
#include "core/number_text.h"
#include "core/view_calls.h"
#include "simlink/fsconnect.h"
#include "ui/canvas/edit_state.h"
#include "ui/canvas/surface.h"
#include "ui/canvas/view.h"
#include "ui/dialogs/dialogs.h"

namespace {

constexpr Int Interval_Ms = 750;
constexpr Long Top_Px = 67;  // below the menu bar of the main form, wherever that stands
constexpr Long Red = 0xFF0000, Green = 0x00FF00;
constexpr Long Arm = 15;     // of the cross, canvas pixels
constexpr Double Far = 1e8;  // where no screen reaches, canvas pixels

// What a flown line is at first: a road, until the designer says otherwise.
Attr Recorded_Line() {
    Attr A = Attr_Zero();
    A.Alti = -9999.0F;
    A.SurfShore = Surf_Line;
    A.Largeur = 63;
    A.LineType = 1024;
    A.LandOnRight = 1;
    A.Layer = 16;
    A.LC = 135;
    A.Layer_Vtp2 = 7;
    A.Flip_VTP1Texture = 1;
    return A;
}

bool In_Work_Grid(Geo G) {
    return G.Lat <= LatGridNW && G.Lat >= LatGridSE && G.Lon >= LonGridNW && G.Lon <= LonGridSE;
}

// Along the edges of the map, not through the points of the calibration. A map without extent
// has no such place.
Pix On_Map(Geo G) {
    return {(G.Lon - LonMapNW) * (Map_Width - 1) / (LonMapSE - LonMapNW),
            (G.Lat - LatMapNW) * (Map_Height - 1) / (LatMapSE - LatMapNW)};
}

void Hide_Cross() {
    The_Overlay.Croix1.Visible = The_Overlay.Croix2.Visible = false;
    The_Surface().Overlay_Changed();
}

void Show_Cross(Pix At) {
    const Pic_Px P = Map_To_Pic(At);
    if (std::fabs(P.X) > Far || std::fabs(P.Y) > Far) return Hide_Cross();
    const Long X = Round_Lng(P.X), Y = Round_Lng(P.Y);
    The_Overlay.Croix1.At = {Round_Lng(P.X - Arm), Y, Round_Lng(P.X + Arm), Y};
    The_Overlay.Croix2.At = {X, Round_Lng(P.Y - Arm), X, Round_Lng(P.Y + Arm)};
    The_Overlay.Croix1.Visible = The_Overlay.Croix2.Visible = true;
    The_Surface().Overlay_Changed();
}

class Flight_Form final : public Form {
public:
    Flight_Form() : Form("Frm_FSUIPC", {"FS connexion", "FS connexion"}) {
        Add({.Kind = Control_Kind::Lamp,
             .Name = "FeuVert",
             .Said_Words = {"Connection", "Connexion"},
             .Colour = Red});
        Add({.Kind = Control_Kind::Check,
             .Name = "Chk_Show_Position",
             .Words = {"Show location", "Show location"},
             .On_Click = [this] { Show_Position(); }});
        Add_Button("Cmd_start", {"New line", "New line"}, [this] { Start(); });
        Add_Button("Cmd_Stop", {"End of line", "End of line"}, [this] { Stop(); });
        Add_Button("Cmd_Quit", {"Quit", "Quit"}, [this] { Close(Form_End::Closed); });
        Handlers("Cmd_Quit").Role = Button_Role::Cancel;
        Set_Layout(Column({Row({"FeuVert", "Chk_Show_Position"}), "Cmd_start", "Cmd_Stop",
                           Buttons({"Cmd_Quit"})}));
        Place = Form_Place::At(0, Top_Px);
        Tick_Ms = Interval_Ms;
        On_Load = [this] { Load(); };
        On_Tick = [this] { Tick(); };
        On_Unload = [this] { Unload(); };
    }

private:
    void Add_Button(const char* Name, Wording Words, std::function<void()> Run) {
        Add({.Kind = Control_Kind::Button,
             .Name = Name,
             .Words = Words,
             .On_Click = std::move(Run)});
    }

    void Load() {
        Fsc_Open();
        Set_Above_Main(false);
        Set_Enabled("Cmd_start", false);
        Set_Enabled("Cmd_Stop", false);
    }

    void Show_Position() {
        const bool On = Shows_Position();
        Set_Above_Main(On);
        if (!On) Hide_Cross();
    }
    bool Shows_Position() const { return (*this)["Chk_Show_Position"].Value != 0; }

    // Time goes on while a message waits to be read.
    void Tick() {
        if (Reading_) return;
        Reading_ = true;
        const Int Status = Com_Read_FSconnect();
        Reading_ = false;
        if (Status != 0) Close(Form_End::Closed);
    }

    Int Com_Read_FSconnect() {
        std::string Name, Text;
        Long Major = 0, Minor = 0;
        Geo At;
        Long Status = Fsc_Identify(Name, Text, Major, Minor);
        if (Status == 0) Status = Fsc_Get_Latitude(At.Lat);
        if (Status == 0) Status = Fsc_Get_Longitude(At.Lon);
        if (Status != 0) {
            Plain_Box("Error communicating with FSConnect : " + std::string(Str(Status)));
            return 1;
        }
        const Pix Place = On_Map(At);
        if (In_Work_Grid(At) && std::isfinite(Place.X) && std::isfinite(Place.Y))
            Read_Inside(Place);
        else
            Read_Outside();
        return 0;
    }

    // The first reading inside only turns the light green.
    void Read_Inside(Pix At) {
        if (Shows_Position()) Show_Cross(At);
        if (In_Grid_ == 0) {
            In_Grid_ = 1;
            Rec_On_ = 0;
            Set_Colour("FeuVert", Green);
            Set_Enabled("Cmd_start", true);
            Set_Focus("Cmd_start");
        } else if (Rec_On_ != 0) {
            Add_Point(At);
        }
    }

    void Read_Outside() {
        Hide_Cross();
        if (In_Grid_ == 0) return;
        Rec_On_ = In_Grid_ = 0;
        Set_Colour("FeuVert", Red);
        Set_Enabled("Cmd_start", false);
        Set_Enabled("Cmd_Stop", false);
    }

    // An aircraft that stands still adds nothing.
    void Add_Point(Pix At) {
        const Obj& O = Tab_Obj[Cur_Obj_];
        if (O.Nb_Pts != 0 && Tab_Pt[O.Last_Pt].X == At.X && Tab_Pt[O.Last_Pt].Y == At.Y) return;
        Pt_Append(Cur_Obj_, At.X, At.Y);
    }

    void Start() {
        const Long New = Obj_Add_Empty(Recorded_Line());
        if (New == 0) return;
        Cur_Obj_ = New;
        Rec_On_ = Rec_Made_ = 1;
        Set_Enabled("Cmd_start", false);
        Set_Enabled("Cmd_Stop", true);
        Set_Focus("Cmd_Stop");
    }

    void Stop() {
        Rec_On_ = 0;
        Set_Enabled("Cmd_Stop", false);
        Set_Enabled("Cmd_start", true);
    }

    // Back to the editing of objects, with what was recorded selected.
    void Unload() {
        Fsc_Close();
        Call(The_View.Mode_Route_On);
        if (Rec_Made_ != 0 && Tab_Obj[Nb_Obj].Nb_Pts > 1) {
            Obj_Selected = 1;
            Sel_Obj = Nb_Obj;
        }
        Hide_Cross();
        View_Redraw();
    }

    Int In_Grid_ = 0;   // the last reading lay inside the work grid
    Int Rec_On_ = 0;    // points are being added
    Int Rec_Made_ = 0;  // a line was started
    Long Cur_Obj_ = 0;  // the object being recorded
    bool Reading_ = false;
};

}  // namespace

std::unique_ptr<Form> Make_Frm_FSUIPC() {
    return std::make_unique<Flight_Form>();
}
