// ui/dialogs/frm_ppro.cpp - the parameters of a project: of an open one, or step by step those of
// a new one.
#include <optional>

#include "core/host.h"
#include "core/messages.h"
#include "core/program.h"
#include "core/project_paths.h"
#include "core/typed_number.h"
#include "geo/latlon_text.h"
#include "geo/metres.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "tex/bitmap.h"
#include "ui/canvas/map_cut.h"
#include "ui/canvas/map_tiles.h"
#include "ui/dialogs/dialogs.h"
#include "ui/dialogs/frm_dir.h"
#include "ui/dialogs/project_draft.h"
#include "ui/form/field_rules.h"

namespace {

constexpr Long Smallest_Map = 2;  // pixels a side

// A field that a click fills, and the value behind it.
struct Chosen_Field {
    const char* Name;
    Wording Words;
    std::string Project_Draft::*Of;
    Wording Tip = {};
};

constexpr Chosen_Field Chosen_Fields[] = {
    {"NomProjet", {"Project:", "Projet:"}, &Project_Draft::New_Nom_Projet},
    {"Carte", {"Map:", "Carte:"}, &Project_Draft::New_Carte},
    {"NameBgl", {"BGL name:", "Nom du BGL:"}, &Project_Draft::New_NameBgl},
    {"NameBglExcl",
     {"Bgl name:", "Nom bgl:"},
     &Project_Draft::New_NameBglExcl,
     {"The output of the exclusions", "La sortie des exclusions"}},
    {"Dir_LCWC", {"Bgl directory:", "R\xE9pertoire Bgl :"}, &Project_Draft::New_Dir_LCWC},
    {"Dir_Raw", {"Raw directory:", "R\xE9pertoire Raw :"}, &Project_Draft::New_Dir_Raw}};

// All four are needed, whatever the project holds; the first that is empty gets the focus.
constexpr const char* Required[] = {"Dir_Raw", "Dir_LCWC", "NameBglExcl", "NameBgl"};

struct Flag_Control {
    const char* Name;
    Int Project_Draft::*Of;
};

constexpr Flag_Control Flags[] = {{"Chk_Dir_Raw", &Project_Draft::New_Dir_Raw_On},
                                  {"Chk_ReUse_Raw", &Project_Draft::New_ReUse_Raw},
                                  {"OPt_FS_CFS", &Project_Draft::New_FS_CFS},
                                  {"Opt_Meter_Feet", &Project_Draft::New_Meter_Feet}};

// The calibration as it stands: a point's degrees as a number and as a text.
struct Read_Out_Row {
    const char* Decimal;
    const char* Text;
    Double Calibration::*Of;
    std::string (*Text_Of)(Double);
};

constexpr Read_Out_Row Read_Outs[] = {
    {"L_LatNW_Dec", "L_LatNW", &Calibration::LatPtNW, Lat_To_Text},
    {"L_LonNW_Dec", "L_LonNW", &Calibration::LonPtNW, Lon_To_Text},
    {"L_latSE_Dec", "L_LatSE", &Calibration::LatPtSE, Lat_To_Text},
    {"L_LonSE_Dec", "L_LonSE", &Calibration::LonPtSE, Lon_To_Text}};

const std::string& Value_Of(const char* Field) {
    for (const Chosen_Field& C : Chosen_Fields)
        if (C.Name == std::string_view(Field)) return The_Draft.*C.Of;
    static const std::string None;
    return None;
}

// The values of a new project, or those of the open one.
Project_Draft First_Draft() {
    Project_Draft D;
    if (New_Projet != 0) {
        D.New_Cal.LatPtNW = 45.10986328125, D.New_Cal.LonPtNW = 45.0;
        D.New_Cal.LatPtSE = 45.0, D.New_Cal.LonPtSE = 45.144684375;
        return D;
    }
    D.New_Nom_Projet = Nom_Projet, D.New_Carte = Carte;
    D.New_NameBgl = NameBgl, D.New_NameBglExcl = NameBglExcl;
    D.New_Dir_LCWC = Dir_LCWC, D.New_Dir_Raw = Dir_Raw;
    D.New_Dir_Raw_On = Dir_Raw_On, D.New_ReUse_Raw = ReUse_Raw;
    D.New_Meter_Feet = Meter_Feet, D.New_Delta_Alt = Delta_Alt, D.New_FS_CFS = FS_CFS;
    D.New_Cal = The_Calibration;
    D.New_Map_Width = Map_Width, D.New_Map_Height = Map_Height;
    return D;
}

void Draft_To_Project() {
    const Project_Draft& D = The_Draft;
    if (New_Projet != 0) {
        Nom_Projet = D.New_Nom_Projet, Carte = D.New_Carte;
        The_Calibration = D.New_Cal;
        Map_Width = D.New_Map_Width, Map_Height = D.New_Map_Height;
        Nb_Tiles = D.Nb_Tiles_New, Nb_Tile_Rows = D.Nb_Tile_Rows_New;
        Nb_Tile_Cols = D.Nb_Tile_Cols_New;
    }
    NameBgl = D.New_NameBgl, NameBglExcl = D.New_NameBglExcl;
    Dir_LCWC = D.New_Dir_LCWC, Dir_Raw = D.New_Dir_Raw;
    Dir_Raw_On = D.New_Dir_Raw_On, ReUse_Raw = D.New_ReUse_Raw;
    Meter_Feet = D.New_Meter_Feet, Delta_Alt = D.New_Delta_Alt, FS_CFS = D.New_FS_CFS;
}

// The size of a map that can serve; nothing for any other file.
std::optional<std::pair<Long, Long>> Map_Size(const std::string& Path) {
    File_Reader File(Path);
    Bitmap_Header H;
    if (Bitmap_Header_Read(File, H) != Bitmap_Fault::None) return std::nullopt;
    if (H.Width < Smallest_Map || H.Height < Smallest_Map) return std::nullopt;
    return std::pair{H.Width, H.Height};
}

class PPro_Form final : public Form, private Map_Progress {
public:
    PPro_Form() : Form("Frm_PPro") {
        The_Draft = First_Draft();
        Add_Fields();
        Add_Map_Controls();
        Add_Choices();
        Add_Frames();
        Add_Ok_Cancel(
            *this, [this] { Ok(); }, [this] { Close(Form_End::Closed); });
        Lay_Out();
        On_Load = [this] { Load(); };
        On_Unload = [this] {
            if (New_Projet != 0 && PPro_Ok == 0) Drop_Tiles();
        };
    }

private:
    // --- building -------------------------------------------------------------------------
    void Add_Fields() {
        const std::pair<const char*, void (PPro_Form::*)()> Choosers[] = {
            {"NomProjet", &PPro_Form::Choose_Project}, {"Carte", &PPro_Form::Choose_Map},
            {"NameBgl", &PPro_Form::Choose_NameBgl},   {"NameBglExcl", &PPro_Form::Choose_Excl},
            {"Dir_LCWC", &PPro_Form::Choose_Dir_LCWC}, {"Dir_Raw", &PPro_Form::Choose_Dir_Raw}};
        for (std::size_t I = 0; I < std::size(Chosen_Fields); ++I) {
            const auto Choose = [this, Run = Choosers[I].second] { (this->*Run)(); };
            Add({.Kind = Control_Kind::Text,
                 .Name = Chosen_Fields[I].Name,
                 .Words = Chosen_Fields[I].Words,
                 .Tip_Words = Chosen_Fields[I].Tip,
                 .Columns = 56,
                 .Read_Only = true,
                 .On_Click = Choose,
                 .On_Choose = Choose});
        }
        Add({.Kind = Control_Kind::Number,
             .Name = "Delta_Alt",
             .Words = {"Added to altitudes:", "Ajout\xE9 aux altitudes :"},
             .Rule = Number_Rule(The_Draft.New_Delta_Alt, {.Above = -1000.0, .Below = 1000.0}),
             .Columns = 10});
    }

