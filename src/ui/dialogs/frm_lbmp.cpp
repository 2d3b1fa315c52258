// ui/dialogs/frm_lbmp.cpp - the texture picker: drives, directories and files, with a preview of
// the file chosen and what it is.
#include <algorithm>
#include <utility>

#include "core/messages.h"
#include "core/names.h"
#include "core/program.h"
#include "core/settings.h"
#include "platform/files.h"
#include "platform/text1252.h"
#include "tex/picture_square.h"
#include "tex/texture.h"
#include "ui/dialogs/dialogs.h"
#include "ui/dialogs/dir_lists.h"
#include "ui/dialogs/texture_pick.h"

namespace {

constexpr Long Preview_Side = 256;
constexpr Long Fault_Colour = 0xFF0000;
constexpr char No_Image[] = "Ce n'est pas un fichier image !!!!";  // in both languages

enum Filter_Row : Long { All_Files, Textures_Only };

bool Is_Named_As_Texture(const std::string& Name) {
    const std::string Capitals = Upper_1252(Name);
    return Capitals.ends_with(".BMP") || Capitals.ends_with(".R8");
}

std::string Start_Dir() {
    if (!LBmp_Dir.empty()) return LBmp_Dir;
    const std::string Simulator = Simulator_Found();
    return Simulator.empty() ? App_Path : Simulator;
}

class LBmp_Form final : public Form {
public:
    LBmp_Form() : Form("Frm_LBmp", {"Find a texture", "Rechercher une texture"}) {
        Add({.Kind = Control_Kind::Combo,
             .Name = "Cbo_Filter",
             .Words = {"Files:", "Fichiers :"},
             .Item_Words = {{"All files", "Tous les fichiers"}, {"Textures", "Textures"}},
             .On_Change = [this] { List_Files(); }});
        Add({.Kind = Control_Kind::List, .Name = "File1", .Value = -1, .On_Click = [this] {
                 Click_File();
             }});
        Add({.Kind = Control_Kind::Image,
             .Name = "Pic",
             .Said_Words = {"Picture of the texture", "Image de la texture"},
             .Width = Preview_Side,
             .Height = Preview_Side});
        Add({.Name = "LRes"});
        Add_Ok_Cancel(
            *this, [this] { Ok(); }, [this] { Close(Form_End::Closed); });
        Set_Layout(Column(
            {Fields({"Path"}),
             Row({Column({Fields({"Drive1"}), "Dir1"}), Column({Fields({"Cbo_Filter"}), "File1"}),
                  Column({"Pic", "LRes", Space()})}),
             Buttons({"Cmd_Ok", "Cmd_Cancel"})}));
        On_Load = [this] { Load(); };
        On_Unload = [this] { Unload(); };
    }

private:
    void Load() {
        LBmp_Selected = 0;
        LBmp_File.clear();
        Tex_Temp = App_Path + "\\$Tex$";
        Lists_.Show(Start_Dir());
        if (!(*this)["File1"].Items.empty()) {
            Set_Value("File1", 0);
            Click_File();
        }
        Set_Focus("File1");
    }
    // The preview needs neither file; one of an earlier run may lie there.
    void Unload() {
        File_Delete(App_Path + "\\$TBmp$");
        File_Delete(Tex_Temp);
        Tex_Temp.clear();
        Set_Shown("Pic", nullptr);
    }
    void Go_To_Dir() {
        LBmp_Dir = Lists_.Dir();
        Names_ = Dir_Files(LBmp_Dir);
        List_Files();
    }
    // The file chosen stays so, even when it is not in the list any more.
    void List_Files() {
        std::vector<std::string> Names = Names_;
        if ((*this)["Cbo_Filter"].Value == Textures_Only)
            std::erase_if(Names,
                          [](const std::string& Name) { return !Is_Named_As_Texture(Name); });
        const auto Chosen = std::ranges::find_if(Names, [this](const std::string& Name) {
            return LBmp_Selected != 0 && Path_Joined(Lists_.Dir(), Name) == LBmp_File;
        });
        const Long Row = Chosen == Names.end() ? -1 : static_cast<Long>(Chosen - Names.begin());
        Set_Items("File1", std::move(Names), Row);
    }
    void Click_File() {
        const Control& List = (*this)["File1"];
        LBmp_Selected = 1;
        LBmp_File = Path_Joined(Lists_.Dir(), List.Items[static_cast<std::size_t>(List.Value)]);
        Picture Whole;
        std::string Description;
        const Texture_Fault Fault = Texture_Read(LBmp_File, Pal_Fs5, Whole, Description);
        LBmp_Width = Whole.Width;
        LBmp_Height = Whole.Height;
        const bool Is_Image = Fault == Texture_Fault::None;
        Set_Colour("LRes", Is_Image ? Usual_Colour : Fault_Colour);
        Set_Caption("LRes", Is_Image ? Description : No_Image);
        if (!Is_Image) return;
        Shown_ = Picture_In_Square(std::move(Whole), Preview_Side);
        Set_Shown("Pic", &Shown_);
    }
    void Ok() {
        if (LBmp_Selected == 0) {
            Msg_Show(12);
            return;
        }
        std::string Dir, Name;
        Byte Error = 0;
        Path_Split(LBmp_File, Dir, Name, Error);
        if (Error == 0 && Dir_Exists(Dir)) LBmp_Dir = Dir;
        LBmp_Cancelled = 0;
        Close(Form_End::Ok);
    }

    std::vector<std::string> Names_;  // of all files in the directory
    Picture Shown_;
    Dir_Lists Lists_{*this, {.On_Dir = [this] { Go_To_Dir(); }}};
};

}  // namespace

std::unique_ptr<Form> Make_Frm_LBmp() {
    return std::make_unique<LBmp_Form>();
}
