// ui/frm/frm_controls.cpp - one row for each control of the main form: its texts in both languages.
#include "ui/frm/frm_controls.h"

#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "core/work.h"
#include "platform/text1252.h"
#include "ui/canvas/view.h"
#include "ui/frm/button_items.h"
#include "ui/frm/frm_keys.h"

namespace {

struct Menu_Row {
    const char* Name;
    Wording Caption;
    const char* Shortcut = "";
    bool Checkable = false;
    const char* Button = "";     // of the tool bar, which does the same
    const char* Other_Key = "";  // that the form takes itself
};

constexpr Menu_Row Menus[] = {
    {"Mnu_File", {"Files", "Fichiers"}},
    {"Mnu_Edit", {"Edit", "Edition"}},
    {"Mnu_View", {"View", "Affichage"}},
    {"Mnu_View_Opacity", {"Opacity of the map", "Opacit\xE9 de la carte"}},
    {"Mnu_Square", {"Squares", "Carr\xE9s"}},
    {"Mnu_Object", {"Objects", "Objets"}},
    {"Mnu_Texture", {"Textures", "Textures"}},
    {"Mnu_Param", {"Parameters", "Param\xE8tres"}},
    {"Mnu_Tools", {"Tools", "Outils"}},
    {"Mnu_Help", {"Help", "Aide"}},
};

constexpr Menu_Row Menu_Items[] = {
    {"Mnu_File_New", {"New", "Nouveau"}, "Ctrl+N", false, "Cmd_New"},
    {"Mnu_File_Open", {"Open", "Ouvrir"}, "Ctrl+O"},
    {"Mnu_File_Enreg", {"Save", "Enregistrer"}, "Ctrl+S", false, "Cmd_Save"},
    {"Mnu_File_Enreg_Sous", {"Save as ...", "Enregistrer sous"}, "Ctrl+Shift+S"},
    {"Mnu_File_Close", {"Close", "Fermer"}, "Ctrl+W"},
    {"Mnu_File_Quit", {"Quit", "Quitter"}, "Ctrl+Q"},
    {"Mnu_Edit_Undo", {"Undo", "Annuler"}, "Ctrl+Z", false, "Cmd_Undo"},
    {"Mnu_Edit_Redo", {"Redo", "R\xE9tablir"}, "Ctrl+Shift+Z", false, "Cmd_Redo", "Ctrl+Y"},
    {"Mnu_View_ZPlus", {"Zoom +", "Zoom +"}, "Ctrl++", false, "Cmd_ZPlus"},
    {"Mnu_View_ZMoins", {"Zoom -", "Zoom -"}, "Ctrl+-", false, "Cmd_ZMoins"},
    {"Mnu_View_One", {"Zoom 1:1", "Zoom 1:1"}, "Ctrl+0"},
    {"Mnu_View_Fit", {"Fit map to window", "Ajuster la carte \xE0 la fen\xEAtre"}, "Ctrl+9"},
    {"Mnu_View_Map", {"Map", "Carte"}, "Ctrl+1", true, "Cmd_AffBmp"},
    {"Mnu_View_Grid", {"Grid", "Grille"}, "Ctrl+2", true, "Cmd_Grid"},
    {"Mnu_View_Texture", {"Textures", "Textures"}, "Ctrl+3", true, "Cmd_AffTexture"},
    {"Mnu_View_Objects", {"Objects", "Objets"}, "Ctrl+4", true},
    {"Mnu_View_Opacity_100", {"100 %", "100 %"}, "", true},
    {"Mnu_View_Opacity_75", {"75 %", "75 %"}, "", true},
    {"Mnu_View_Opacity_50", {"50 %", "50 %"}, "", true},
    {"Mnu_View_Opacity_25", {"25 %", "25 %"}, "", true},
    {"Mnu_View_Goto", {"Go to a place ...", "Aller \xE0 un lieu ..."}, "Ctrl+G"},
    {"Mnu_View_Copy", {"Copy the position", "Copier la position"}, "Ctrl+C"},
    {"Mnu_Kind_Colours", {"Objects in colours by kind", "Objets en couleurs par genre"}, "", true},
    {"Mnu_Param_File", {"File parameters", "Param\xE8tres du projet"}},
    {"Mnu_par_Remesh", {"Re-Mesh", "Re-Mesh"}},
    {"Mnu_ModCad",
     {"Coordinates of the map",
      "Coordonn\xE9"
      "es de la carte"}},
    {"Mnu_Param_Gene", {"General parameters", "Param\xE8tres g\xE9n\xE9raux"}},
    {"Mnu_Reinit", {"Initialize project", "Initialiser le project"}},
    {"Mnu_Tool_CvLL", {"Lat/Lon conversion", "Conversion Lat/Lon"}},
    {"Mnu_Help_Page", {"Keys and modes", "Touches et modes"}, "F1", false, "Cmd_Help"},
    {"Mnu_Help_About", {"About Terrafold", "A propos de Terrafold"}},
};

struct Button_Row {
    const char* Name;
    Wording Tip;
    Wording Caption = {};  // beside or instead of the icon
};

constexpr Button_Row Buttons_Of_Bar[] = {
    {"Cmd_New", {"New project", "Nouveau"}},
    {"Cmd_Save", {"Save", "Enregistrer"}},
    {"Cmd_Undo", {"Undo", "Annuler"}},
    {"Cmd_Redo", {"Redo", "R\xE9tablir"}},
    {"Cmd_ZPlus", {"Zoom +", "Zoom +"}},
    {"Cmd_ZMoins", {"Zoom -", "Zoom -"}},
    {"Cmd_AffBmp", {"Show/hide image", "Montrer/cacher image"}},
    {"Cmd_AffTexture", {"Show/hide textures", "Montrer/cacher textures"}},
    {"Cmd_Grid", {"Show/hide grid", "Montrer/cacher grille"}},
    {"Cmd_ColourGrid", {"Grid colour", "Couleur de la grille"}},
    {"Cmd_TrtArea", {"Area attributes", "Attributs d'Area"}},
    {"Cmd_TrtCell", {"Cell attributes", "Attributs de Cell"}},
    {"Cmd_Excl_Areas", {"Exclude in Areas", "Exclusion dans Area"}},
    {"Cmd_LandClass", {"LandClass", "LandClass"}, {"LC", "LC"}},
    {"Cmd_WaterClass", {"WaterClass", "WaterClass"}, {"WC", "WC"}},
    {"Cmd_TrtMesh", {"Re-Mesh", "Re-Mesh"}},
    {"Cmd_Saisie_Routes", {"Road/river/lake", "Aller \xE0 saisie route/lac/riv\xE8re"}},
    {"Cmd_New_Route", {"New object", "Nouvel objet"}},
    {"Cmd_Sel_Route", {"Object selection", "S\xE9lectionner un objet"}},
    {"Cmd_Sel_Pt_Route", {"Point selection", "S\xE9lectionner un point"}},
    {"Cmd_Ins_Pt_Route", {"Point insertion", "Ins\xE9rer un point"}},
    {"Cmd_Extr_Pt_Route", {"Go on with end of line", "Continuer sur extr\xE9mit\xE9"}},
    {"Cmd_Sup_Route_Ou_Pt", {"Delete selected object", "Supprimer l'objet s\xE9lectionner"}},
    {"Cmd_Tabul", {"Find objects", "Rechercher objet"}},
    {"Cmd_TrtIma", {"Textures and linked polys (VTP1)", "Textures et polys li\xE9s (VTP1)"}},
    {"Cmd_New_Ima", {"New texture (VTP1)", "Nouvelle texture (VTP1)"}},
    {"Cmd_Sel_Ima", {"Select a texture (VTP1)", "Selectionner une texture (VTP1)"}},
    {"Cmd_Sel_Crb_Ima",
     {"Link a poly to the selected texture (VTP1)",
      "Lier un poly \xE0 le texture s\xE9lectionn\xE9"
      "e (VTP1)"}},
    {"Cmd_FSUIPC", {"Flight recording", "Enregistrement de vol"}},
    {"Cmd_API", {"BGL generation", "Generation BGL"}},
    {"Cmd_Help", {"Help", "Aide"}},
};

struct Label_Row {
    const char* Name;
    Wording Said;
    Int Columns;
    Int Gives_Way = 0;
};

// What is known of the place under the mouse. On a narrow window the numbers go first, which the
// letters tell as well, then the map pixel, the texture and the square.
constexpr Label_Row Read_Outs[] = {
    {"L_MouseBmp", {"Map pixel", "Pixel de la carte"}, 18, 3},
    {"LLat", {"Latitude", "Latitude"}, 14},
    {"LLon", {"Longitude", "Longitude"}, 14},
    {"LLatDec", {"Latitude in degrees", "Latitude en degr\xE9s"}, 12, 4},
    {"LLonDec", {"Longitude in degrees", "Longitude en degr\xE9s"}, 12, 4},
    {"L_NumCell_Area", {"Square", "Carr\xE9"}, 34, 1},
    {"L_CustomBmp", {"Texture", "Texture"}, 22, 2}};

// What is being made, and how far it is.
constexpr Label_Row Progress_Labels[] = {{"LCompileNom", {}, 60}, {"LCompile", {}, 60},
                                         {"L_Elapsed", {}, 24},   {"LTex2500", {}, 40},
                                         {"LNbTex", {}, 8},       {"LPourCent", {}, 6}};

std::string Icon_Name(const char* Button) {
    std::string Name = std::string(Button).substr(sizeof "Cmd_" - 1);
    for (char& C : Name)
        if ('A' <= C && C <= 'Z') C = static_cast<char>(C - 'A' + 'a');
    return Name;
}

// Those that there are.
std::vector<std::string> All_Of(std::initializer_list<std::string> Keys) {
    std::vector<std::string> Found;
    for (const std::string& Key : Keys)
        if (!Key.empty()) Found.push_back(Key);
    return Found;
}

void Add_Menus(Form& F) {
    for (const Menu_Row& M : Menus)
        F.Add({.Kind = Control_Kind::Menu, .Name = M.Name, .Words = M.Caption});
    for (const Menu_Row& M : Menu_Items)
        F.Add({.Kind = Control_Kind::Menu_Item,
               .Name = M.Name,
               .Words = M.Caption,
               .Shortcut = M.Shortcut,
               .Other_Keys = All_Of({M.Other_Key, Alt_Key_Of(M.Button)}),
               .Checkable = M.Checkable});
    for (int I = 0; I < 4; ++I)
        F.Add(
            {.Kind = Control_Kind::Menu_Item, .Name = "Mnu_File_Prec(" + std::to_string(I) + ")"});
}

void Add_Tool_Bar(Form& F) {
    for (const Button_Row& B : Buttons_Of_Bar)
        F.Add({.Kind = Control_Kind::Button,
               .Name = B.Name,
               .Words = B.Caption,
               .Tip_Words = B.Tip,
               .Icon = Icon_Name(B.Name)});
    Button_Items_Add(F);
}

// The tip of a button tells the keys of the menu item that does the same.
void Tell_Buttons_Their_Keys(Form& F) {
    const auto Tell = [&F](std::string_view Button, const Control& Item) {
        std::vector<std::string>& Keys = F.Handlers(Button).Other_Keys;
        if (!Item.Shortcut.empty()) Keys.push_back(Item.Shortcut);
        Keys.insert(Keys.end(), Item.Other_Keys.begin(), Item.Other_Keys.end());
    };
    for (const Menu_Row& M : Menu_Items)
        if (*M.Button != '\0') Tell(M.Button, F[M.Name]);
    for (const Control& C : F.Controls())
        if (const std::string_view Button = Button_Of_Item(C.Name); !Button.empty())
            Tell(Button, C);
}

constexpr Wording Map_Across{"Map, across", "Carte, en largeur"};
constexpr Wording Map_Up_Down{"Map, up and down", "Carte, en hauteur"};

void Add_Canvas(Form& F) {
    F.Add({.Kind = Control_Kind::Canvas, .Name = "Pic", .Said_Words = {"Map", "Carte"}});
    for (const auto& [Bar, Said] : {std::pair{"HScroll", Map_Across}, {"VScroll", Map_Up_Down}})
        F.Add({.Kind = Control_Kind::Scroll_Bar,
               .Name = Bar,
               .Said_Words = Said,
               .Max = Scroll_Max,
               .Small_Step = Scroll_Small,
               .Large_Step = Scroll_Large});
}

void Add_Labels(Form& F) {
    for (const Label_Row& L : Read_Outs)
        F.Add({.Name = L.Name,
               .Tip_Words = {"A click copies the position", "Un clic copie la position"},
               .Said_Words = L.Said,
               .Columns = L.Columns,
               .Gives_Way = L.Gives_Way});
    F.Add({.Name = "L_Hint",
           .Said_Words = {"Next step", "\xC9tape suivante"},
           .Columns = 80,
           .Wraps = true});
    F.Add({.Kind = Control_Kind::Text,
           .Name = "Txt_Zoom",
           .Tip_Words = {"Zoom in per cent", "Zoom en pour cent"},
           .Columns = 8});
    for (const Label_Row& L : Progress_Labels) F.Add({.Name = L.Name, .Columns = L.Columns});
    F.Add({.Kind = Control_Kind::Frame,
           .Name = "Fram_Compile",
           .Words = {"BGL generation", "Generation BGL"},
           .Visible = false});
    F.Add({.Kind = Control_Kind::Bar,
           .Name = "Bar_Compile",
           .Tip_Words = {"Progress", "Progression"},
           .Max = Work_Whole});
    F.Add({.Kind = Control_Kind::Button,
           .Name = "Cmd_Stop_API",
           .Words = {"Cancel", "Annuler"},
           .In_Long_Work = true});
    F.Add({.Kind = Control_Kind::Frame,
           .Name = "Fram_Creat_2500",
           .Words = {"Map", "Carte"},
           .Visible = false});
}

Layout Menu_Layout() {
    return Menu_Bar(
        {Menu("Mnu_File", {"Mnu_File_New", "Mnu_File_Open", "Mnu_File_Enreg", "Mnu_File_Enreg_Sous",
                           "Mnu_File_Close", Gap(), "Mnu_File_Prec(0)", "Mnu_File_Prec(1)",
                           "Mnu_File_Prec(2)", "Mnu_File_Prec(3)", Gap(), "Mnu_File_Quit"}),
         Menu("Mnu_Edit",
              {"Mnu_Edit_Undo", "Mnu_Edit_Redo", Gap(), "Mnu_Edit_Sup", "Mnu_Edit_Tabul"}),
         Menu("Mnu_View",
              {"Mnu_View_ZPlus", "Mnu_View_ZMoins", "Mnu_View_One", "Mnu_View_Fit", Gap(),
               "Mnu_View_Map", "Mnu_View_Grid", "Mnu_View_Texture", "Mnu_View_Objects",
               Menu("Mnu_View_Opacity", {"Mnu_View_Opacity_100", "Mnu_View_Opacity_75",
                                         "Mnu_View_Opacity_50", "Mnu_View_Opacity_25"}),
               "Mnu_View_Colour", Gap(), "Mnu_View_Goto", "Mnu_View_Copy"}),
         Menu("Mnu_Square", {"Mnu_Square_Area", "Mnu_Square_Cell", "Mnu_Square_Excl",
                             "Mnu_Square_LC", "Mnu_Square_WC", "Mnu_Square_Mesh"}),
         Menu("Mnu_Object", {"Mnu_Object_Mode", Gap(), "Mnu_Object_New", "Mnu_Object_Sel",
                             "Mnu_Object_Sel_Pt", "Mnu_Object_Ins_Pt", "Mnu_Object_Extr_Pt"}),
         Menu("Mnu_Texture", {"Mnu_Texture_Mode", Gap(), "Mnu_Texture_New", "Mnu_Texture_Sel",
                              "Mnu_Texture_Link"}),
         Menu("Mnu_Param", {"Mnu_Param_File", "Mnu_par_Remesh", "Mnu_ModCad", Gap(),
                            "Mnu_Param_Gene", "Mnu_Kind_Colours", Gap(), "Mnu_Reinit"}),
         Menu("Mnu_Tools", {"Mnu_Tool_API", "Mnu_Tool_FSUIPC", Gap(), "Mnu_Tool_CvLL"}),
         Menu("Mnu_Help", {"Mnu_Help_Page", Gap(), "Mnu_Help_About"})});
}

// In the order of a designer's work: the project, what is seen, squares of the grid, drawn
// objects, textures, and what comes out of it.
Layout Tool_Bar_Layout() {
    return Tool_Bar({"Cmd_New",
                     "Cmd_Save",
                     "Cmd_Undo",
                     "Cmd_Redo",
                     Gap(),
                     "Cmd_ZPlus",
                     "Cmd_ZMoins",
                     "Cmd_AffBmp",
                     "Cmd_AffTexture",
                     "Cmd_Grid",
                     "Cmd_ColourGrid",
                     Gap(),
                     "Cmd_TrtArea",
                     "Cmd_TrtCell",
                     "Cmd_Excl_Areas",
                     "Cmd_LandClass",
                     "Cmd_WaterClass",
                     "Cmd_TrtMesh",
                     Gap(),
                     "Cmd_Saisie_Routes",
                     "Cmd_New_Route",
                     "Cmd_Sel_Route",
                     "Cmd_Sel_Pt_Route",
                     "Cmd_Ins_Pt_Route",
                     "Cmd_Extr_Pt_Route",
                     "Cmd_Sup_Route_Ou_Pt",
                     "Cmd_Tabul",
                     Gap(),
                     "Cmd_TrtIma",
                     "Cmd_New_Ima",
                     "Cmd_Sel_Ima",
                     "Cmd_Sel_Crb_Ima",
                     Gap(),
                     "Cmd_FSUIPC",
                     "Cmd_API",
                     Gap(),
                     "Cmd_Help"});
}

}  // namespace

void Frm_Add_Controls(Form& F) {
    Add_Menus(F);
    Add_Tool_Bar(F);
    Tell_Buttons_Their_Keys(F);
    Add_Canvas(F);
    Add_Labels(F);
    F.Set_Layout(
        Column({Menu_Layout(), Tool_Bar_Layout(), Canvas("Pic", {"VScroll", "HScroll"}),
                Over_Canvas({Frame("Fram_Compile", {"LCompileNom", "LCompile", "Bar_Compile",
                                                    Row({"L_Elapsed", Space(), "Cmd_Stop_API"})}),
                             Frame("Fram_Creat_2500", {"LTex2500", Row({"LNbTex", "LPourCent"})})}),
                Read_Out({"L_MouseBmp", "LLat", "LLon", "LLatDec", "LLonDec", "L_NumCell_Area",
                          "L_CustomBmp"}),
                Read_Out({"L_Hint", "Txt_Zoom"})}));
}