    void Add_Button(const char* Name, Wording Words, void (PPro_Form::*Run)()) {
        Add({.Kind = Control_Kind::Button, .Name = Name, .Words = Words, .On_Click = [this, Run] {
                 (this->*Run)();
             }});
    }

    void Add_Map_Controls() {
        Add_Button("Cmd_Next_Projet", {"Next", "Suivant"}, &PPro_Form::Next_Projet);
        Add_Button("Cmd_CadCarte", {"Calibration by two points", "Calage par deux points"},
                   &PPro_Form::Calibrate_By_Points);
        Add_Button("Cmd_CenterMap", {"Calibration by the centre", "Calage par le centre"},
                   &PPro_Form::Calibrate_By_Center);
        Add_Button("Cmd_Next_Carte", {"Next", "Suite"}, &PPro_Form::Next_Carte);
        Add({.Name = "L_NWSE",
             .Words = {"NW/SE coordinates in the map",
                       "Coordonn\xE9"
                       "es NW/SE dans la carte"}});
        for (const Read_Out_Row& R : Read_Outs) {
            Add({.Name = R.Decimal, .Columns = 20});
            Add({.Name = R.Text, .Columns = 20});
        }
        Add({.Name = "L_DV2Pix",
             .Words = {"Vert. dist. between 2 pixels", "Dist. vert. entre 2 pixels"}});
        Add({.Name = "L_DH2Pix",
             .Words = {"Horiz. dist. between 2 pixels", "Dist. horiz. entre 2 pixels"}});
        for (const char* Label : {"DV2Pix", "DH2Pix"}) Add({.Name = Label, .Columns = 12});
        Add({.Name = "LTex2500", .Columns = 30});
        for (const char* Label : {"LNbTex", "LPourCent"}) Add({.Name = Label, .Columns = 8});
    }

