// ui/canvas/map_tiles.cpp - the tiles of the open project, from its map file to its pictures.
#include "ui/canvas/map_tiles.h"

#include <algorithm>
#include <limits>
#include <optional>

#include "core/host.h"
#include "core/model.h"
#include "core/number_text.h"
#include "core/program.h"
#include "core/project_paths.h"
#include "core/resets.h"
#include "core/view_calls.h"
#include "core/within_memory.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text1252.h"
#include "tex/bitmap.h"
#include "ui/canvas/map_cut.h"
#include "ui/canvas/view.h"

namespace {

// From this size on, a column and a row without a mark between them could be two tiles: "110" is
// column 1 in row 10 as well as column 11 in row 0.
constexpr Long Many_Cols = 12, Many_Rows = 11;

std::string Name_Of(Long Col, Long Row, Long Cols, Long Rows) {
    const char* Mark = Cols >= Many_Cols && Rows >= Many_Rows ? "_" : "";
    return std::to_string(Col) + Mark + std::to_string(Row);
}

std::string Temp_Dir_Path() {
    return App_Path + "\\Temp";
}

std::string Path_Of_Name(const std::string& Name) {
    return Temp_Dir_Path() + "\\$$$_" + Name + ".bmp";
}

std::string Percent(Double Part, Double Whole) {
    return std::to_string(Round_Lng(Part * 100.0 / Whole)) + "%";
}

void Show_Frame(Map_Progress& F, bool On) {
    if (On) F.Set_Caption("Fram_Creat_2500", In_Language("Map", "Carte"));
    F.Set_Visible("Fram_Creat_2500", On);
    The_Host().Refresh();
}

void Delete_Tiles(Long Cols, Long Rows) {
    for (Long Row = 0; Row < Rows; ++Row)
        for (Long Col = 0; Col < Cols; ++Col)
            File_Delete(Path_Of_Name(Name_Of(Col, Row, Cols, Rows)));
}

Cut_Progress Shown_On(Map_Progress& F, const Bitmap_Header& Map) {
    const Long Each = Map.Bits == 8 ? 10 : 100;
    return [&F, Each, Last = Long{0}](Long Tile, Long Lines) mutable {
        if (Tile != Last) {
            Last = Tile;
            F.Set_Caption("LPourCent", "0%");
            F.Set_Caption("LNbTex", Str(Tile));
            The_Host().Refresh();
        }
        if (Lines % Each != 0) return;
        F.Set_Caption("LPourCent", Percent(Lines, Tile_Size));
        The_Host().Refresh();
    };
}

// Cuts the map; what went wrong, or nothing.
std::string Cut(Map_Progress& F, File_Reader& File, const Bitmap_Header& Map,
                std::string_view Path) {
    const Long Cols = Tile_Count(Map.Width), Rows = Tile_Count(Map.Height);
    const std::string Nb(Str(Cols * Rows));
    F.Set_Caption("LTex2500", In_Language("Creation of ",
                                          "Cr\xE9"
                                          "ation de ") +
                                  Nb + In_Language(" temporary .bmp", " .bmp temporaires"));
    F.Set_Caption("LPourCent", "0%");
    F.Set_Caption("LNbTex", "");
    Show_Frame(F, true);
    const auto Path_Of = [&](Long Col, Long Row) {
        return Path_Of_Name(Name_Of(Col, Row, Cols, Rows));
    };
    std::string Fault;
    if (!Dir_Create(Temp_Dir_Path()))
        Fault = Temp_Dir_Path();
    else
        Fault = Map_Cut(File, Map, Path, Path_Of, Shown_On(F, Map));
    Show_Frame(F, false);
    if (Fault.empty()) return {};
    Delete_Tiles(Cols, Rows);
    if (Fault == Path) return Bitmap_Fault_Text(Bitmap_Fault::Cut_Short, Path);
    return std::string(In_Language("The map cannot be cut, this cannot be written:",
                                   "La carte ne peut pas \xEAtre d\xE9"
                                   "coup\xE9"
                                   "e, ceci ne peut pas \xEAtre \xE9"
                                   "crit :")) +
           "\r\n" + Shown_Path(Fault);
}

bool Has_Too_Many_Tiles(const Bitmap_Header& Map) {
    return std::int64_t{Tile_Count(Map.Width)} * Tile_Count(Map.Height) >
           std::numeric_limits<Int>::max();
}

// A file may be small and its tiles, which are full squares, many: a map one pixel wide. What was
// painted or scanned has no such shape.
bool Takes_Too_Much(const Bitmap_Header& Map, std::uint64_t Own, std::uint64_t& Needed) {
    constexpr std::uint64_t Most_Times = 8, Always_Fits = std::uint64_t{1} << 30;
    Needed = static_cast<std::uint64_t>(Tile_Count(Map.Width)) *
             static_cast<std::uint64_t>(Tile_Count(Map.Height)) *
             static_cast<std::uint64_t>(Tile_Size * Tile_Size * (Map.Bits / 8));
    return Needed > Always_Fits && Needed / Most_Times > Own;
}

std::string In_MB(std::uint64_t Bytes) {
    constexpr std::uint64_t MB = 1000000;
    return std::to_string(Bytes / MB) + "." + std::to_string(Bytes % MB / (MB / 10)) +
           In_Language(" MB", " Mo");
}

std::string Too_Much_Text(std::uint64_t Needed, std::uint64_t Own, std::string_view Path) {
    return In_Language("The map cannot be cut, its tiles would take ",
                       "La carte ne peut pas \xEAtre d\xE9"
                       "coup\xE9"
                       "e, ses morceaux prendraient ") +
           In_MB(Needed) + In_Language(", and it has itself ", ", et elle-m\xEAme n'a que ") +
           In_MB(Own) + ":\r\n" + Shown_Path(Path);
}

// The size of the map that was cut last, for the project that is being opened.
struct Cut_Size {
    Long Width = 0, Height = 0;
};
Cut_Size Last_Cut;
const bool Is_Reset = At_Reset([] {
    WPic.assign(1, {});
    Last_Cut = {};
});

void Take_Tile_Counts() {
    Nb_Tile_Cols = static_cast<Int>(Tile_Count(Last_Cut.Width));
    Nb_Tile_Rows = static_cast<Int>(Tile_Count(Last_Cut.Height));
    Nb_Tiles = static_cast<Int>(Nb_Tile_Cols * Nb_Tile_Rows);
}

// The size belongs to the calibration, so a map that was replaced by one of another size does not
// change it: the user is told and may calibrate it anew.
void Compare_Map_Size() {
    if (Last_Cut.Width == Map_Width && Last_Cut.Height == Map_Height) return;
    const auto Size = [](Long W, Long H) { return std::to_string(W) + " x " + std::to_string(H); };
    Plain_Box(std::string(In_Language("The map has another size than the project expects: ",
                                      "La carte n'a pas la taille attendue par le projet : ")) +
              Size(Last_Cut.Width, Last_Cut.Height) + In_Language(" instead of ", " au lieu de ") +
              Size(Map_Width, Map_Height) + "\r\n" + Shown_Path(Carte));
}

// A tile file is a full square, or it is none of ours.
Bitmap_Fault Read_Tile(const std::string& Path, Picture& P) {
    const Bitmap_Fault Fault = Picture_Read(Path, P);
    if (Fault != Bitmap_Fault::None) return Fault;
    const bool Is_Whole = P.Width == Tile_Size && P.Height == Tile_Size;
    return Is_Whole ? Bitmap_Fault::None : Bitmap_Fault::Size;
}

// Asks for the map that is not where the project says. False when the user gives none.
bool Ask_For_Map() {
    const std::string Named = In_Project(Carte);
    const std::string Beside = std::string(Path_Dir(Nom_Projet)) + std::string(Path_Name(Named));
    std::string Text = In_Language("The map of the project is not there. It was looked for here:",
                                   "La carte du projet est introuvable. Elle a \xE9t\xE9 "
                                   "cherch\xE9"
                                   "e ici :");
    Text += "\r\n" + Shown_Path(Named);
    if (!Equal_No_Case(Beside, Named)) Text += "\r\n" + Shown_Path(Beside);
    Text += "\r\n";
    Text +=
        In_Language("Do you want to show where it is ?", "Voulez-vous indiquer o\xF9 elle est ?");
    if (The_Host().Show_Box({.Text = Text, .Style = Box_Question + Box_Yes_No}) != Button_Yes)
        return false;
    const auto Path = The_Host().Ask_File({.Mode = File_Question::Kind::Open,
                                           .Title = In_Language("Map File", "Carte"),
                                           .Start_Dir = std::string(Path_Dir(Nom_Projet)),
                                           .File_Name = std::string(Path_Name(Named)),
                                           .Filter = "BMP (*.Bmp)|*.Bmp"});
    if (Path) Carte = As_Project_Holds(*Path, Carte);
    return Path.has_value();
}

// The map, which may have to be asked for; nothing when there is none.
std::optional<std::string> Find_Map() {
    for (;;) {
        std::string Path = Map_Path();
        if (File_Exists(Path)) return Path;
        if (!Ask_For_Map()) return std::nullopt;
    }
}

}  // namespace

