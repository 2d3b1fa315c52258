// ui/dialogs/frm_route_parts.cpp - controls and pages of the dialog of an object's attributes.
#include "ui/dialogs/frm_route_parts.h"
#include "core/program.h"

#include "core/project_paths.h"
#include "platform/files.h"
#include "ui/form/field_rules.h"

namespace {

using Kind = Control_Kind;

constexpr Number_Limits Layers{.Min = 0, .Max = 63, .Whole = true};
constexpr Long Preview_Side = 128;

bool Is_Nesting_Text(const std::string& Text) {
    return Text.empty() || (Text.size() == 5 && Text[2] == '_');
}

bool Is_No_Or_Some_File(const std::string& Path) {
    return Path.empty() || File_Exists(In_Project(Path));
}

void Add_Text(Form& F, const char* Name, Wording Words, Field_Rule Rule, Int Columns) {
    F.Add({.Kind = Kind::Text,
           .Name = Name,
           .Words = Words,
           .Rule = std::move(Rule),
           .Columns = Columns,
           .No_Quotes = true});
}

void Add_Number(Form& F, const char* Name, Wording Words, Field_Rule Rule) {
    F.Add({.Kind = Kind::Number,
           .Name = Name,
           .Words = Words,
           .Rule = std::move(Rule),
           .Columns = 8});
}

void Add_Fields(Form& F) {
    Attr& A = Cur_Attr;
    Add_Text(F, "Text_Rt", {"Text:", "Texte:"}, Text_Rule(A.Text_Rt), 40);
    Add_Text(F, "Imbrication", {"Imbrication :", "Imbrication :"},
             Text_Rule(A.Imbrication, Is_Nesting_Text,
                       [] {
                           return In_Language("five characters with _ in the middle, or nothing",
                                              "cinq caract\xE8res avec _ au milieu, ou rien");
                       }),
             8);
    Add_Number(F, "Alt_Coast", {"Altitude (m) :", "Altitude (m) :"},
               Number_Rule(A.Alt_Coast, {.Above = -10000, .Below = 10000}));
    Add_Number(F, "Layer_Vtp2", {"Layer:", "Layer:"}, Number_Rule(A.Layer_Vtp2, Layers));
    Add_Number(F, "Alti", {"Altitude meters", "Altitude m\xE8tres"},
               Number_Rule(A.Alti, {.Min = -9999, .Below = 10000}));
    Add_Number(F, "Largeur", {"Width:", "Largeur:"},
               Number_Rule(A.Largeur, {.Min = 2, .Max = 255, .Whole = true}));
    Add_Number(F, "Layer", {"Layer:", "Layer:"}, Number_Rule(A.Layer, Layers));
    Add_Number(F, "LayerScasm", {"Layer(Scasm)", "Layer(Scasm)"},
               Number_Rule(A.LayerScasm, Layers));
}

void Add_Options(Form& F, const char* Name, std::vector<Wording> Items) {
    F.Add({.Kind = Kind::Options, .Name = Name, .Upright = true, .Item_Words = std::move(Items)});
}

void Add_All_Options(Form& F) {
    Add_Options(F, "Opt_SurfShore",
                {{"Poly without shore", "Poly sans rivage"},
                 {"Poly with shore", "Poly avec rivage"},
                 {"Line/LakeShore", "Lignes/rivage-lac"},
                 {"Coastline",
                  "C\xF4tes (oc\xE9"
                  "an)"}});
    Add_Options(F, "Opt_LWM_VTP2",
                {{"LWM Poly", "LWM Poly"}, {"VTP2 Poly", "VTP2 Poly"}, {"VTP1 poly", "VTP1 poly"}});
    Add_Options(F, "Opt_Attrib", {{"Water", "Water"}, {"Land", "Land"}});
    Add_Options(
        F, "Opt_VTP1_SpecNor",
        {{"VTP1/Poly/Special", "VTP1/Poly/Special"}, {"VTP1/Poly/Normal", "VTP1/Poly/Normal"}});
    for (const char* Name : {"Opt_LandClass", "Opt_LandClass_1"})
        Add_Options(F, Name, {{"LandClass", "LandClass"}, {"Other textures", "Autres textures"}});
}

void Add_Checks(Form& F) {
    const auto Check = [&F](const char* Name, Wording Words) {
        F.Add({.Kind = Kind::Check, .Name = Name, .Words = Words});
    };
    Check("Chk_FermerLine", {"Join ends of line", "Joindre extr\xE9mit\xE9s"});
    Check("Chk_LandOnRight", {"Land on the right", "Terrain sur la droite"});
    Check("Chk_Vtp1_Line", {"VTP1 polys", "Polys VTP1"});
    Check("Chk_Effil_Deb", {"Beg. thinner",
                            "Amincir d\xE9"
                            "but de ligne"});
    Check("Chk_Effil_Fin", {"End thinner", "Amincir fin de ligne"});
    Check("Chk_Line_Night", {"Night lights", "Lumi\xE8res de nuit"});
    Check("Chk_Drive_Right", {"Drive right side", "Conduite \xE0 droite"});
    Check("Chk_Flip_VTP1Texture", {"Flip texture", "Flip texture"});
}

void Add_Lists(Form& F) {
    const auto Combo = [&F](const char* Name, Wording Words) {
        F.Add({.Kind = Kind::Combo, .Name = Name, .Words = Words, .Columns = 40, .Value = -1});
    };
    Combo("Cmbo", {"Kind of line:", "Genre de ligne :"});
    Combo("Cbo_LC", {"Class:", "Classe :"});
    Combo("Cbo_LC_1", {"Class:", "Classe :"});
}

void Add_Textures(Form& F) {
    constexpr std::array<Wording, 6> Words{{{"Texture 1:", "Texture 1 :"},
                                            {"Texture 2:", "Texture 2 :"},
                                            {"Texture 3:", "Texture 3 :"},
                                            {"Texture 4:", "Texture 4 :"},
                                            {"Texture 5:", "Texture 5 :"},
                                            {"Texture 6:", "Texture 6 :"}}};
    for (const auto& Group : Route_Textures)
        for (std::size_t I = 0; I < Group.size(); ++I)
            Add_Text(F, Group[I], Words[I],
                     Text_Rule(Cur_Attr.Texture_Name[I], Is_No_Or_Some_File, File_Or_None), 40);
}

void Add_Images(Form& F) {
    for (const char* Name : {"PicLine", "Pic_1", "Pic"})
        F.Add({.Kind = Kind::Image,
               .Name = Name,
               .Said_Words = {"Preview", "Aper\xE7u"},
               .Width = Preview_Side,
               .Height = Preview_Side,
               .Stretched = true});
}

void Add_Pages(Form& F) {
    F.Add({.Kind = Kind::Tabs, .Name = "SSTb"});
    constexpr std::array<Wording, 5> Titles{{{"Main", "Main"},
                                             {"Lines", "Lines"},
                                             {"LWM", "LWM"},
                                             {"VTP1 Polys", "VTP1 Polys"},
                                             {"VTP2 Polys", "VTP2 Polys"}}};
    for (std::size_t I = 0; I < Route_Pages.size(); ++I)
        F.Add({.Kind = Kind::Tab, .Name = Route_Pages[I], .Words = Titles[I]});
}

void Add_Frames_And_Labels(Form& F) {
    const auto Frame = [&F](const char* Name, Wording Words) {
        F.Add({.Kind = Kind::Frame, .Name = Name, .Words = Words});
    };
    Frame("Lfrm_SurfShore", {"Poly/Line/Shore", "Poly/Ligne/Rivage"});
    Frame("Fram_Type_Poly", {"Kind of polygon", "Genre de polygone"});
    Frame("Fram_Layer_VTP12", {"VTP1/VTP2", "VTP1/VTP2"});
    Frame("Fram_Line", {"VTP2 Line/Shore", "VTP2 Ligne/rivage"});
    F.Add({.Name = "LWaves", .Words = {"Y : waves effect", "Y : effet de vaques"}});
    for (const char* Name : {"LAutogen", "LAutogen1"})
        F.Add({.Name = Name, .Words = {"Y : active Autogen", "Y : Autogen actif"}});
    F.Add({.Name = "L_VTP1_Poly",
           .Words = {"See module where to link textures and polys",
                     "Voir module de rattachement de poly \xE0 texture"}});
}

Layouts Texture_Fields(std::size_t Group) {
    return {Route_Textures[Group].begin(), Route_Textures[Group].end()};
}

Layout Main_Page() {
    return Tab("Tab_Main", {Fields({"Text_Rt", Row({"Text_Ref", "Cmd_Read", "Cmd_Save"})}),
                            Row({Frame("Lfrm_SurfShore", {"Opt_SurfShore", Space()}),
                                 Frame("Fram_Type_Poly", {"Opt_LWM_VTP2", Space()}),
                                 Column({Frame("Fram_Layer_VTP12", {Fields({"Layer_Vtp2"})}),
                                         Fields({"Imbrication", "Alt_Coast"}), Space()})}),
                            Space()});
}

Layout Lines_Page() {
    return Tab(
        "Tab_Lines",
        {Frame("Fram_Line",
               {Fields({"Cmbo"}), "LWaves",
                Row({"PicLine", Fields({"Largeur", "Layer", "LayerScasm"}), Space()}),
                Grid(2, {"Chk_FermerLine", "Chk_LandOnRight", "Chk_Vtp1_Line", "Chk_Effil_Deb",
                         "Chk_Effil_Fin", "Chk_Line_Night", "Chk_Drive_Right"})}),
         Space()});
}

Layout Texture_Page(const char* Page, Layouts Above, std::size_t Group, Layouts Class,
                    const char* Image) {
    Above.push_back(Fields(std::move(Class)));
    return Tab(Page,
               {Column(std::move(Above)), Row({Fields(Texture_Fields(Group)), Image}), Space()});
}

}  // namespace

void Route_Add_Controls(Form& F) {
    Add_Pages(F);
    Add_Frames_And_Labels(F);
    Add_Fields(F);
    Add_All_Options(F);
    Add_Checks(F);
    Add_Lists(F);
    Add_Textures(F);
    Add_Images(F);
}

void Route_Set_Layout(Form& F) {
    F.Set_Layout(Column(
        {Tabs("SSTb",
              {Main_Page(), Lines_Page(), Tab("Tab_LWM", {"Opt_Attrib", Fields({"Alti"}), Space()}),
               Texture_Page("Tab_VTP1",
                            {"L_VTP1_Poly", Row({"Opt_VTP1_SpecNor", "Opt_LandClass_1"}),
                             "Chk_Flip_VTP1Texture", "LAutogen1"},
                            1, {"Cbo_LC_1"}, "Pic_1"),
               Texture_Page("Tab_VTP2", {"Opt_LandClass", "LAutogen"}, 0, {"Cbo_LC"}, "Pic")}),
         Buttons({"Cmd_Ok", "Cmd_Cancel", "Cmd_Help"})}));
}
