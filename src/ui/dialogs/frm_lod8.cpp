// ui/dialogs/frm_lod8.cpp - the fill of an Area.
#include "core/dialog_flags.h"
#include "ui/dialogs/dialogs.h"
#include "ui/dialogs/square_dialog.h"

namespace {

class LOD8_Form final : public Record_Dialog<Lod8> {
public:
    LOD8_Form()
        : Record_Dialog("Frm_LOD8", {"Creation/modification Cell", "Creation/modification Cell"},
                        "LCreatMod", Tab_Lod8, Cur_Lod8, Area_Cancelled) {
        Add_Options({.Name = "Opt_Attrib", .Item_Words = {{"Water", "Water"}, {"Land", "Land"}}},
                    &Lod8::Attrib);
        Set_Layout(Around({"Opt_Attrib"}));
    }
};

}  // namespace

std::unique_ptr<Form> Make_Frm_LOD8() {
    return std::make_unique<LOD8_Form>();
}
