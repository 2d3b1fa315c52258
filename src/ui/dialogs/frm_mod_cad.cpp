// ui/dialogs/frm_mod_cad.cpp - other degrees for the two points of an open project.
#include "core/messages.h"
#include "core/model.h"
#include "core/program.h"
#include "geo/calibration.h"
#include "grid/map_limits.h"
#include "ui/dialogs/degree_fields.h"
#include "ui/dialogs/dialogs.h"

namespace {

class ModCad_Form final : public Form {
public:
    ModCad_Form() : Form("Frm_ModCad", {"NW/SE point map", "Points NW/SE carte"}) {
        Add_Degree_Fields(*this, Fields_);
        Add_Ok_Cancel(
            *this, [this] { Ok(); }, [this] { Close(Form_End::Closed); });
        Set_Layout(Column({Degree_Layout(Fields_, 0, 3), Buttons({"Cmd_Ok", "Cmd_Cancel"})}));
        On_Load = [this] { Show_Degree_Fields(*this, Fields_); };
    }

private:
    void Ok() {
        if (!Points_In_Order(New_)) {
            Msg_Show(7);
            return;
        }
        Compute_Map_Limits(New_, Map_Width, Map_Height);
        The_Calibration = New_;
        Reproject_Cells(Old_);
        Cad_Cancelled = 0;
        Close(Form_End::Ok);
    }

    using Axis = Degree_Field::Axis;
    const Calibration Old_ = The_Calibration;  // in force when the dialog opened
    Calibration New_ = The_Calibration;
    std::vector<Degree_Field> Fields_{
        {"NWLatDec", "LNWLat", {"NW latitude:", "Latitude NW :"}, Axis::Lat, &New_.LatPtNW},
        {"NWLonDec", "LNWLon", {"NW longitude:", "Longitude NW :"}, Axis::Lon, &New_.LonPtNW},
        {"SELatDec", "LSELat", {"SE latitude:", "Latitude SE :"}, Axis::Lat, &New_.LatPtSE},
        {"SELonDec", "LSELon", {"SE longitude:", "Longitude SE :"}, Axis::Lon, &New_.LonPtSE}};
};

}  // namespace

std::unique_ptr<Form> Make_Frm_ModCad() {
    return std::make_unique<ModCad_Form>();
}
