// ui/dialogs/frm_center_map.cpp - a calibration by the map's centre and the size of its pixels.
#include "core/messages.h"
#include "core/program.h"
#include "grid/map_centre.h"
#include "ui/dialogs/degree_fields.h"
#include "ui/dialogs/dialogs.h"
#include "ui/dialogs/project_draft.h"
#include "ui/form/field_rules.h"

namespace {

class Center_Form final : public Form {
public:
    Center_Form()
        : Form("Frm_CenterMap", {"Map center coordinates",
                                 "Coordonn\xE9"
                                 "es du centre de la carte"}) {
        Add({.Name = "L_CoordMap",
             .Words = {"Center coordinates",
                       "Coordonn\xE9"
                       "es du centre"}});
        Add_Degree_Fields(*this, Fields_);
        Add({.Name = "L_Meter_Pixel", .Words = {"Meters per pixel", "M\xE8tres par pixel"}});
        Add_Metres("NbM_Per_Pixel_Lat", {"North to south:", "Du nord au sud :"}, At_.Mpp_Lat);
        Add_Metres("NbM_Per_Pixel_Lon", {"West to east:", "D'ouest en est :"}, At_.Mpp_Lon);
        Add({.Name = "L_Pix_Lat", .Columns = 8});
        Add({.Name = "L_Pix_Lon", .Columns = 8});
        Add_Ok_Cancel(
            *this, [this] { Ok(); }, [this] { Close(Form_End::Closed); });
        Set_Layout(Column({"L_CoordMap", Degree_Layout(Fields_, 0, 1), "L_Meter_Pixel",
                           Fields({Row({"NbM_Per_Pixel_Lat", "L_Pix_Lat"}),
                                   Row({"NbM_Per_Pixel_Lon", "L_Pix_Lon"})}),
                           Buttons({"Cmd_Ok", "Cmd_Cancel"})}));
        On_Load = [this] { Load(); };
    }

private:
    void Add_Metres(const char* Name, Wording Words, Double& Metres) {
        Add({.Kind = Control_Kind::Number,
             .Name = Name,
             .Words = Words,
             .Rule = Number_Rule(Metres, {.Min = 0.0}),
             .Columns = 20});
    }

    void Load() {
        Show_Degree_Fields(*this, Fields_);
        Set_Text("NbM_Per_Pixel_Lat", Shown_Number(At_.Mpp_Lat));
        Set_Text("NbM_Per_Pixel_Lon", Shown_Number(At_.Mpp_Lon));
        Set_Caption("L_Pix_Lat", Shown_Number(The_Draft.New_Map_Height));
        Set_Caption("L_Pix_Lon", Shown_Number(The_Draft.New_Map_Width));
    }

    // Nothing may leave the globe.
    void Ok() {
        Project_Draft& D = The_Draft;
        if (!Calibrate_By_Centre(At_, D.New_Map_Width, D.New_Map_Height, D.New_Cal)) {
            Msg_Show(7);
            return;
        }
        Cad_Cancelled = 0;
        Close(Form_End::Ok);
    }

    using Axis = Degree_Field::Axis;
    Map_Centre At_ =
        Centre_Of_Points(The_Draft.New_Cal, The_Draft.New_Map_Width, The_Draft.New_Map_Height);
    std::vector<Degree_Field> Fields_{
        {"LatDecCenter", "LLatCenter", {"Latitude:", "Latitude :"}, Axis::Lat, &At_.Center_Lat},
        {"LonDecCenter", "LLonCenter", {"Longitude:", "Longitude :"}, Axis::Lon, &At_.Center_Lon}};
};

}  // namespace

std::unique_ptr<Form> Make_Frm_CenterMap() {
    return std::make_unique<Center_Form>();
}
