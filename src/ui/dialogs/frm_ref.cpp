// ui/dialogs/frm_ref.cpp - the chooser of reference files, and saving one.
#include "ui/dialogs/frm_ref.h"

#include <optional>

#include "core/host.h"
#include "core/messages.h"
#include "core/program.h"
#include "core/reference_file.h"
#include "platform/files.h"
#include "ui/dialogs/dialogs.h"

namespace {

class Ref_Form final : public Form {
public:
    Ref_Form()
        : Form("Frm_Ref", {"Line/poly references",
                           "R\xE9"
                           "ferences lignes/polygones"}) {
        Add({.Kind = Control_Kind::List,
             .Name = "Cmbo",
             .Columns = 40,
             .Items = Ref_Names,
             .On_Double_Click = [this] { Ok(); }});
        Add_Ok_Cancel(
            *this, [this] { Ok(); }, [this] { Close(Form_End::Closed); });
        Set_Layout(Column({"Cmbo", Buttons({"Cmd_Ok", "Cmd_Cancel"})}));
        On_Load = [this] { Set_Focus("Cmbo"); };
    }

private:
    void Ok() {
        const auto Row = static_cast<std::size_t>((*this)["Cmbo"].Value);
        Ref_Read(Ref_Dir() + Ref_Files[Row]);
        Ref_Cancelled = 0;
        Close(Form_End::Ok);
    }
};

bool May_Replace(const std::string& Path) {
    if (!File_Exists(Path)) return true;
    const Box Question{
        .Text = In_Language("The file already exists, do you want to replace it ?",
                            "Le fichier existe d\xE9j\xE0, voulez-vous le remplacer ? "),
        .Style = Box_Question + Box_Yes_No};
    return The_Host().Show_Box(Question) == Button_Yes;
}

}  // namespace

std::unique_ptr<Form> Make_Frm_Ref() {
    return std::make_unique<Ref_Form>();
}

bool Choose_Reference() {
    Ref_List();
    if (Nb_Refs == 0) return false;
    Ref_Cancelled = 1;
    The_Host().Run_Form("Frm_Ref");
    return Ref_Cancelled == 0;
}

void Save_Reference(const std::string& Name) {
    if (Name.empty()) {
        Msg_Show(133);
        return;
    }
    const std::optional<std::string> Path = The_Host().Ask_File(
        {.Mode = File_Question::Kind::Any_Name,
         .Title = In_Language("Line/Poly Reference", "Ref\xE9rence de ligne/Poly"),
         .Start_Dir = Ref_Dir(),
         .File_Name = {},
         .Filter = "Ref (*.Ref)|*.Ref"});
    if (Path && May_Replace(*Path)) Ref_Save(*Path, Name);
}
