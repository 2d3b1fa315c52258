// ui/frm/frm.cpp - the main form: what its controls do, and what the rest of the program sees of
// it.
#include "ui/frm/frm.h"

#include <array>
#include <string>
#include <utility>

#include "core/check.h"
#include "core/history.h"
#include "core/host.h"
#include "core/lifecycle.h"
#include "core/model.h"
#include "core/names.h"
#include "core/program.h"
#include "core/resets.h"
#include "core/view_calls.h"
#include "gen/driver.h"
#include "platform/paths.h"
#include "platform/text1252.h"
#include "ui/canvas/ima_pictures.h"
#include "ui/canvas/map_tiles.h"
#include "ui/canvas/surface.h"
#include "ui/canvas/view.h"
#include "ui/edit/ima_tools.h"
#include "ui/edit/modes.h"
#include "ui/edit/route_tools.h"
#include "ui/edit/undo.h"
#include "ui/form/form_events.h"
#include "ui/form/form_list.h"
#include "ui/frm/button_items.h"
#include "ui/frm/frm_controls.h"
#include "ui/frm/frm_help.h"
#include "ui/frm/frm_keys.h"
#include "ui/frm/generate.h"
#include "ui/frm/kept_view.h"
#include "ui/frm/undo_controls.h"
#include "ui/frm/view_controls.h"

namespace {

// The main form, and what of it was in reach when a long work began.
struct Main_Form {
    std::unique_ptr<Form> The_Form;
    std::vector<std::string> Kept_Away;
};

Main_Form& The_Main() {
    static Main_Form Main;
    return Main;
}

const bool Is_Reset = At_Reset(Frm_Remove);

using Command = std::pair<const char*, void (*)()>;

template <void (*Save)()>
void Save_And_Tidy() {
    Save();
    Points_Tidy();
}

constexpr Command Menu_Commands[] = {
    {"Mnu_File_New", Cmd_New},
    {"Mnu_File_Open", Mnu_File_Open},
    {"Mnu_File_Enreg", Save_And_Tidy<Mnu_File_Enreg>},
    {"Mnu_File_Enreg_Sous", Mnu_File_Enreg_Sous},
    {"Mnu_File_Close", Mnu_File_Close},
    {"Mnu_File_Prec(0)", [] { Mnu_File_Prec(0); }},
    {"Mnu_File_Prec(1)", [] { Mnu_File_Prec(1); }},
    {"Mnu_File_Prec(2)", [] { Mnu_File_Prec(2); }},
    {"Mnu_File_Prec(3)", [] { Mnu_File_Prec(3); }},
    {"Mnu_Edit_Undo", Cmd_Undo},
    {"Mnu_Edit_Redo", Cmd_Redo},
    {"Mnu_Param_File", Mnu_Param_File},
    {"Mnu_par_Remesh", Mnu_par_Remesh},
    {"Mnu_ModCad", Mnu_ModCad},
    {"Mnu_Param_Gene", Mnu_Param_Gene},
    {"Mnu_Reinit", Mnu_Reinit},
    {"Mnu_Tool_CvLL", Mnu_Tool_CvLL},
    {"Mnu_Help_Page", Mnu_Help_Page},
    {"Mnu_Help_About", Mnu_Help_About},
};

constexpr Command Button_Commands[] = {
    {"Cmd_New", Cmd_New},
    {"Cmd_Save", Save_And_Tidy<Cmd_Save>},
    {"Cmd_Undo", Cmd_Undo},
    {"Cmd_Redo", Cmd_Redo},
    {"Cmd_ZPlus", Cmd_ZPlus},
    {"Cmd_ZMoins", Cmd_ZMoins},
    {"Cmd_AffBmp", Cmd_AffBmp},
    {"Cmd_AffTexture", Cmd_AffTexture},
    {"Cmd_Grid", Cmd_Grid},
    {"Cmd_ColourGrid", Cmd_ColourGrid},
    {"Cmd_FSUIPC", Cmd_FSUIPC},
    {"Cmd_API", Generate_In_View},
    {"Cmd_Stop_API", Generate_Stop},
    {"Cmd_Help", Cmd_Help},
    {"Cmd_Sup_Route_Ou_Pt", Cmd_Sup_Route_Ou_Pt},
    {"Cmd_Tabul", Cmd_Tabul},
    {"Cmd_New_Ima", Cmd_New_Ima},
    {"Cmd_Sel_Ima", Cmd_Sel_Ima},
    {"Cmd_Sel_Crb_Ima", Cmd_Sel_Crb_Ima},
    {"Cmd_New_Route", Cmd_New_Route},
    {"Cmd_Sel_Route", Cmd_Sel_Route},
    {"Cmd_Sel_Pt_Route", Cmd_Sel_Pt_Route},
    {"Cmd_Extr_Pt_Route", Cmd_Extr_Pt_Route},
    {"Cmd_Ins_Pt_Route", Cmd_Ins_Pt_Route},
};

void Set_Handlers(Form& F) {
    for (const auto& [Name, Run] : Menu_Commands) F.Handlers(Name).On_Click = Run;
    for (const auto& [Name, Run] : Button_Commands)
        F.Handlers(Name).On_Click = [Run = Run] {
            Run();
            Hint_Show();
            The_Host().Set_Focus("Pic");
        };
    for (const Mode_Row* Row : Mode_Rows) {
        Control& Button = F.Handlers(Row->Button);
        Button.Checkable = true;
        Button.On_Click = [Row] {
            Mode_Enter(*Row);
            The_Host().Set_Focus("Pic");
        };
    }
    F.Handlers("Mnu_File_Quit").On_Click = [&F] {
        if (Mnu_File_Quit()) F.Close(Form_End::Closed);
    };
    F.Handlers("HScroll").On_Change = [&F] { HScroll_Change(F["HScroll"].Value); };
    F.Handlers("VScroll").On_Change = [&F] { VScroll_Change(F["VScroll"].Value); };
    View_Controls_Install(F);
    Button_Items_Install(F);
    Control& Pic = F.Handlers("Pic");
    Pic.On_Mouse = Pic_Mouse;
    Pic.On_Key = Pic_Key;
    Pic.On_Resize = View_Resize;
    F.On_Key = Frm_Key;
    F.On_Close = Mnu_File_Quit;
    F.On_Drop = [](std::string_view Path) { Frm_Drop(Path); };
    F.Reserved_Keys = Alt_Letters();
}

// What is told of history and view.
void Controls_Follow() {
    Undo_Controls_Show();
    View_Controls_Show();
    if (Frm_Is_There()) Button_Items_Show(Frm());
}

// What an act has changed is a step, however it came about.
void Act_Ended(const std::string& Of, bool Is_Tick) {
    History_Act_Ended(Of, Is_Tick);
    Controls_Follow();
}

void View_Clear() {
    Mode_Clear();
    The_Overlay = {};
    The_Surface().Clear();
    The_Surface().Refresh();
    The_Surface().Overlay_Changed();
}

void Install_View_Calls() {
    The_View.View_Redraw = [] {
        View_Redraw();
        View_Controls_Show();
        Button_Items_Show(Frm());
    };
    The_View.View_Reset = View_Reset;
    The_View.View_Keep = Kept_View_Keep;
    The_View.View_Take = Kept_View_Take;
    The_View.Bars_Follow = Scroll_Bars_Follow;
    The_View.View_Clear = View_Clear;
    The_View.Route_Reset = Route_Reset;
    The_View.Route_Leave = Route_Leave;
    The_View.Mode_Area_On = Mode_Area_On;
    The_View.Mode_Route_On = Mode_Route_On;
    The_View.Forms_Close = Forms_Close;
    The_View.Apply_Language = Apply_Language;
    The_View.Tiles_Build = Tiles_Build;
    The_View.Tiles_Show = Tiles_Show;
    The_View.Tiles_Remove = Map_Free_Tiles;
    The_View.Ima_Load = Ima_Load;
    The_View.Ima_Unload = Ima_Unload;
    The_View.Ima_Clear = Ima_Leave;
    The_View.History_Show = Controls_Follow;
}

bool Is_Command(const Control& C) {
    return C.Kind == Control_Kind::Button || C.Kind == Control_Kind::Menu_Item ||
           C.Kind == Control_Kind::Scroll_Bar;
}

// Puts every command out of reach while the scenery is being generated, and gives back those
// that were in reach.
void Keep_Commands_Away(bool Away) {
    Main_Form& M = The_Main();
    if (!Away)
        for (const std::string& Name : std::exchange(M.Kept_Away, {}))
            Frm().Set_Enabled(Name, true);
    if (!Away || !M.Kept_Away.empty()) return;
    for (const Control& C : Frm().Controls())
        if (Is_Command(C) && !C.In_Long_Work && C.Enabled) M.Kept_Away.push_back(C.Name);
    for (const std::string& Name : M.Kept_Away) Frm().Set_Enabled(Name, false);
}

}  // namespace