    void Add_Choices() {
        Add({.Kind = Control_Kind::Options,
             .Name = "OPt_FS_CFS",
             .Item_Words = {{"FS2002", "FS2002"}, {"CFS2", "CFS2"}}});
        Add({.Kind = Control_Kind::Options,
             .Name = "Opt_Meter_Feet",
             .Item_Words = {{"Meters", "M\xE8tres"}, {"Feet", "Pieds"}}});
        Add({.Kind = Control_Kind::Check,
             .Name = "Chk_Dir_Raw",
             .Words = {"Use .raw general file", "Utiliser le fichier .raw general"}});
        Add({.Kind = Control_Kind::Check,
             .Name = "Chk_ReUse_Raw",
             .Words = {"Update .raw general file",
                       "Mettre \xE0 jour le fichier .raw "
                       "general"}});
        for (const Flag_Control& C : Flags)
            Handlers(C.Name).On_Click = [this, &C] {
                The_Draft.*C.Of = static_cast<Int>((*this)[C.Name].Value);
            };
    }

    void Add_Frames() {
        const std::pair<const char*, Wording> Frames[] = {
            {"Fram_ParmDeb", {"Project parameters", "Param\xE8tres du projet"}},
            {"Fram_Carte", {"Map", "Carte"}},
            {"Fram_Bgl", {"Fill/Polys LWM-VTP/Lines Bgls", "Fill/Polys LWM-VTP/Lignes Bgls"}},
            {"Fram_LCWC", {"LC and WC Bgls", "LC et WC Bgls"}},
            {"Fram_Creat_2500", {"Map", "Carte"}}};
        for (const auto& [Name, Words] : Frames)
            Add({.Kind = Control_Kind::Frame, .Name = Name, .Words = Words});
        Set_Visible("Fram_Creat_2500", false);
    }

    void Lay_Out() {
        Layouts Points;
        for (const Read_Out_Row& R : Read_Outs) Points.push_back(Row({R.Decimal, R.Text}));
        const Layout Progress =
            Frame("Fram_Creat_2500", {"LTex2500", Row({"LNbTex", "LPourCent"})});
        Set_Layout(
            Column({Frame("Fram_ParmDeb", {Row({Fields({"NomProjet"}), "Cmd_Next_Projet"})}),
                    Frame("Fram_Carte", {Row({Fields({"Carte"}), "Cmd_Next_Carte"}),
                                         Row({"Cmd_CadCarte", "Cmd_CenterMap"}), "L_NWSE",
                                         Row({Column(std::move(Points)), Progress}),
                                         Row({"L_DV2Pix", "DV2Pix", "L_DH2Pix", "DH2Pix"})}),
                    Frame("Fram_Bgl", {Fields({"NameBgl"})}),
                    Fields({"NameBglExcl", Row({"Delta_Alt", "Opt_Meter_Feet", "OPt_FS_CFS"})}),
                    Frame("Fram_LCWC",
                          {Fields({"Dir_LCWC", "Dir_Raw"}), Row({"Chk_Dir_Raw", "Chk_ReUse_Raw"})}),
                    Buttons({"Cmd_Ok", "Cmd_Cancel"})}));
    }

