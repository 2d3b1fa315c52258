// ui/dialogs/frm_ima.cpp - a texture on the map: its picture and those of the seasons.
#include "core/dialog_flags.h"
#include "core/messages.h"
#include "core/model.h"
#include "core/model_ops.h"
#include "core/program.h"
#include "core/project_paths.h"
#include "platform/files.h"
#include "ui/canvas/edit_state.h"
#include "ui/dialogs/dialogs.h"
#include "ui/dialogs/texture_pick.h"
#include "ui/form/field_rules.h"

namespace {

std::string Season_Name(std::size_t I) {
    return "Texture_Name(" + std::to_string(I) + ")";
}

constexpr Wording Seasons[] = {{"Spring:", "Printemps :"},
                               {"Summer:",
                                "\xC9"
                                "t\xE9 :"},
                               {"Autumn:", "Automne :"},
                               {"Winter:", "Hiver :"},
                               {"Hard winter:", "Hiver rude :"}};

class Ima_Form final : public Form {
public:
    Ima_Form()
        : Form("Frm_Ima", {"Texture modification/creation",
                           "Modification/cr\xE9"
                           "ation de texture"}) {
        Cur_Ima = Ima_Dialog == Ima_Dialogs::Edit ? Tab_Ima[Sel_Ima] : Ima();
        Add({.Kind = Control_Kind::Text,
             .Name = "DirFic",
             .Words = {"Texture:", "Texture :"},
             .Columns = 48,
             .Read_Only = true,
             .On_Choose = [this] { Choose_Picture(); }});
        Add({.Kind = Control_Kind::Frame,
             .Name = "Fram_Tex_Season",
             .Words = {"Seasonnal textures", "Textures saisonni\xE8res"}});
        Layouts Rows;
        for (std::size_t I = 0; I < Cur_Ima.Texture_Name.size(); ++I) {
            Add_Season(I);
            Rows.push_back(Season_Name(I));
        }
        Add_Ok_Cancel(
            *this, [this] { Ok(); }, [this] { Close(Form_End::Closed); });
        Set_Layout(Column({Fields({"DirFic"}), Frame("Fram_Tex_Season", {Fields(std::move(Rows))}),
                           Buttons({"Cmd_Ok", "Cmd_Cancel"})}));
        On_Load = [this] { Load(); };
    }

private:
    void Add_Season(std::size_t I) {
        Add({.Kind = Control_Kind::Text,
             .Name = Season_Name(I),
             .Words = Seasons[I],
             .Rule = Text_Rule(
                 Cur_Ima.Texture_Name[I],
                 [](const std::string& Text) {
                     return Text.empty() || File_Exists(In_Project(Text));
                 },
                 File_Or_None),
             .Columns = 48,
             .No_Quotes = true,
             .On_Choose = [this, I] { Choose_Season(I); }});
    }

    void Load() {
        Set_Text("DirFic", Cur_Ima.DirFic);
        for (std::size_t I = 0; I < Cur_Ima.Texture_Name.size(); ++I)
            Set_Text(Season_Name(I), Cur_Ima.Texture_Name[I]);
    }

    // What is no image is not taken.
    void Choose_Picture() {
        std::string Path = Cur_Ima.DirFic;
        if (!Pick_Texture(Path)) return;
        if (LBmp_Width == 0) {
            Msg_Show(124);
            return;
        }
        Cur_Ima.DirFic = Path;
        Cur_Ima.Ima_Width = static_cast<Int>(LBmp_Width);
        Cur_Ima.Ima_Height = static_cast<Int>(LBmp_Height);
        Set_Text("DirFic", Path);
    }

    // The picker begins where the field's text is, be it accepted or not.
    void Choose_Season(std::size_t I) {
        std::string Path = (*this)[Season_Name(I)].Text;
        if (!Pick_Texture(Path)) return;
        Cur_Ima.Texture_Name[I] = Path;
        Set_Text(Season_Name(I), Path);
    }

    void Ok() {
        if (Cur_Ima.DirFic.empty()) {
            Msg_Show(537);
            return;
        }
        if (Ima_Dialog != Ima_Dialogs::Create)
            Ima_Store(Sel_Ima, Cur_Ima);
        else if (Ima_Add(Cur_Ima) == 0)
            return Plain_Box(In_Language("The project has no number left for a texture",
                                         "Le projet n'a plus de num\xE9ro pour une texture"));
        Ima_Cancelled = 0;
        Close(Form_End::Ok);
    }
};

}  // namespace

std::unique_ptr<Form> Make_Frm_Ima() {
    return std::make_unique<Ima_Form>();
}