Form& Frm() {
    Check(Frm_Is_There(), "the main form is made before it is used");
    return *The_Main().The_Form;
}

bool Frm_Is_There() {
    return The_Main().The_Form != nullptr;
}

void Frm_Install() {
    Main_Form& M = The_Main();
    M.The_Form = std::make_unique<Form>("Frm");
    M.Kept_Away.clear();
    Frm_Add_Controls(*M.The_Form);
    Set_Handlers(*M.The_Form);
    Install_View_Calls();
    Form_Register("Frm_Help", Make_Frm_Help);
    Modes_Install();
    Gen_Install();
    On_Act_Ended = Act_Ended;
    Controls_Follow();
}

void Frm_Remove() {
    The_Main() = {};
}

void Apply_Language() {
    Frm().Set_Language(Language);
    Undo_Controls_Show();
    Hint_Show();
}

bool Frm_Drop(std::string_view Path) {
    if (!Equal_No_Case(Path.substr(Path.size() - std::min<std::size_t>(Path.size(), 4)), ".LWM"))
        return false;
    Open_From_Outside(Path);
    return true;
}

void Frm_Set_Caption(std::string_view Control, std::string_view Text) {
    if (Control == "Frm") return Frm().Set_Title(Text);
    Frm().Set_Caption(Control, Text);
}

void Frm_Set_Enabled(std::string_view Control, bool On) {
    Frm().Set_Enabled(Control, On);
    Button_Items_Show(Frm());
}

void Frm_Set_Visible(std::string_view Control, bool On) {
    if (Control == "LPtGrid") {
        The_Overlay.LPtGrid.Visible = On;
        The_Surface().Overlay_Changed();
        return;
    }
    Frm().Set_Visible(Control, On);
    if (Control == "Fram_Compile") Keep_Commands_Away(On);
}

void Frm_Set_Value(std::string_view Control, Long Value) {
    Frm().Set_Value(Control, Value);
}

void Frm_Set_Focus(std::string_view Control) {
    Frm().Set_Focus(Control);
}
