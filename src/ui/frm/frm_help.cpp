// ui/frm/frm_help.cpp - the help page, made of what the main form and the modes tell of themselves.
#include "ui/frm/frm_help.h"

#include <string>
#include <utility>
#include <vector>

#include "core/host.h"
#include "core/program.h"
#include "ui/edit/modes.h"
#include "ui/form/keys_told.h"
#include "ui/frm/button_items.h"
#include "ui/frm/frm.h"

namespace {

constexpr std::size_t Rows_Of_A_Column = 24;  // captions of groups count as two

// What no menu tells.
struct Other_Row {
    Wording Keys, What;
};

constexpr Other_Row Others[] = {
    {{"Arrow keys",
      "Fl\xE8"
      "ches"},
     {"Move the map, while no object is selected for editing",
      "D\xE9placent la carte, tant qu'aucun objet n'est s\xE9lectionn\xE9"}},
    {{"Page Up, Page Down, Home",
      "Page pr\xE9"
      "c., Page suiv., Origine"},
     {"Move the map by a page, to its top left",
      "D\xE9placent la carte d'une page, \xE0 son coin en haut \xE0 gauche"}},
    {{"Shift or Ctrl and an arrow key",
      "Maj ou Ctrl et une fl\xE8"
      "che"},
     {"Move the selected object by one pixel of the screen, by five",
      "D\xE9placent l'objet s\xE9lectionn\xE9 d'un pixel de l'\xE9"
      "cran, de cinq"}},
    {{"Esc", "Echap"},
     {"One step back: ends the drawing, lets go of what is held",
      "Un pas en arri\xE8re : termine le dessin, l\xE2"
      "che ce qui est tenu"}},
    {{"Delete", "Suppr"},
     {"Removes the selected object, point or texture, the altitude under the mouse",
      "Efface l'objet, le point ou la texture s\xE9lectionn\xE9s, l'altitude sous la souris"}},
    {{"Wheel", "Molette"},
     {"Zooms at the pointer; with Shift scrolls sideways",
      "Zoome au pointeur ; avec Maj fait d\xE9"
      "filer de c\xF4t\xE9"}},
    {{"Middle button, or Space and left", "Bouton du milieu, ou Espace et gauche"},
     {"Drags the map", "Fait glisser la carte"}},
    {{"Double click", "Double-clic"},
     {"Opens the square, or points the tool at the nearest object",
      "Ouvre le carr\xE9, ou pointe l'outil sur l'objet le plus proche"}},
    {{"Dragging with Shift", "Glisser avec Maj"},
     {"Opens all squares under the rectangle at once",
      "Ouvre \xE0 la fois tous les carr\xE9s sous le rectangle"}},
    {{"Right button", "Bouton droit"},
     {"Opens the selected object or texture", "Ouvre l'objet ou la texture s\xE9lectionn\xE9s"}},
    {{"A tool's Alt key", "Alt d'un outil"},
     {"Takes what is under the pointer at once", "Prend aussit\xF4t ce qui est sous le pointeur"}},
    {{"F4", "F4"}, {"In a field: opens its chooser", "Dans un champ : ouvre son choix"}},
    {{"Click on the line at the bottom", "Clic sur la ligne du bas"},
     {"Copies the position", "Copie la position"}},
};

class Help_Form final : public Form {
public:
    Help_Form() : Form("Frm_Help", {"Keys and modes", "Touches et modes"}) {
        Add({.Kind = Control_Kind::Tabs, .Name = "Pages"});
        Add_Tab("Tab_Keys", {"Keys", "Touches"});
        Add_Tab("Tab_Others", {"Mouse and other keys", "Souris et autres touches"});
        Add_Tab("Tab_Modes", {"Modes", "Modes"});
        Add({.Kind = Control_Kind::Button,
             .Name = "Cmd_Cancel",
             .Words = {"Close", "Fermer"},
             .Role = Button_Role::Cancel,
             .On_Click = [this] { Close(Form_End::Closed); }});
        Set_Layout(Column({Tabs("Pages", {Tab("Tab_Keys", {Row(Key_Columns()), Space()}),
                                          Tab("Tab_Others", {Other_Table(), Space()}),
                                          Tab("Tab_Modes", {Mode_Table(), Space()})}),
                           Buttons({"Cmd_Cancel"})}));
        On_Load = [this] { Load(); };
    }

private:
    void Add_Tab(const char* Name, Wording Words) {
        Add({.Kind = Control_Kind::Tab, .Name = Name, .Words = Words});
    }
    std::string Add_Label(std::string Name, Wording Words) {
        Add({.Name = Name, .Words = Words});
        return Name;
    }
    static Layout Two_Columns(Layouts Left, Layouts Right) {
        Left.insert(Left.end(), Right.begin(), Right.end());
        return Grid(2, std::move(Left));
    }

