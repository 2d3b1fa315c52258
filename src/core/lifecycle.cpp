// core/lifecycle.cpp - the commands that open, save, close and empty a project.
#include "core/lifecycle.h"

#include <optional>

#include "core/check.h"
#include "core/history.h"
#include "core/host.h"
#include "core/journal.h"
#include "core/messages.h"
#include "core/model_ops.h"
#include "core/names.h"
#include "core/program.h"
#include "core/project_file.h"
#include "core/project_watch.h"
#include "core/settings.h"
#include "core/view_calls.h"
#include "core/within_memory.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text1252.h"

namespace {

constexpr char Project_Filter[] = "Terrafold (*.LWM)|*.LWM";

void Show_Title() {
    The_Host().Set_Caption("Frm", std::string(Program_Title) + "  " + Shown_Path(Nom_Projet));
}

// What a project needs to be worked on once its model stands.
void Begin_Editing(bool As_On_Disk) {
    Project_Seen_First(Nom_Projet);
    History_Start();
    Journal_Start(As_On_Disk);
    Show_Title();
    Enable_Project_Cmds();
    New_Projet = 0;
    Edit_On = 1;
    Call(The_View.View_Take);
    Call(The_View.Mode_Area_On);
    Call(The_View.View_Redraw);
    The_Host().Set_Pointer(Pointer_Shape::Normal);
    Call(The_View.History_Show);
}

// Ends the open project, or what an attempt at one left; false when the user cancels.
bool Leave_Project() {
    if (Projet_Open == 0) {
        Call(The_View.Tiles_Remove);
        return true;
    }
    if (!Ask_Save()) return false;
    Close_View();
    return true;
}

// Asks until the name can serve. The boxes of the system know more characters than a project's
// name may have.
std::optional<std::string> Ask_Project_File(const File_Question& Q) {
    for (;;) {
        std::optional<std::string> Path = The_Host().Ask_File(Q);
        if (!Path || Name_Valid(Path_Name(*Path))) return Path;
        Msg_Wrong_Value({}, Path_Name(*Path), Name_Rule_Text());
    }
}

void End_Failed_Opening() {
    Call(The_View.Ima_Unload);
    Projet_Open = 0;
    The_Host().Set_Pointer(Pointer_Shape::Normal);
}

bool Show_Loaded(bool As_On_Disk) {
    const std::string Former_Map = Carte;  // one that is missing is asked for
    bool Is_Shown = false;
    const bool Fits = Within_Memory([&] {
        if (The_View.Tiles_Build && !The_View.Tiles_Build()) return;
        Recent_Update(Nom_Projet, 1);
        Begin_Editing(As_On_Disk && Carte == Former_Map);
        Is_Shown = true;
    });
    if (Is_Shown) return true;
    if (!Fits) Close_View();
    End_Failed_Opening();
    Init_Tables();  // a project without its map can't be worked on
    if (!Fits) Box_No_Memory("The project", "Le projet");
    return false;
}

void Open_In_View(std::string_view Path) {
    Nom_Projet = std::string(Path);
    The_Host().Set_Pointer(Pointer_Shape::Hourglass);
    Call(The_View.View_Reset);
    Call(The_View.Route_Reset);
    Open_Project(Nom_Projet);
    The_Host().Set_Pointer(Pointer_Shape::Normal);
}

void Run_Form(std::string_view Form) {
    The_Host().Run_Form(Form);
}

}  // namespace

bool Ask_Save() {
    if (Projet_Open == 0) return true;
    const std::string Question = In_Language("Do you want to save ",
                                             "Voulez-vous enregistrer les modifications apport\xE9"
                                             "es \xE0 ");
    const Int Answer =
        The_Host().Show_Box({.Text = Question + Upper_1252(Shown_Path(Nom_Projet)) + " ?",
                             .Style = Box_Question + Box_Yes_No_Cancel});
    if (Answer == Button_Yes) return Save_Project(0, {});
    return Answer == Button_No;
}

bool Load_Project(std::string_view Path) {
    const std::string Wanted(Path);  // Path may be a view of what is replaced
    Nom_Projet = Wanted;
    Projet_Open = 0;
    Project_Seen(Wanted);
    Read_Project_File(Wanted);
    if (Load_Failed != 0) return false;
    Projet_Open = 1;
    return true;
}

void Open_Project(std::string_view Path) {
    if (!Load_Project(Path)) return End_Failed_Opening();
    Show_Loaded(V24_Upgrade == 0);
}

bool Open_Restored(const std::function<bool()>& Load, bool As_On_Disk) {
    The_Host().Set_Pointer(Pointer_Shape::Hourglass);
    Call(The_View.View_Reset);
    Call(The_View.Route_Reset);
    if (Load()) return Show_Loaded(As_On_Disk);
    End_Failed_Opening();
    return false;
}

