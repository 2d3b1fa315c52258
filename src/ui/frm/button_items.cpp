// ui/frm/button_items.cpp - a row for each button that has no menu item of its own.
#include "ui/frm/button_items.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

#include "core/model.h"
#include "ui/canvas/edit_state.h"
#include "ui/edit/modes.h"
#include "ui/form/form_events.h"
#include "ui/frm/frm_keys.h"

namespace {

// --- what there is to do, beyond what the button knows -------------------------------------

bool Has_Objects() {
    return Nb_Obj >= First_Obj;
}

bool Has_Textures() {
    for (Long I = 1; I <= Nb_Ima; ++I)
        if (Tab_Ima[I].Active != 0) return true;
    return false;
}

bool Is_Object_Selected() {
    return Obj_Selected != 0;
}

bool Is_Line_Selected() {
    return Obj_Selected != 0 && Sel_Obj <= Nb_Obj && Tab_Obj[Sel_Obj].Nb_Pts >= 2;
}

bool Is_Any_Selected() {
    return Mode_Ima != 0 ? Ima_Selected != 0 : Obj_Selected != 0;
}

bool Has_Any() {
    return Mode_Ima != 0 ? Has_Textures() : Has_Objects();
}

struct Item_Row {
    std::string_view Name, Button;
    std::string_view Shortcut = {};
    std::string_view Canvas_Key = {};  // does the same on the canvas
    bool (*Has_Work)() = nullptr;
    Wording Caption = {};  // where the tip of the button is not to be it
};

constexpr std::array Items{
    Item_Row{.Name = "Mnu_Edit_Sup",
             .Button = "Cmd_Sup_Route_Ou_Pt",
             .Canvas_Key = "Delete",
             .Has_Work = Is_Any_Selected,
             .Caption = {"Delete", "Supprimer"}},
    Item_Row{.Name = "Mnu_Edit_Tabul", .Button = "Cmd_Tabul", .Has_Work = Has_Any},
    Item_Row{.Name = "Mnu_View_Colour", .Button = "Cmd_ColourGrid"},
    Item_Row{.Name = "Mnu_Square_Area",
             .Button = "Cmd_TrtArea",
             .Caption = {"Attributes of small squares", "Attributs des petits carr\xE9s"}},
    Item_Row{.Name = "Mnu_Square_Cell",
             .Button = "Cmd_TrtCell",
             .Shortcut = "Ctrl+L",
             .Caption = {"Attributes of large squares", "Attributs des grands carr\xE9s"}},
    Item_Row{.Name = "Mnu_Square_Excl",
             .Button = "Cmd_Excl_Areas",
             .Caption = {"Exclusions", "Exclusions"}},
    Item_Row{.Name = "Mnu_Square_LC", .Button = "Cmd_LandClass"},
    Item_Row{.Name = "Mnu_Square_WC", .Button = "Cmd_WaterClass"},
    Item_Row{.Name = "Mnu_Square_Mesh", .Button = "Cmd_TrtMesh"},
    Item_Row{.Name = "Mnu_Object_Mode",
             .Button = "Cmd_Saisie_Routes",
             .Caption = {"Draw road/river/lake", "Dessiner route/lac/rivi\xE8re"}},
    Item_Row{.Name = "Mnu_Object_New", .Button = "Cmd_New_Route"},
    Item_Row{.Name = "Mnu_Object_Sel", .Button = "Cmd_Sel_Route", .Has_Work = Has_Objects},
    Item_Row{
        .Name = "Mnu_Object_Sel_Pt", .Button = "Cmd_Sel_Pt_Route", .Has_Work = Is_Object_Selected},
    Item_Row{
        .Name = "Mnu_Object_Ins_Pt", .Button = "Cmd_Ins_Pt_Route", .Has_Work = Is_Line_Selected},
    Item_Row{.Name = "Mnu_Object_Extr_Pt",
             .Button = "Cmd_Extr_Pt_Route",
             .Has_Work = Is_Object_Selected},
    Item_Row{.Name = "Mnu_Texture_Mode", .Button = "Cmd_TrtIma", .Shortcut = "Ctrl+T"},
    Item_Row{.Name = "Mnu_Texture_New", .Button = "Cmd_New_Ima"},
    Item_Row{.Name = "Mnu_Texture_Sel", .Button = "Cmd_Sel_Ima", .Has_Work = Has_Textures},
    Item_Row{.Name = "Mnu_Texture_Link", .Button = "Cmd_Sel_Crb_Ima"},
    Item_Row{.Name = "Mnu_Tool_FSUIPC", .Button = "Cmd_FSUIPC"},
    Item_Row{.Name = "Mnu_Tool_API", .Button = "Cmd_API"},
};

bool Is_Mode(std::string_view Button) {
    return std::ranges::any_of(Mode_Rows, [&](const Mode_Row* M) { return M->Button == Button; });
}

}  // namespace

void Button_Items_Add(Form& F) {
    for (const Item_Row& Row : Items) {
        Control C{.Kind = Control_Kind::Menu_Item,
                  .Name = std::string(Row.Name),
                  .Words = Row.Caption.Is_Set() ? Row.Caption : F[Row.Button].Tip_Words,
                  .Shortcut = std::string(Row.Shortcut),
                  .Checkable = Is_Mode(Row.Button)};
        for (const std::string& Key : {std::string(Row.Canvas_Key), Alt_Key_Of(Row.Button)})
            if (!Key.empty()) C.Other_Keys.push_back(Key);
        F.Add(std::move(C));
    }
}

void Button_Items_Install(Form& F) {
    for (const Item_Row& Row : Items)
        F.Handlers(Row.Name).On_Click = [&F, &Row] { Form_Click(F, Row.Button); };
}

void Button_Items_Show(Form& F) {
    for (const Item_Row& Row : Items) {
        const Control& Button = F[Row.Button];
        F.Set_Enabled(Row.Name, Button.Enabled && (Row.Has_Work == nullptr || Row.Has_Work()));
        if (F[Row.Name].Checkable) F.Set_Value(Row.Name, Button.Value);
    }
}

std::string_view Button_Of_Item(std::string_view Item) {
    const auto Row = std::ranges::find(Items, Item, &Item_Row::Name);
    return Row == Items.end() ? std::string_view() : Row->Button;
}
