// ui/frm/view_controls.cpp - the menu View, the figure of the zoom and the read-out's copy.
#include "ui/frm/view_controls.h"

#include <charconv>
#include <cmath>
#include <string>

#include "core/host.h"
#include "core/program.h"
#include "core/settings.h"
#include "core/typed_number.h"
#include "platform/text1252.h"
#include "ui/canvas/edit_state.h"
#include "ui/canvas/view.h"
#include "ui/form/form_events.h"
#include "ui/frm/frm.h"

namespace {

// --- what is shown ---------------------------------------------------------------------------

bool* The_Textures() {
    return Mode_Ima != 0 ? &Show_Ima : &Show_Texture;
}

struct Shown_Row {
    const char* Item;
    bool* (*Flag)();
};

constexpr Shown_Row Shown_Rows[] = {{"Mnu_View_Map", [] { return &Show_Bitmap; }},
                                    {"Mnu_View_Grid", [] { return &Show_Grid; }},
                                    {"Mnu_View_Texture", The_Textures},
                                    {"Mnu_View_Objects", [] { return &Show_Objects; }}};

struct Opacity_Row {
    const char* Item;
    Int Percent;
};

constexpr Opacity_Row Opacities[] = {{"Mnu_View_Opacity_100", 100},
                                     {"Mnu_View_Opacity_75", 75},
                                     {"Mnu_View_Opacity_50", 50},
                                     {"Mnu_View_Opacity_25", 25}};

void Redraw() {
    View_Redraw();
    The_Host().Set_Focus("Pic");
}

void Switch_Kind_Colours() {
    Kind_Colours = Kind_Colours == 0 ? 1 : 0;
    if (!Setting_Put("KindColours", Kind_Colours != 0 ? "1" : "0"))
        Plain_Box(In_Language("The settings could not be saved",
                              "Les param\xE8tres n'ont pas pu \xEAtre enregistr\xE9s"));
    if (Edit_On != 0) Redraw();
}

// --- the zoom ----------------------------------------------------------------------------------

constexpr Double Least_Percent = 0.1, Most_Percent = 2300.0;

std::string Zoom_Text() {
    char Digits[40];
    const Double Percent = Zoom * 100.0;
    const bool Is_Large = Percent >= 99.95;
    const auto End =
        Is_Large ? std::to_chars(Digits, std::end(Digits), Percent, std::chars_format::fixed, 0)
                 : std::to_chars(Digits, std::end(Digits), Percent, std::chars_format::general, 3);
    return std::string(Digits, End.ptr) + " %";
}

// With or without the sign.
bool Take_Zoom(const std::string& Text) {
    std::string_view Figure = Text;
    if (Figure.ends_with('%')) Figure.remove_suffix(1);
    const auto Percent = Typed_Number(Trim(Figure), {.Min = Least_Percent, .Max = Most_Percent});
    if (!Percent) return false;
    View_Zoom_To(*Percent / 100.0);
    return true;
}

std::string Zooms_Allowed() {
    return In_Language("a number from ", "un nombre de ") + Shown_Number(Least_Percent) +
           In_Language(" to ", " \xE0 ") + Shown_Number(Most_Percent);
}

// --- places ------------------------------------------------------------------------------------

void Go_To() {
    if (The_Host().Run_Form("Frm_Goto") == Form_End::Ok) Redraw();
}

// As the dialog of Go_To takes it.
void Copy_Position(const char* Lat, const char* Lon) {
    if (!Frm()[Lat].Caption.empty())
        The_Host().Copy_Text(Frm()[Lat].Caption + " " + Frm()[Lon].Caption);
}

void Copy_In_Letters() {
    Copy_Position("LLat", "LLon");
}

void Copy_As_Numbers() {
    Copy_Position("LLatDec", "LLonDec");
}

using Command = std::pair<const char*, void (*)()>;

constexpr Command Commands[] = {{"Mnu_View_ZPlus", Cmd_ZPlus},
                                {"Mnu_View_ZMoins", Cmd_ZMoins},
                                {"Mnu_View_One", [] { View_Zoom_To(1.0); }},
                                {"Mnu_View_Fit", View_Fit},
                                {"Mnu_View_Goto", Go_To},
                                {"Mnu_View_Copy", Copy_In_Letters},
                                {"Mnu_Kind_Colours", Switch_Kind_Colours},
                                {"LLat", Copy_In_Letters},
                                {"LLon", Copy_In_Letters},
                                {"L_MouseBmp", Copy_In_Letters},
                                {"L_NumCell_Area", Copy_In_Letters},
                                {"L_CustomBmp", Copy_In_Letters},
                                {"LLatDec", Copy_As_Numbers},
                                {"LLonDec", Copy_As_Numbers}};

constexpr Double Arrow_Part = 1.0 / 8.0, Page_Part = 7.0 / 8.0;  // of the canvas

// While an object is selected arrows are for moving it, be it by Shift or Ctrl alone.
bool Arrows_Are_Taken() {
    return Mode_Route != 0 && Obj_Selected != 0 && Pending_Select == 0;
}

bool Arrow_Key(Key_Code Code) {
    const Double X = Pic_Width * Arrow_Part, Y = Pic_Height * Arrow_Part;
    if (Arrows_Are_Taken()) return false;
    View_Scroll(Code == Key_Right  ? X
                : Code == Key_Left ? -X
                                   : 0.0,
                Code == Key_Down ? Y
                : Code == Key_Up ? -Y
                                 : 0.0);
    return true;
}

}  // namespace

