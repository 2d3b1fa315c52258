// ui/dialogs/frm_colour_grid.cpp - the colour of the grid.
#include "core/grid_colours.h"
#include "core/program.h"
#include "core/settings.h"
#include "ui/dialogs/dialogs.h"

namespace {

constexpr Long Nb_Greys = static_cast<Long>(Grid_Colours.size()) - 1;  // then the contrast

class Colour_Form final : public Form {
public:
    Colour_Form() : Form("Frm_ColourGrid", {"Grid colour", "Couleur de la grille"}) {
        Add({.Kind = Control_Kind::Options,
             .Name = "Opt_ColourGrid",
             .Value = Grid_Colour_Index,
             .Item_Words = {{"White", "Blanc"},
                            {"Pale grey", "Gris p\xE2le"},
                            {"Light grey", "Gris clair"},
                            {"Middle grey", "Gris moyen"},
                            {"Grey", "Gris"},
                            {"Dark grey", "Gris fonc\xE9"},
                            {"Black", "Noir"},
                            {"Automatic contrast", "Contraste automatique"}},
             .Colours = {Grid_Colours.begin(), Grid_Colours.end() - 1},
             .On_Click = [this] { Take(); }});
        Layouts Choices{Option("Opt_ColourGrid", Nb_Greys)};
        for (Long I = 0; I < Nb_Greys; ++I) Choices.push_back(Option("Opt_ColourGrid", I));
        Set_Layout(Column(std::move(Choices)));
        Place = Form_Place::Below("Cmd_ColourGrid");
    }

private:
    void Take() {
        Grid_Colour_Take(static_cast<Int>((*this)["Opt_ColourGrid"].Value));
        if (Keeps_View != 0) Setting_Put("GridColour", std::to_string(Grid_Colour_Index));
        Close(Form_End::Ok);
    }
};

}  // namespace

std::unique_ptr<Form> Make_Frm_ColourGrid() {
    return std::make_unique<Colour_Form>();
}
