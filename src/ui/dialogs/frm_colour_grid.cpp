// ui/dialogs/frm_colour_grid.cpp - the colour of the grid.
#include <algorithm>
#include <array>

#include "core/program.h"
#include "ui/dialogs/dialogs.h"

namespace {

constexpr std::array<Long, 7> Greys{0xFFFFFF, 0xE0E0E0, 0xC0C0C0, 0xA0A0A0,
                                    0x808080, 0x404040, 0x000000};

class Colour_Form final : public Form {
public:
    Colour_Form() : Form("Frm_ColourGrid", {"Grid colour", "Couleur de la grille"}) {
        Add({.Kind = Control_Kind::Options,
             .Name = "Opt_ColourGrid",
             .Value = Grid_Colour_Index,
             .Colours = {Greys.begin(), Greys.end()},
             .On_Click = [this] { Take(); }});
        Set_Layout(Column({"Opt_ColourGrid"}));
        Place = Form_Place::Below("Cmd_ColourGrid");
    }

private:
    void Take() {
        Grid_Colour_Index = static_cast<Int>((*this)["Opt_ColourGrid"].Value);
        Grid_Colour = Greys[static_cast<std::size_t>(Grid_Colour_Index)];
        Close(Form_End::Ok);
    }
};

}  // namespace

std::unique_ptr<Form> Make_Frm_ColourGrid() {
    return std::make_unique<Colour_Form>();
}