void View_Controls_Install(Form& F) {
    for (const auto& [Name, Run] : Commands) F.Handlers(Name).On_Click = Run;
    for (const Shown_Row& Row : Shown_Rows)
        F.Handlers(Row.Item).On_Click = [&Row] {
            *Row.Flag() = !*Row.Flag();
            Redraw();
        };
    for (const Opacity_Row& Row : Opacities)
        F.Handlers(Row.Item).On_Click = [&Row] {
            Map_Opacity = Row.Percent;
            Redraw();
        };
    Control& Figure = F.Handlers("Txt_Zoom");
    Figure.Rule = {.Accept = Take_Zoom, .Held = Zoom_Text, .Allowed = Zooms_Allowed};
}

void View_Controls_Show() {
    if (!Frm_Is_There()) return;
    Form& F = Frm();
    for (const Shown_Row& Row : Shown_Rows) F.Set_Value(Row.Item, *Row.Flag() ? 1 : 0);
    for (const Opacity_Row& Row : Opacities)
        F.Set_Value(Row.Item, Map_Opacity == Row.Percent ? 1 : 0);
    F.Set_Value("Mnu_Kind_Colours", Kind_Colours);
    F.Set_Enabled("Mnu_View_Texture", Mode_Ima != 0 || F["Cmd_AffTexture"].Enabled);
    if (F.Focus() == "Txt_Zoom") return;  // it may be being typed
    F.Set_Text("Txt_Zoom", Edit_On != 0 ? Zoom_Text() : std::string());
}

bool View_Key(Key_Event K) {
    if (Edit_On == 0) return false;
    if (K.Shift == Ctrl_Key || K.Shift == Ctrl_Key + Shift_Key) {
        if (K.Code == Key_Plus || K.Code == Key_Pad_Plus)
            return Form_Click(Frm(), "Mnu_View_ZPlus");
        if (K.Code == Key_Minus || K.Code == Key_Pad_Minus)
            return Form_Click(Frm(), "Mnu_View_ZMoins");
    }
    if (K.Shift != 0) return false;
    switch (K.Code) {
        case Key_Left:
        case Key_Right:
        case Key_Up:
        case Key_Down:
            return Arrow_Key(K.Code);
        case Key_Page_Up:
            View_Scroll(0.0, -Pic_Height * Page_Part);
            return true;
        case Key_Page_Down:
            View_Scroll(0.0, Pic_Height * Page_Part);
            return true;
        case Key_Home:
            View_Home();
            return true;
        default:
            return false;
    }
}
