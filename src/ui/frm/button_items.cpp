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
};

constexpr std::array Items{
    Item_Row{"Mnu_Edit_Sup", "Cmd_Sup_Route_Ou_Pt", "", "Delete", Is_Any_Selected},
    Item_Row{"Mnu_Edit_Tabul", "Cmd_Tabul", "", "", Has_Any},
    Item_Row{"Mnu_View_Colour", "Cmd_ColourGrid"},
    Item_Row{"Mnu_Square_Area", "Cmd_TrtArea"},
    Item_Row{"Mnu_Square_Cell", "Cmd_TrtCell", "Ctrl+L"},
    Item_Row{"Mnu_Square_Excl", "Cmd_Excl_Areas"},
    Item_Row{"Mnu_Square_LC", "Cmd_LandClass"},
    Item_Row{"Mnu_Square_WC", "Cmd_WaterClass"},
    Item_Row{"Mnu_Square_Mesh", "Cmd_TrtMesh"},
    Item_Row{"Mnu_Object_Mode", "Cmd_Saisie_Routes"},
    Item_Row{"Mnu_Object_New", "Cmd_New_Route"},
    Item_Row{"Mnu_Object_Sel", "Cmd_Sel_Route", "", "", Has_Objects},
    Item_Row{"Mnu_Object_Sel_Pt", "Cmd_Sel_Pt_Route", "", "", Is_Object_Selected},
    Item_Row{"Mnu_Object_Ins_Pt", "Cmd_Ins_Pt_Route", "", "", Is_Line_Selected},
    Item_Row{"Mnu_Object_Extr_Pt", "Cmd_Extr_Pt_Route", "", "", Is_Object_Selected},
    Item_Row{"Mnu_Texture_Mode", "Cmd_TrtIma", "Ctrl+T"},
    Item_Row{"Mnu_Texture_New", "Cmd_New_Ima"},
    Item_Row{"Mnu_Texture_Sel", "Cmd_Sel_Ima", "", "", Has_Textures},
    Item_Row{"Mnu_Texture_Link", "Cmd_Sel_Crb_Ima"},
    Item_Row{"Mnu_Tool_FSUIPC", "Cmd_FSUIPC"},
    Item_Row{"Mnu_Tool_API", "Cmd_API"},
};

bool Is_Mode(std::string_view Button) {
    return std::ranges::any_of(Mode_Rows, [&](const Mode_Row* M) { return M->Button == Button; });
}

}  // namespace

void Button_Items_Add(Form& F) {
    for (const Item_Row& Row : Items) {
        Control C{.Kind = Control_Kind::Menu_Item,
                  .Name = std::string(Row.Name),
                  .Words = F[Row.Button].Tip_Words,
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
