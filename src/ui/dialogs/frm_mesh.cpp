// ui/dialogs/frm_mesh.cpp - how fine the mesh of altitudes is, with advice from the map's scale.
#include <algorithm>
#include <cmath>
#include <optional>
#include <string>

#include "core/model.h"
#include "grid/terrain_grid.h"
#include "ui/dialogs/dialogs.h"

namespace {

constexpr Int First_Lod = 12;
constexpr Int Nb_Lods = 5;
constexpr Double Enough_Pixels = 7.0;  // between two lines of the mesh

// The finest level whose lines lie far enough apart on the map, or none.
std::optional<Int> Advised_Lod() {
    const Double Ry = std::fabs((static_cast<Double>(YPtSE) - YPtNW) / (LatPtSE - LatPtNW) *
                                Cell_StepLat / Loc_Cell_Span);
    const Double Rx = std::fabs((static_cast<Double>(XPtSE) - XPtNW) / (LonPtSE - LonPtNW) *
                                Cell_StepLon / Loc_Cell_Span);
    Double R = std::min(Rx, Ry) * 2.0;
    for (Int Round = 0; Round < Nb_Lods; ++Round, R *= 2.0)
        if (!(R < Enough_Pixels)) return static_cast<Int>(First_Lod - Round);
    return {};
}

class Mesh_Form final : public Form {
public:
    Mesh_Form() : Form("Frm_Mesh", {"Re-Mesh", "Re-Mesh"}) {
        Add({.Name = "L_Info",
             .Words = {"Advised minimum value",
                       "Valeur minimum conseill\xE9"
                       "e"}});
        Add({.Name = "L_Info_Cons"});
        Add({.Kind = Control_Kind::Options,
             .Name = "Opt_LodMesh",
             .Upright = true,
             .Value = -1,
             .Item_Words = {{"Lod12 (9.6 m)", "Lod12 (9.6 m)"},
                            {"Lod11 (19.1 m)", "Lod11 (19.1 m)"},
                            {"Lod10 (38.2 m)", "Lod10 (38.2 m)"},
                            {"Lod9 (76.4 m)", "Lod9 (76.4 m)"},
                            {"Lod8 (152.9 m)", "Lod8 (152.9 m)"}},
             .On_Click = [this] { Chosen_ = static_cast<Int>((*this)["Opt_LodMesh"].Value); }});
        Add_Ok_Cancel(
            *this, [this] { Ok(); }, [this] { Close(Form_End::Closed); });
        Set_Layout(Column(
            {Row({"L_Info", "L_Info_Cons"}), "Opt_LodMesh", Buttons({"Cmd_Ok", "Cmd_Cancel"})}));
        On_Load = [this] { Load(); };
    }

private:
    void Load() {
        const std::optional<Int> Lod = Advised_Lod();
        if (Lod) {
            Set_Caption("L_Info_Cons", "Lod" + std::to_string(*Lod));
            if (Mesh_Done == 0) LodMesh = static_cast<Int>(First_Lod - *Lod);
            Set_Value("Opt_LodMesh", LodMesh);
        }
        Chosen_ = LodMesh;
    }
    void Ok() {
        Mesh_Done = 1;
        LodMesh = Chosen_;
        Close(Form_End::Ok);
    }

    Int Chosen_ = 0;  // the working copy of LodMesh
};

}  // namespace

std::unique_ptr<Form> Make_Frm_Mesh() {
    return std::make_unique<Mesh_Form>();
}
