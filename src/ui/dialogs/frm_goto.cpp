// ui/dialogs/frm_goto.cpp - the place that the canvas is to show.
#include "core/host.h"
#include "core/program.h"
#include "geo/calibration.h"
#include "geo/latlon_text.h"
#include "ui/canvas/view.h"
#include "ui/dialogs/degree_fields.h"
#include "ui/dialogs/dialogs.h"

namespace {

class Goto_Form final : public Form {
public:
    Goto_Form() : Form("Frm_Goto", {"Go to a place", "Aller \xE0 un lieu"}) {
        Add({.Kind = Control_Kind::Text,
             .Name = "GotoLat",
             .Words = {"Latitude:", "Latitude :"},
             .Tip_Words = {"Degrees, or a form with N or S; a copied position fills both fields",
                           "Degr\xE9s, ou une forme avec N ou S ; une position copi\xE9"
                           "e remplit les deux champs"},
             .Rule = {.Accept = [this](const std::string& Text) { return Take_Lat(Text); },
                      .Held = [this] { return Lat_Text_; },
                      .Allowed = [] { return Degrees_Allowed(true); }},
             .Columns = 24});
        Add({.Kind = Control_Kind::Text,
             .Name = "GotoLon",
             .Words = {"Longitude:", "Longitude :"},
             .Tip_Words = {"Degrees, or a form with E or W", "Degr\xE9s, ou une forme avec E ou W"},
             .Rule = {.Accept = [this](const std::string& Text) { return Take_Lon(Text); },
                      .Held = [this] { return Lon_Text_; },
                      .Allowed = [] { return Degrees_Allowed(false); }},
             .Columns = 24});
        Add_Ok_Cancel(
            *this, [this] { Ok(); }, [this] { Close(Form_End::Closed); });
        Set_Layout(Column({Fields({"GotoLat", "GotoLon"}), Buttons({"Cmd_Ok", "Cmd_Cancel"})}));
        On_Load = [this] { Load(); };
    }

private:
    // What the canvas shows now is where the user sets out from.
    void Load() {
        Place_ = Pixel_To_LatLon(Pic_To_Map({View_Half_W, View_Half_H}));
        Lat_Text_ = Lat_To_Text(Place_.Lat);
        Lon_Text_ = Lon_To_Text(Place_.Lon);
        Set_Text("GotoLat", Lat_Text_);
        Set_Text("GotoLon", Lon_Text_);
        Set_Focus("GotoLat");
    }

    bool Take_Lat(const std::string& Text) {
        const std::size_t Blank = Text.find(' ');
        const Degrees_Read Lat = Any_To_Lat(Text.substr(0, Blank));
        if (Lat.Err != 0) return false;
        if (Blank != std::string::npos) {
            if (!Take_Lon(Text.substr(Blank + 1))) return false;
            Set_Text("GotoLon", Lon_Text_);
        }
        Place_.Lat = Lat.Deg;
        Lat_Text_ = Text.substr(0, Blank);
        return true;
    }

    bool Take_Lon(const std::string& Text) {
        const Degrees_Read Lon = Any_To_Lon(Text);
        if (Lon.Err != 0) return false;
        Place_.Lon = Lon.Deg;
        Lon_Text_ = Text;
        return true;
    }

    void Ok() {
        const Pix P = LatLon_To_Pixel(Place_);
        if (!(XGridNW <= P.X && P.X <= XGridSE && YGridNW <= P.Y && P.Y <= YGridSE))
            return Plain_Box(
                In_Language("This place lies beyond the map", "Ce lieu est en dehors de la carte"));
        View_Center_On_Point({.X = P.X, .Y = P.Y});
        Close(Form_End::Ok);
    }

    Geo Place_;
    std::string Lat_Text_, Lon_Text_;
};

}  // namespace

std::unique_ptr<Form> Make_Frm_Goto() {
    return std::make_unique<Goto_Form>();
}