    // --- what it shows --------------------------------------------------------------------
    void Load() {
        const bool Is_New = New_Projet != 0;
        Set_Title(
            Is_New ? std::string(In_Language("New File", "Nouveau Projet"))
                   : In_Language("Parameters modification for ", "Modification param\xE8tres de ") +
                         Shown_Path(Nom_Projet));
        for (const Chosen_Field& C : Chosen_Fields) Set_Text(C.Name, The_Draft.*C.Of);
        for (const Flag_Control& C : Flags) Set_Value(C.Name, The_Draft.*C.Of);
        Set_Text("Delta_Alt", Shown_Number(The_Draft.New_Delta_Alt));
        Set_Enabled("Fram_ParmDeb", Is_New);
        Set_Enabled("Fram_Carte", false);
        Set_Enabled("Cmd_Next_Carte", false);
        Enable_Outputs(!Is_New);
        if (!Is_New) Show_Calibration();
    }

    void Enable_Outputs(bool On) {
        Set_Enabled("Fram_Bgl", On);
        Set_Enabled("Fram_LCWC", On);
    }

    // Points that are equal tie the map to nothing.
    void Show_Calibration() {
        const Calibration& C = The_Draft.New_Cal;
        if (C.XPtNW == C.XPtSE || C.YPtNW == C.YPtSE) return Empty_Read_Out();
        for (const Read_Out_Row& R : Read_Outs) {
            Set_Caption(R.Decimal, Shown_Number(C.*R.Of));
            Set_Caption(R.Text, R.Text_Of(C.*R.Of));
        }
        Set_Caption("DV2Pix", Shown_Number(::DV2Pix(C)));
        Set_Caption("DH2Pix", Shown_Number(::DH2Pix(C)));
    }

    void Empty_Read_Out() {
        for (const Read_Out_Row& R : Read_Outs) {
            Set_Caption(R.Decimal, "");
            Set_Caption(R.Text, "");
        }
        Set_Caption("DV2Pix", "");
        Set_Caption("DH2Pix", "");
    }

    // --- the fields -----------------------------------------------------------------------
    void Put(const char* Name, std::string Project_Draft::*Of, const std::string& Text) {
        The_Draft.*Of = Text;
        Set_Text(Name, Text);
    }

    static std::optional<std::string> Ask(File_Question::Kind Mode, const char* Title,
                                          const char* Filter) {
        return The_Host().Ask_File({.Mode = Mode,
                                    .Title = Title,
                                    .Start_Dir = App_Path,
                                    .File_Name = {},
                                    .Filter = Filter});
    }

    void Choose_Project() {
        for (;;) {
            auto Path = Ask(File_Question::Kind::Any_Name,
                            In_Language("File Name", "Nom du projet"), "Projet (*.LWM)|*.LWM");
            if (!Path || Path->empty()) {
                Msg_Show(16);
                return;
            }
            if (Path_Name(*Path).find('.') == std::string_view::npos) *Path += ".LWM";
            if (!File_Exists(*Path)) return Put("NomProjet", &Project_Draft::New_Nom_Projet, *Path);
            Msg_Wrong_Value({}, Path_Name(*Path),
                            In_Language("the name of a file that is not there yet",
                                        "le nom d'un fichier qui n'existe pas encore"));
        }
    }

    void Choose_Map() {
        for (;;) {
            const auto Path = Ask(File_Question::Kind::Open, In_Language("Map File", "Carte"),
                                  "BMP (*.Bmp)|*.Bmp");
            if (!Path) return;
            const bool Is_There = File_Exists(*Path);
            const auto Size = Is_There ? Map_Size(*Path) : std::nullopt;
            if (Size) return Take_Map(*Path, Size->first, Size->second);
            if (Is_There)
                Msg_Show(10);
            else
                Msg_Wrong_Value({}, Path_Name(*Path),
                                In_Language("the name of a file that is there",
                                            "le nom d'un fichier pr\xE9sent"));
        }
    }

    // Another map begins the calibration afresh.
    void Take_Map(const std::string& Path, Long Width, Long Height) {
        Drop_Tiles();
        Put("Carte", &Project_Draft::New_Carte, Path);
        The_Draft.New_Map_Width = Width, The_Draft.New_Map_Height = Height;
        The_Draft.New_Cal = {
            .XPtSE = Width - 1, .YPtSE = Height - 1, .CadNW_Done = 1, .CadSE_Done = 1};
        Empty_Read_Out();
        Set_Enabled("Cmd_Next_Carte", false);
    }

    void Choose_Output(const char* Name, std::string Project_Draft::*Of) {
        if (const auto Path = Ask(File_Question::Kind::Any_Name, In_Language("BGL name", "BGL"),
                                  "BGL (*.Bgl)|*.Bgl"))
            Put(Name, Of, *Path);
    }
    void Choose_NameBgl() { Choose_Output("NameBgl", &Project_Draft::New_NameBgl); }
    void Choose_Excl() { Choose_Output("NameBglExcl", &Project_Draft::New_NameBglExcl); }