void Main_Form_Progress::Set_Caption(std::string_view Label, std::string_view Text) {
    The_Host().Set_Caption(Label, Text);
}

void Main_Form_Progress::Set_Visible(std::string_view Frame, bool On) {
    The_Host().Set_Visible(Frame, On);
}

void Map_Split_Tiles(Map_Progress& Progress, std::string_view Path, Int& Error) {
    Error = 1;
    std::string Fault_Text;
    const bool Fits = Within_Memory([&] {
        const Hourglass Waiting;
        File_Reader File(Path);
        Bitmap_Header Map;
        const Bitmap_Fault Fault = Bitmap_Header_Read(File, Map);
        Last_Cut = {Map.Width, Map.Height};
        std::uint64_t Needed = 0;
        if (Fault != Bitmap_Fault::None)
            Fault_Text = Bitmap_Fault_Text(Fault, Path);
        else if (Has_Too_Many_Tiles(Map))
            Fault_Text = Bitmap_Fault_Text(Bitmap_Fault::Size, Path);
        else if (Takes_Too_Much(Map, File.Size(), Needed))
            Fault_Text = Too_Much_Text(Needed, File.Size(), Path);
        else
            Fault_Text = Cut(Progress, File, Map, Path);
    });
    if (!Fits) {
        Show_Frame(Progress, false);
        Map_Delete_Tiles(Last_Cut.Width, Last_Cut.Height);
        Fault_Text = Bitmap_Fault_Text(Bitmap_Fault::No_Memory, Path);
    }
    if (!Fault_Text.empty()) return Plain_Box(Fault_Text);
    Error = 0;
}

