// ui/dialogs/frm_route_parts.h - what the dialog of an object's attributes is made of: its controls
// with their fields of Cur_Attr, and the five pages they stand on.
#pragma once

#include <array>

#include "core/model.h"
#include "ui/form/form.h"

/// The pages of SSTb, in order.
enum Route_Page : Long { Page_Main, Page_Lines, Page_LWM, Page_VTP1, Page_VTP2 };
inline constexpr std::array Route_Pages{"Tab_Main", "Tab_Lines", "Tab_LWM", "Tab_VTP1", "Tab_VTP2"};

/// A check box, or a group of options, and the field it writes to Cur_Attr at once.
struct Attr_Switch {
    const char* Name;
    Int Attr::*Field;
};
inline constexpr std::array Route_Switches{
    Attr_Switch{"Opt_SurfShore", &Attr::SurfShore},
    Attr_Switch{"Opt_LWM_VTP2", &Attr::LWM_VTP2},
    Attr_Switch{"Opt_Attrib", &Attr::Attrib},
    Attr_Switch{"Opt_VTP1_SpecNor", &Attr::VTP1_SpecNor},
    Attr_Switch{"Opt_LandClass", &Attr::LandClass},
    Attr_Switch{"Opt_LandClass_1", &Attr::LandClass},
    Attr_Switch{"Chk_FermerLine", &Attr::FermerLine},
    Attr_Switch{"Chk_LandOnRight", &Attr::LandOnRight},
    Attr_Switch{"Chk_Vtp1_Line", &Attr::Vtp1_Line},
    Attr_Switch{"Chk_Effil_Deb", &Attr::Effil_Deb},
    Attr_Switch{"Chk_Effil_Fin", &Attr::Effil_Fin},
    Attr_Switch{"Chk_Line_Night", &Attr::Line_Night},
    Attr_Switch{"Chk_Drive_Right", &Attr::Drive_Right},
    Attr_Switch{"Chk_Flip_VTP1Texture", &Attr::Flip_VTP1Texture},
};

/// The fields of the texture names: two groups that mirror each other.
inline constexpr std::array<std::array<const char*, 6>, 2> Route_Textures{
    {{"Texture_Name(0)", "Texture_Name(1)", "Texture_Name(2)", "Texture_Name(3)", "Texture_Name(4)",
      "Texture_Name(5)"},
     {"Texture_Name_1(0)", "Texture_Name_1(1)", "Texture_Name_1(2)", "Texture_Name_1(3)",
      "Texture_Name_1(4)", "Texture_Name_1(5)"}}};

/// Adds every control but the buttons that end the dialog, and lays them all out. Fields have
/// their rules; what happens beyond the writing of a field is the dialog's affair.
void Route_Add_Controls(Form& F);
void Route_Set_Layout(Form& F);