void Close_View() {
    Call(The_View.View_Keep);
    History_End();
    Call(The_View.History_Show);
    Journal_End();
    Project_Unseen();
    Call(The_View.Forms_Close);
    Call(The_View.Tiles_Remove);
    Call(The_View.Mode_Leave);
    Call(The_View.View_Clear);
    for (const char* Label :
         {"L_MouseBmp", "LLat", "LLon", "LLatDec", "LLonDec", "L_NumCell_Area", "L_CustomBmp"})
        The_Host().Set_Caption(Label, "");
    Disable_Project_Cmds();
    The_Host().Set_Caption("Frm", Program_Title);
    Projet_Open = 0;
    Edit_On = 0;
    Call(The_View.History_Show);
}

void Cmd_New() {
    if (!Leave_Project()) return;
    PPro_Ok = 0;
    New_Projet = 1;
    Call(The_View.View_Reset);
    Run_Form("Frm_PPro");
    if (PPro_Ok == 0) return;
    if (File_Exists(Nom_Projet)) {
        Call(The_View.Tiles_Remove);
        Msg_Show(32);
        return;
    }
    Projet_Open = 1;
    Init_Tables();
    Project_Unseen();
    Call(The_View.View_Reset);
    Call(The_View.Tiles_Show);
    Recent_Update(Nom_Projet, 1);
    Call(The_View.Route_Reset);
    Begin_Editing(false);
}

void Mnu_File_Open() {
    if (!Leave_Project()) return;
    const auto Path =
        Ask_Project_File({.Mode = File_Question::Kind::Open,
                          .Title = In_Language("Loading a file", "Chargement d'un Projet"),
                          .Start_Dir = std::string(Path_Dir(Nom_Projet)),
                          .File_Name = {},
                          .Filter = Project_Filter});
    if (Path) Open_In_View(*Path);
}

void Mnu_File_Prec(Int Index) {
    Check(0 <= Index && Index < static_cast<Int>(DerApt.size()), "an entry of the recent list");
    if (!Leave_Project()) return;
    const std::string Path = DerApt[static_cast<std::size_t>(Index)];
    if (Path.empty()) {
        Msg_Show(33);
        return;
    }
    if (!File_Exists(Path)) {
        Msg_Show(33);
        Recent_Update(Path, 2);
        return;
    }
    Open_In_View(Path);
}

void Open_From_Outside(std::string_view Path) {
    const std::string Wanted(Path);
    if (!Leave_Project()) return;
    if (!Name_Valid(Path_Name(Wanted))) {
        Msg_Wrong_Value({}, Path_Name(Wanted), Name_Rule_Text());
        return;
    }
    Open_In_View(Wanted);
}

void Mnu_File_Close() {
    Leave_Project();
}

void Cmd_Save() {
    Save_Project(0, {});
    The_Host().Set_Focus("Pic");
}

void Mnu_File_Enreg() {
    Save_Project(0, {});
}

void Mnu_File_Enreg_Sous() {
    const auto Path = Ask_Project_File(
        {.Mode = File_Question::Kind::Save,
         .Title = In_Language("Project : Save as ...", "Projet : Enregistrer sous ..."),
         .Start_Dir = std::string(Path_Dir(Nom_Projet)),
         .File_Name = std::string(Path_Name(Nom_Projet)),
         .Filter = Project_Filter});
    if (Path && Save_Project(1, *Path)) Recent_Update(*Path, 1);
}

void Mnu_Reinit() {
    if (Projet_Open == 0) return;
    const std::string Question =
        In_Language("Do you want to really initialize ", "Voulez-vous r\xE9llement initialiser ");
    const Int Answer =
        The_Host().Show_Box({.Text = Question + Upper_1252(Shown_Path(Nom_Projet)) + " ?",
                             .Style = Box_Question + Box_Yes_No});
    if (Answer != Button_Yes) return;
    Call(The_View.Mode_Leave);
    if (Nb_Ima != 0) Call(The_View.Ima_Unload);
    Call(The_View.View_Reset);
    Call(The_View.Bars_Follow);
    Call(The_View.Route_Reset);
    Init_Tables();
    Enable_Project_Cmds();
    Call(The_View.Mode_Area_On);
    Call(The_View.View_Redraw);
    The_Host().Set_Pointer(Pointer_Shape::Normal);
}

bool Mnu_File_Quit() {
    if (!Ask_Save()) return false;
    Program_End();
    return true;
}

void Mnu_Param_File() {
    New_Projet = 0;
    Run_Form("Frm_PPro");
}

void Mnu_Param_Gene() {
    Run_Form("Frm_PGen");
}

void Mnu_ModCad() {
    Cad_Cancelled = 1;
    Run_Form("Frm_ModCad");
    Call(The_View.View_Redraw);
}

void Mnu_par_Remesh() {
    Run_Form("Frm_Mesh");
    Call(The_View.View_Redraw);
}

void Mnu_Tool_CvLL() {
    Run_Form("Frm_CvLL1");
}

void Cmd_Help() {
    The_Host().Show_Help();
    The_Host().Set_Focus("Pic");
}