void Map_Delete_Tiles(Long Width, Long Height) {
    Delete_Tiles(Tile_Count(Width), Tile_Count(Height));
}

std::string Tile_File_Name(Int Index) {
    const Long Cols = std::max<Long>(1, Nb_Tile_Cols);
    return Name_Of(Index % Cols, Index / Cols, Nb_Tile_Cols, Nb_Tile_Rows);
}

std::string Tile_Path(Int Index) {
    return Path_Of_Name(Tile_File_Name(Index));
}

bool Map_Load_Tiles() {
    Main_Form_Progress F;
    F.Set_Caption("LTex2500", In_Language(" Image Map loading", "Chargement de la carte"));
    F.Set_Caption("LPourCent", "0%");
    F.Set_Caption("LNbTex", "1");
    Show_Frame(F, true);
    std::string Fault_Text;
    const bool Fits = Within_Memory([&] {
        const Hourglass Waiting;
        WPic.assign(static_cast<std::size_t>(std::max<Int>(1, Nb_Tiles)), {});
        for (Int I = 0; I < Nb_Tiles && Fault_Text.empty(); ++I) {
            if (I > 0) {
                F.Set_Caption("LNbTex", Str(I + 1));
                F.Set_Caption("LPourCent", Percent(I, Nb_Tiles - 1));
                The_Host().Refresh();
            }
            const std::string Path = Tile_Path(I);
            const Bitmap_Fault Fault = Read_Tile(Path, WPic[static_cast<std::size_t>(I)]);
            if (Fault != Bitmap_Fault::None) Fault_Text = Bitmap_Fault_Text(Fault, Path);
        }
    });
    if (!Fits) Fault_Text = Bitmap_Fault_Text(Bitmap_Fault::No_Memory, Carte);
    Show_Frame(F, false);
    if (Fault_Text.empty()) return true;
    WPic.assign(1, {});
    Plain_Box(Fault_Text);
    return false;
}

void Map_Free_Tiles() {
    WPic.assign(1, {});
    WPic.shrink_to_fit();
    for (Int I = 0; I < Nb_Tiles; ++I) File_Delete(Tile_Path(I));
    Nb_Tiles = Nb_Tile_Rows = Nb_Tile_Cols = 0;
    if (Nb_Ima != 0) Call(The_View.Ima_Unload);
}

bool Tiles_Build() {
    Nb_Tiles = Nb_Tile_Rows = Nb_Tile_Cols = 0;
    const auto Path = Find_Map();
    if (!Path) return false;
    Int Error = 0;
    Main_Form_Progress Progress;
    Map_Split_Tiles(Progress, *Path, Error);
    if (Error != 0) return false;
    Take_Tile_Counts();
    Compare_Map_Size();
    View_Center_Map();
    if (Map_Load_Tiles()) return true;
    Map_Free_Tiles();
    return false;
}

void Tiles_Show() {
    View_Center_Map();
    if (!Map_Load_Tiles()) Map_Free_Tiles();
}