    void Choose_Output_Dir(const char* Name, std::string Project_Draft::*Of, const char* Title) {
        Dir_Title = Title;
        std::string Path = In_Project(The_Draft.*Of);
        Int Cancelled = 1;
        Choose_Dir(Path, Cancelled);
        if (Cancelled == 0) Put(Name, Of, Path);
    }
    void Choose_Dir_LCWC() {
        Choose_Output_Dir(
            "Dir_LCWC", &Project_Draft::New_Dir_LCWC,
            In_Language("LC and WC Bgl directory", "R\xE9pertoire des Bgls LC et WC"));
    }
    void Choose_Dir_Raw() {
        Choose_Output_Dir("Dir_Raw", &Project_Draft::New_Dir_Raw,
                          In_Language("LC and WC Raw directory", "R\xE9pertoire des LC et WC Raw"));
    }

    // --- the map --------------------------------------------------------------------------
    void Set_Caption(std::string_view Label, std::string_view Text) override {
        Form::Set_Caption(Label, Text);
    }
    void Set_Visible(std::string_view Frame, bool On) override { Form::Set_Visible(Frame, On); }

    void Drop_Tiles() {
        if (Tiles_Of_.empty()) return;
        Map_Delete_Tiles(The_Draft.New_Map_Width, The_Draft.New_Map_Height);
        Tiles_Of_.clear();
    }

    // The tiles serve both calibrations, and the project afterwards.
    bool Cut_Map() {
        if (Tiles_Of_ == The_Draft.New_Carte) return true;
        Int Error = 0;
        Map_Split_Tiles(*this, The_Draft.New_Carte, Error);
        if (Error == 0) Tiles_Of_ = The_Draft.New_Carte;
        return Error == 0;
    }

    void Calibrate(const char* Dialog) {
        if (The_Draft.New_Carte.empty()) {
            Msg_Show(107);
            return;
        }
        if (!Cut_Map()) return;
        Draft_Tiling();
        Cad_Cancelled = 1;
        The_Host().Run_Form(Dialog);
        if (Cad_Cancelled != 0) return;
        Show_Calibration();
        Set_Enabled("Cmd_Next_Carte", true);
    }
    void Calibrate_By_Points() { Calibrate("Frm_CadBmp"); }
    void Calibrate_By_Center() { Calibrate("Frm_CenterMap"); }

    // --- the steps ------------------------------------------------------------------------
    void Next_Projet() {
        Set_Enabled("Fram_Carte", true);
        Set_Enabled("Fram_ParmDeb", false);
        Set_Enabled("Cmd_Next_Carte", false);
        Enable_Outputs(false);
        Set_Focus("Carte");
        The_Draft.Step_Projet_Done = 1;
    }

    void Next_Carte() {
        const Calibration& C = The_Draft.New_Cal;
        if (The_Draft.New_Carte.empty() || C.CadNW_Done == 0 || C.CadSE_Done == 0) return;
        Set_Enabled("Cmd_Next_Carte", false);
        Set_Enabled("Fram_Carte", false);
        Enable_Outputs(true);
        Set_Focus("NameBgl");
        The_Draft.Step_Carte_Done = 1;
    }

    void Ok() {
        const Project_Draft& D = The_Draft;
        if (New_Projet != 0 && (D.Step_Projet_Done == 0 || D.Step_Carte_Done == 0)) {
            Msg_Show(9);
            return;
        }
        for (const char* Name : Required)
            if (Value_Of(Name).empty()) {
                Msg_Show(9);
                Set_Focus(Name);
                return;
            }
        Draft_To_Project();
        PPro_Ok = 1;
        Close(Form_End::Ok);
    }

    std::string Tiles_Of_;  // the map whose tiles stand in the directory of working files
};

}  // namespace

void Draft_Tiling() {
    Project_Draft& D = The_Draft;
    D.Nb_Tile_Cols_New = static_cast<Int>(Tile_Count(D.New_Map_Width));
    D.Nb_Tile_Rows_New = static_cast<Int>(Tile_Count(D.New_Map_Height));
    D.Nb_Tiles_New = static_cast<Int>(D.Nb_Tile_Cols_New * D.Nb_Tile_Rows_New);
}

std::unique_ptr<Form> Make_Frm_PPro() {
    return std::make_unique<PPro_Form>();
}
