// ui/dialogs/square_dialog.cpp - head and buttons of the dialogs of squares.
#include "ui/dialogs/square_dialog.h"

#include "core/number_text.h"
#include "ui/dialogs/dialogs.h"

namespace {

std::string Plain(Long X) {
    return std::string(Num_Text(X));
}

std::string Square_Text(const Cell_Pos& C) {
    return "C: " + Plain(C.AreaLon) + "-" + Plain(C.AreaLat) + "  A: " + Plain(C.CellLon) + "-" +
           Plain(C.CellLat);
}

std::string Squares_Text(const Square_Block& Block) {
    const std::vector<Cell_Pos> Cells = Cells_Of(Block);
    if (Cells.size() == 1) return Square_Text(Cells.front());
    return Square_Text(Cells.front()) + "  ...  " + Square_Text(Cells.back()) + "  (" +
           Plain(Block.Cols) + " x " + Plain(Block.Rows) + ")";
}

}  // namespace

Square_Dialog::Square_Dialog(std::string Name, Wording Title, std::string State_Label)
    : Form(std::move(Name), Title), State_Label_(std::move(State_Label)) {
    Add({.Name = State_Label_});
    Add({.Name = "L_Cell_Area"});
    Add_Ok_Cancel(
        *this, [this] { Ok(); }, [this] { Close(Form_End::Closed); });
    Add({.Kind = Control_Kind::Button,
         .Name = "Cmd_Sup",
         .Words = {"Suppress", "Supprimer"},
         .On_Click = [this] { Suppress(); }});
}

Layout Square_Dialog::Around(Layouts Parts) const {
    Parts.insert(Parts.begin(), Row({"L_Cell_Area", State_Label_}));
    Parts.push_back(Buttons({"Cmd_Ok", "Cmd_Sup", "Cmd_Cancel"}));
    return Column(std::move(Parts));
}

void Square_Dialog::Show_Head(bool Found) {
    Set_Caption("L_Cell_Area", Squares_Text(The_Squares));
    Set_Caption(State_Label_, Found ? "Modification" : "Creation");
    Set_Enabled("Cmd_Sup", Found);
}
