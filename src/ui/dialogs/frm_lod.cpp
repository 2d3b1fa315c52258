// ui/dialogs/frm_lod.cpp - the fill, height and textures of a Cell.
#include "core/dialog_flags.h"
#include "core/messages.h"
#include "core/project_paths.h"
#include "grid/terrain_grid.h"
#include "platform/files.h"
#include "ui/dialogs/class_choice.h"
#include "ui/dialogs/dialogs.h"
#include "ui/dialogs/square_dialog.h"
#include "ui/dialogs/texture_pick.h"
#include "ui/form/field_rules.h"

namespace {

constexpr Byte Land_Fill = 1;        // Attrib that has no altitude
constexpr Int Class_No_Value = 254;  // no class to choose here
constexpr std::size_t Nb_Textures = std::tuple_size_v<decltype(Area::Texture_Name)>;
constexpr Int Path_Columns = 40;

std::string Texture_Field(std::size_t I) {
    return "Texture_Name(" + std::to_string(I) + ")";
}

bool No_File_Or_One(const std::string& Path) {
    return Path.empty() || File_Exists(In_Project(Path));
}

class LOD_Form final : public Record_Dialog<Area> {
public:
    LOD_Form()
        : Record_Dialog("Frm_LOD", {"Area Creation/modification", "Creation/modification Area"},
                        "LCreatMod", Tab_Area, Cur_Area, Area_Cancelled) {
        Add_Fill();
        Add_Invert_Mask();
        Add_Custom();
        Set_Layout(Around(
            {Row({Column({Fields({"Texte"}), "Chk_Fill1x1", "Opt_Attrib", Fields({"Alti"}),
                          "Chk_InvertMask", "Opt_InvertMaskValue", Row({"L_Texture", Space()}),
                          Space()}),
                  Column({"Chk_Custom", "Opt_LandClass", "Cmbo", "LAutogen", Fields(Textures()),
                          Row({Fields({"Layer"}), "Pic", Space()})})})}));
    }

private:
    void Add_Fill() {
        Add_Text({.Name = "Texte", .Words = {"Texte", "Texte"}}, &Area::Texte);
        Add_Check({.Name = "Chk_Fill1x1", .Words = {"Fill the square", "Remplir le carr\xE9"}},
                  &Area::Fill1x1);
        Add_Options({.Name = "Opt_Attrib",
                     .Item_Words = {{"Water (flatten)", "Water (flatten)"},
                                    {"Land", "Land"},
                                    {"Flatten", "Flatten"}}},
                    &Area::Attrib, [](Area& A) {
                        if (A.Attrib == Land_Fill) A.Alti = No_Alti;
                    });
        Add_Number(
            {.Name = "Alti", .Words = {"Altitude meters", "Altitude m\xE8tres"}, .Columns = 10},
            &Area::Alti, {.Min = No_Alti, .Below = 10000.0}, [](Area& A, Double X) {
                if (A.Attrib != Land_Fill) A.Alti = X;
            });
    }
    void Add_Invert_Mask() {
        Add_Check({.Name = "Chk_InvertMask", .Words = {"Invert mask", "Inverser le masque"}},
                  &Area::InvertMask);
        Add_Options({.Name = "Opt_InvertMaskValue",
                     .Words = {"Invert Mask/LWM", "Inverser le masque/LWM"},
                     .Item_Words = {{"LOD13 water", "LOD13 water"},
                                    {"LOD13 land", "LOD13 land"},
                                    {"Poly", "Poly"}}},
                    &Area::InvertMaskValue);
    }
    void Add_Custom() {
        Add({.Name = "L_Texture"});
        Add({.Name = "LAutogen", .Words = {"Y = active Autogen", "Y = Autogen actif"}});
        Add_Check({.Name = "Chk_Custom", .Words = {"Custom textures", "Textures choisies"}},
                  &Area::Custom);
        Add_Options(
            {.Name = "Opt_LandClass",
             .Item_Words = {{"LandClass", "LandClass"}, {"Other textures", "Autres textures"}}},
            &Area::LandClass);
        for (std::size_t I = 0; I < Nb_Textures; ++I) {
            const auto Name = [I](auto& A) -> auto& {
                return A.Texture_Name[I];
            };
            Add_Text({.Name = Texture_Field(I),
                      .Words = {"Texture", "Texture"},
                      .Rule = {.Allowed = File_Or_None},
                      .Columns = Path_Columns,
                      .On_Choose = [this, I, Name] { Pick(I, Name); }},
                     Name, No_File_Or_One);
        }
        Add_Number({.Name = "Layer", .Words = {"Layer:", "Layer:"}, .Columns = 4}, &Area::Layer,
                   {.Min = 0.0, .Below = 16.0, .Whole = true},
                   [](Area& A, Double X) { A.Layer = static_cast<Int>(X); });
    }
    static Layouts Textures() {
        Layouts Names;
        for (std::size_t I = 0; I < Nb_Textures; ++I) Names.emplace_back(Texture_Field(I));
        return Names;
    }

    // The picker begins where the field's text is, be it accepted or not.
    template <typename Field>
    void Pick(std::size_t I, Field Of) {
        std::string Path = (*this)[Texture_Field(I)].Text;
        if (Pick_Texture(Path, Texture_Shape::Square)) Change([&](Area& A) { Of(A) = Path; });
    }
    void Take_Class() {
        if (const Class_Entry* Entry = Classes_.Chosen()) Put(&Area::LC, Entry->Class);
    }
    void Prepare() override {
        Classes_.Read(Class_No_Value);
        Set_Caption("L_Texture", Is_One_Square() ? Cell_Quad_Name(Cur()) + "xx.bmp" : "");
    }
    // A disabled control keeps its value, and so does the record.
    void Follow() override {
        const bool Custom = Shown(&Area::Custom, Mixed_Check) == 1;
        const Long Which = Shown(&Area::LandClass, Mixed_Choice);
        const bool By_Class = Custom && Which == 0, By_Name = Custom && Which == 1;
        Set_Enabled("Alti", Shown(&Area::Attrib, Mixed_Choice) != Land_Fill);
        Set_Enabled("Cmbo", By_Class && Classes_.Has_Rows());
        for (std::size_t I = 0; I < Nb_Textures; ++I) Set_Enabled(Texture_Field(I), By_Name);
        const bool Same_Class = !Differ(&Area::LC);
        if (By_Class && Same_Class && Classes_.Chosen() == nullptr) Classes_.Choose(Cur().LC);
        const auto First_Name = [](const Area& A) -> const std::string& {
            return A.Texture_Name[0];
        };
        if (By_Class)
            Classes_.Show_Class();
        else
            Classes_.Show_File(By_Name && !Differ(First_Name) ? First_Name(Cur()) : std::string());
    }
    bool May_Store() override {
        const auto Does_Nothing = [](const Area& A) {
            return A.Custom == 0 && A.Fill1x1 == 0 && A.InvertMask == 0;
        };
        const auto Lacks_Name = [](const Area& A) {
            return A.Custom == 1 && A.LandClass == 1 && A.Texture_Name[0].empty();
        };
        const Int Fault = Any(Does_Nothing) ? 12 : Any(Lacks_Name) ? 103 : 0;
        if (Fault != 0) Msg_Show(Fault);
        return Fault == 0;
    }

    Class_Choice Classes_{*this, Class_Sort::Land, "$BmpLC$.bmp", [this] { Take_Class(); }};
};

}  // namespace

std::unique_ptr<Form> Make_Frm_LOD() {
    return std::make_unique<LOD_Form>();
}
