// play/reports.cpp - what a script asks to be told.
#include <span>

#include "core/number_text.h"
#include "core/program.h"
#include "core/project_file.h"
#include "platform/text1252.h"
#include "play/player.h"
#include "play/script_path.h"
#include "ui/canvas/edit_state.h"
#include "ui/canvas/surface.h"
#include "ui/edit/modes.h"

namespace {

template <typename T>
std::string Number(T X) {
    return std::string(Trim(std::string_view(Str(X))));
}

// Between double quotes, those in it doubled.
std::string Quoted(std::string_view Text) {
    std::string Word = "\"";
    for (const char C : Text) Word += C == '"' ? std::string("\"\"") : std::string(1, C);
    return Word + '"';
}

std::string Text_Shown(const Control& C) {
    switch (C.Kind) {
        case Control_Kind::Text:
        case Control_Kind::Number:
            return C.Text;
        case Control_Kind::List:
        case Control_Kind::Combo: {
            const auto I = static_cast<std::size_t>(C.Value);
            return C.Value >= 0 && I < C.Items.size() ? C.Items[I] : std::string();
        }
        case Control_Kind::Options:
        case Control_Kind::Tabs:
        case Control_Kind::Image:
        case Control_Kind::Canvas:
            return {};
        default:
            return C.Caption;
    }
}

std::string Tool_Text() {
    std::string Tool = Pending_New != 0      ? "Pending_New"
                       : Pending_Select != 0 ? "Pending_Select"
                       : Tool_Insert != 0    ? "Tool_Insert"
                       : Tool_Extend != 0    ? "Tool_Extend"
                       : Tool_Sel_Point != 0 ? "Tool_Sel_Point"
                                             : "none";
    if (Tool_Armed != 0) Tool += " armed";
    if (Pt_Fresh != 0) Tool += " fresh";
    return Tool;
}

std::string Pair_Text(Long X, Long Y) {
    return std::to_string(X) + " " + std::to_string(Y);
}

struct Line_Row {
    const char* Name;
    Overlay_Line Overlay_Items::*Item;
};

constexpr Line_Row Bands[] = {
    {"Ln1", &Overlay_Items::Ln1},         {"Ln2", &Overlay_Items::Ln2},
    {"LnHIma1", &Overlay_Items::LnHIma1}, {"LnHIma2", &Overlay_Items::LnHIma2},
    {"LnVIma1", &Overlay_Items::LnVIma1}, {"LnVIma2", &Overlay_Items::LnVIma2}};
constexpr Line_Row Aircraft[] = {{"Croix1", &Overlay_Items::Croix1},
                                 {"Croix2", &Overlay_Items::Croix2}};

void Note_Lines(std::span<const Line_Row> Rows, std::vector<std::string>& To) {
    for (const Line_Row& Row : Rows) {
        const Overlay_Line& L = The_Overlay.*Row.Item;
        if (L.Visible)
            To.push_back(std::string(Row.Name) + " " + Pair_Text(L.At.X1, L.At.Y1) + " " +
                         Pair_Text(L.At.X2, L.At.Y2));
    }
}

// The overlay items that are visible, in their order.
std::vector<std::string> Overlay_Texts() {
    const Overlay_Circle& C = The_Overlay.Cercle;
    const Overlay_Label& L = The_Overlay.LPtGrid;
    std::vector<std::string> Texts;
    Note_Lines(Bands, Texts);
    if (C.Visible)
        Texts.push_back("Cercle " + Pair_Text(C.X - C.Diameter / 2, C.Y - C.Diameter / 2));
    if (L.Visible) Texts.push_back("LPtGrid " + Pair_Text(L.X, L.Y) + " " + Quoted(L.Text));
    Note_Lines(Aircraft, Texts);
    return Texts;
}

// A button that is drawn pressed is a button all the same.
Long Value_Shown(const Control& C) {
    return C.Kind == Control_Kind::Button ? 0 : C.Value;
}

const char* Pointer_Text(Pointer_Shape Shape) {
    switch (Shape) {
        case Pointer_Shape::Cross:
            return "cross";
        case Pointer_Shape::Move:
            return "move";
        case Pointer_Shape::Vertical:
            return "vertical";
        case Pointer_Shape::Horizontal:
            return "horizontal";
        case Pointer_Shape::NE_SW:
            return "ne_sw";
        case Pointer_Shape::NW_SE:
            return "nw_se";
        default:
            return "normal";
    }
}

}  // namespace

void Player::Show(const Act& A) {
    const Form& F = *Front().Shown;
    for (const std::string& Name : A.Words) {
        if (Name == F.Name()) {
            Print("show " + Name + " text=" + Quoted(F.Title()) + " value=0 enabled=1 visible=1");
            continue;
        }
        if (!F.Has(Name)) return Fail("there is no " + Name + " of " + F.Name());
        const Control& C = F[Name];
        Print("show " + Name + " text=" + Quoted(Text_Shown(C)) + " value=" +
              std::to_string(Value_Shown(C)) + " enabled=" + (F.Is_Enabled(Name) ? "1" : "0") +
              " visible=" + (F.Is_Shown(Name) && F.Is_Visible(Name) ? "1" : "0"));
    }
}

void Player::Items(const Act& A) {
    const Form& F = *Front().Shown;
    if (!F.Has(A.Words[0])) return Fail("there is no " + A.Words[0] + " of " + F.Name());
    const std::vector<std::string>& Items = F[A.Words[0]].Items;
    for (std::size_t I = 0; I < Items.size(); ++I)
        Print("item " + std::to_string(I) + " " + Items[I]);
}

void Player::State() {
    const Mode_Row* Mode = Mode_Now();
    Print(std::string("mode ") + (Mode != nullptr ? Mode->Name : "none"));
    Print("view " + Number(Zoom) + " " + Number(Pan_X) + " " + Number(Pan_Y));
    Print("object " + std::to_string(Obj_Selected != 0 ? Sel_Obj : 0));
    Print("point " + std::to_string(Pt_Selected != 0 ? Sel_Pt : 0));
    Print("tool " + Tool_Text());
    Print("texture " + std::to_string(Ima_Selected != 0 ? Sel_Ima : 0));
    Print("polygon " + std::to_string(Ima_Poly_Selected != 0 ? Ima_Poly : 0));
    for (const std::string& Item : Overlay_Texts()) Print("overlay " + Item);
    Print(std::string("pointer ") + Pointer_Text(The_View_State.Pointer));
}

void Player::Write(const Act& A) {
    if (Projet_Open == 0) return Fail("no project is open");
    const auto Path = Script_Path(A.Words[0]);
    if (!Path || !Write_Model(*Path)) Fail("the file can't be written: " + A.Words[0]);
}

void Player::Say(const Act& A) {
    std::string Text;
    for (const std::string& Word : A.Words) Text += (Text.empty() ? "" : " ") + Word;
    Print(Text);
}
