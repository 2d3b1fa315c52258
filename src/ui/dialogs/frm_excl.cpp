// ui/dialogs/frm_excl.cpp - what is excluded from a Cell.
#include "core/dialog_flags.h"
#include "ui/dialogs/dialogs.h"
#include "ui/dialogs/square_dialog.h"

namespace {

constexpr std::size_t First_Named = 4;
constexpr Wording Named[] = {{"4 Rivers", "4 Rivi\xE8res"},
                             {"5 Railways", "5 Rails"},
                             {"6 Roads", "6 Routes"},
                             {"7 Polys/Bridges", "7 Polys/Ponts"},
                             {"8 Shorelines", "8 Rivages"}};
constexpr Long Nb_Columns = 12;  // of the boxes without a name

bool Is_Named(std::size_t I) {
    return First_Named <= I && I < First_Named + std::size(Named);
}

std::string Box_Name(std::size_t I) {
    return "Chk_Excl(" + std::to_string(I) + ")";
}

// What is written beside the boxes that have no name.
const std::vector<std::string>& Numbers() {
    static const std::vector<std::string> Texts = [] {
        std::vector<std::string> Made;
        for (std::size_t I = 0; I < Nb_Chk_Excl; ++I) Made.push_back(std::to_string(I) + " ");
        return Made;
    }();
    return Texts;
}

class Excl_Form final : public Record_Dialog<Excl> {
public:
    Excl_Form()
        : Record_Dialog("Frm_Excl", {"Exclude", "Exclude"}, "L_LCM", Tab_Excl, Cur_Excl,
                        Excl_Cancelled) {
        Layouts With_Name, Others;
        for (std::size_t I = 0; I < Nb_Chk_Excl; ++I) {
            Add_Box(I);
            (Is_Named(I) ? With_Name : Others).emplace_back(Box_Name(I));
        }
        Add_Button("Cmd_All", {"All", "Tout"}, 1);
        Add_Button("Cmd_None", {"None", "Rien"}, 0);
        Set_Layout(Around({Row(std::move(With_Name)), Grid(Nb_Columns, std::move(Others)),
                           Row({"Cmd_All", "Cmd_None", Space()})}));
    }

private:
    void Add_Box(std::size_t I) {
        const char* Number = Numbers()[I].c_str();
        Add_Check(
            {.Name = Box_Name(I),
             .Words = Is_Named(I) ? Named[I - First_Named] : Wording{Number, Number}},
            [I](auto& E) -> auto& { return E.Chk_Excl[I]; });
    }
    void Add_Button(const char* Name, Wording Words, Byte Value) {
        Add({.Kind = Control_Kind::Button, .Name = Name, .Words = Words, .On_Click = [this, Value] {
                 Change([Value](Excl& E) { E.Chk_Excl.fill(Value); });
             }});
    }
    Excl New_Record() const override {
        Excl E;
        for (std::size_t I = 0; I < std::size(Named); ++I) E.Chk_Excl[First_Named + I] = 1;
        return E;
    }
};

}  // namespace

std::unique_ptr<Form> Make_Frm_Excl() {
    return std::make_unique<Excl_Form>();
}