    // --- the keys of the menus, a frame a menu ---------------------------------------------
    void Collect(const Layout& Menu, Layouts& Keys, Layouts& Words) {
        for (const Layout& Part : Menu.Parts) {
            Collect(Part, Keys, Words);
            if (Part.What != Layout::Kind::Control) continue;
            const Control& Item = Frm()[Part.Name];
            if (Item.Shortcut.empty() && Item.Other_Keys.empty()) continue;
            Told_.push_back(Item.Name);
            Keys.push_back(Add_Label("Key_" + Item.Name, {}));
            Words.push_back(Add_Label("Does_" + Item.Name, Item.Words));
        }
    }
    Layouts Key_Columns() {
        std::vector<Layouts> Columns(1);
        std::size_t Filled = 0;
        for (const Layout& Part : Frm().Root().Parts) {
            if (Part.What != Layout::Kind::Menu_Bar) continue;
            for (const Layout& Menu : Part.Parts) {
                Layouts Keys, Words;
                Collect(Menu, Keys, Words);
                if (Keys.empty()) continue;
                if (Filled + Keys.size() + 2 > Rows_Of_A_Column) {
                    Columns.emplace_back();
                    Filled = 0;
                }
                Filled += Keys.size() + 2;
                const std::string Name = "Fram_" + Menu.Name;
                Add({.Kind = Control_Kind::Frame, .Name = Name, .Words = Frm()[Menu.Name].Words});
                Columns.back().push_back(Frame(Name, {Two_Columns(Keys, Words)}));
            }
        }
        Layouts Whole;
        for (Layouts& C : Columns) {
            C.push_back(Space());
            Whole.push_back(Column(std::move(C)));
        }
        return Whole;
    }

    Layout Other_Table() {
        Layouts Keys, Words;
        for (const Other_Row& Told : Others) {
            const std::string Number = std::to_string(Keys.size());
            Keys.push_back(Add_Label("Other(" + Number + ")", Told.Keys));
            Words.push_back(Add_Label("Other_Does(" + Number + ")", Told.What));
        }
        return Row({Two_Columns(Keys, Words), Space()});
    }

    // In the order of the menus.
    Layout Mode_Table() {
        Layouts Names, Words;
        for (const Control& C : Frm().Controls())
            for (const Mode_Row* Mode : Mode_Rows) {
                if (Button_Of_Item(C.Name) != Mode->Button) continue;
                Names.push_back(Add_Label(Mode->Name, C.Words));
                Words.push_back(Add_Label(std::string("Help_") + Mode->Name, Mode->Help));
            }
        return Row({Two_Columns(Names, Words), Space()});
    }

    void Load() {
        for (const std::string& Item : Told_)
            Set_Caption("Key_" + Item, Keys_Text(Frm()[Item], Language()));
        Set_Focus("Cmd_Cancel");
    }

    std::vector<std::string> Told_;  // items with keys
};

}  // namespace

std::unique_ptr<Form> Make_Frm_Help() {
    return std::make_unique<Help_Form>();
}

void Mnu_Help_Page() {
    The_Host().Run_Form("Frm_Help");
    The_Host().Set_Focus("Pic");
}

void Mnu_Help_About() {
    Plain_Box(Program_Build.empty() ? Program_Title
                                    : std::string(Program_Title) + "\r\n\r\n" + Program_Build);
}
