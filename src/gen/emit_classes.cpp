// gen/emit_classes.cpp - cells into rasters, and rasters through the terrain tools.
#include "gen/emit_classes.h"
#include "core/project_paths.h"

#include <algorithm>
#include <span>
#include <tuple>

#include "core/program.h"
#include "gen/class_raster.h"
#include "gen/emitter.h"
#include "gen/outputs.h"
#include "gen/source_frame.h"
#include "geometry/exchange_order.h"
#include "grid/terrain_grid.h"
#include "platform/paths.h"

namespace {

// What differs between land and water.
struct Class_Kind {
    const char* Stage;
    const char* Prefix;  // of raw files and outputs
    const char* Inf;
    const char* Type;
    const char* Failure;
};
constexpr Class_Kind Land{"LandClasses", "\\LC_", "TmpLC.Inf", "Type = ClassU8",
                          "Error BGL lC generation"};
constexpr Class_Kind Water{"WaterClasses", "\\WC_", "TmpWC.Inf", "Type = WaterClassU8",
                           "Error BGL WC generation"};

struct Lod5_Cell {
    Lod5_Pos Pos;
    Byte Num = 0;

    auto Square() const { return std::tie(Pos.Lod5_Lat, Pos.Lod5_Lon); }
};

using Lod5_Cells = std::span<const Lod5_Cell>;

std::string Temp_Path(std::string_view Name) {
    return App_Path + "\\Temp\\" + std::string(Name);
}

std::string Quoted(const std::string& Path) {
    return "\"" + Path + "\"";
}

// The last tool gets its output without quotes, unless a blank would part it in two.
std::string Quoted_With_Blanks(const std::string& Path) {
    return Path.find_first_of(" \t") == std::string::npos ? Path : Quoted(Path);
}

// The path of a file of the square in Dir.
std::string Square_Path(const std::string& Dir, const Class_Kind& Kind, const Lod5_Pos& Square,
                        const char* Extension) {
    return Dir + Kind.Prefix + Mask_000(Square.Lod5_Lon) + "_" + Mask_000(Square.Lod5_Lat) +
           Extension;
}

// Records of one cell may say different things: the last one in this order counts.
template <typename Record>
Table<Lod5_Cell> Sorted_Cells(const Project_Table<Record>& Tab) {
    Table<Lod5_Cell> Cells(Tab.Nb() + 1, 1);
    for (const Record& R : Tab.Rows()) Cells.Append({.Pos = Cell_To_Lod5(R), .Num = R.Num});
    Exchange_Order(Cells,
                   [](const Lod5_Cell& A, const Lod5_Cell& B) { return A.Square() < B.Square(); });
    return Cells;
}

// Whether Bytes are in the file now. When not, a box tells the path; of a file written in place
// nothing is left, while a safe one is what it was.
bool Write_Raw(const std::string& Path, File_Writer::Mode How, std::string_view Bytes) {
    File_Writer Out(Path, How);
    Out.Put(Bytes);
    if (!Out.Commit()) {
        Box_Not_Whole(Path);
        if (How == File_Writer::Mode::In_Place) Output_Delete(Path);
        return false;
    }
    The_Host().Note_File(File_Event::Written, Path);
    The_Host().Turn();
    return true;
}

bool Write_Inf(const Class_Kind& Kind, const Lod5_Pos& Square) {
    const Double North = 90 - Square.Lod5_Lat * Lod5_StepLat, South = North - Lod5_StepLat;
    const Double West = Square.Lod5_Lon * Lod5_StepLon - 180, East = West + Lod5_StepLon;
    Source_File Out(Temp_Path(Kind.Inf));
    if (!Out.Is_Open()) return false;
    Out.Line("[Destination]");
    Out.Line("LOD = 5");
    Out.Line("DestDir = ", Quoted(Temp_Path("")));
    Out.Line("DestBaseFileName = landclass");
    Out.Line("UseSourceDimensions = 0");
    Out.Line("NorthLat = ", North);
    Out.Line("SouthLat = ", South);
    Out.Line("WestLong = ", West);
    Out.Line("EastLong = ", East);
    Out.Line(" ");
    Out.Line("[Source]");
    Out.Line(Kind.Type);
    Out.Line("SourceDir = ", Quoted(Temp_Path("")));
    Out.Line("SourceFile = \"FicRaw.raw\"");
    Out.Line("Lat = ", North);
    Out.Line("Lon = ", West);
    // These two numbers alone keep the blank of their sign.
    Out.Line("NumOfCellsPerLine = ", Str(Class_Raster::Side));
    Out.Line("NumOfLines = ", Str(Class_Raster::Side));
    Out.Line("CellXdimensionDeg = ", Lod5_StepLon / 256);
    Out.Line("CellYdimensionDeg = ", Lod5_StepLat / 256);
    if (!Out.Close()) return false;
    The_Host().Turn();
    return true;
}

bool Run_Tools(const Class_Kind& Kind, const std::string& Bgl) {
    const std::string Raster = Quoted(Temp_Path("landclass.tmf"));
    const std::string Packed = Quoted(Temp_Path("LWCcompress.tmf"));
    return Run_Process(Source_Path("ResampleV11.exe  ") + Quoted(Temp_Path(Kind.Inf)), 0) &&
           Run_Process(Source_Path("tmfcompress.exe  ") + Raster + " " + Packed, 0) &&
           Run_Process(Source_Path("tmf2bgl.exe  ") + Packed + " " + Quoted_With_Blanks(Bgl), 0);
}

// The tools say nothing of an output that they could not write.
void Tell_When_Unwritable(const std::string& Bgl) {
    if (!File_Writer(Bgl, File_Writer::Mode::Safe).Is_Open()) Box_Not_Whole(Bgl);
}

Class_Raster Raster_Of(Lod5_Cells Cells, const std::string& Earlier) {
    Class_Raster Class_Grid;
    if (Dir_Raw_On != 0)
        if (const auto Raw = File_Read(Earlier)) Class_Grid.Load(*Raw);
    for (const Lod5_Cell& C : Cells) Class_Grid.Set(C.Pos.Col, C.Pos.Row, C.Num);
    return Class_Grid;
}

bool Is_Directory(const std::string& Dir) {
    if (Dir_Exists(Dir)) return true;
    Plain_Box(In_Language("No classes are generated, this is no directory: ",
                          "Aucune classe n'est g\xE9n\xE9r\xE9"
                          "e, ceci n'est pas un r\xE9pertoire : ") +
              Shown_Path(Dir));
    return false;
}

// A dry run touches neither.
bool Directories_Stand() {
    if (The_Host().Is_Dry_Run()) return true;
    const bool Needs_Raw = Dir_Raw_On != 0 || ReUse_Raw != 0;
    return Is_Directory(In_Project(Dir_LCWC)) && (!Needs_Raw || Is_Directory(In_Project(Dir_Raw)));
}

// One square: raster, description, tools. Whether the next one may follow.
bool Generate_Square(const Class_Kind& Kind, Lod5_Cells Cells) {
    const Lod5_Pos& Square = Cells.front().Pos;
    const std::string Raw_File = Square_Path(In_Project(Dir_Raw), Kind, Square, ".Raw");
    const std::string Bgl = Square_Path(In_Project(Dir_LCWC), Kind, Square, ".bgl");
    if (!Bgl_May_Be_Made(Bgl)) return true;
    const Class_Raster Class_Grid = Raster_Of(Cells, Raw_File);
    for (const char* Name : {"FicRaw.Raw", "FicTemp.Tmf", "Compress.Tmf", Kind.Inf})
        Output_Delete(Temp_Path(Name));
    using enum File_Writer::Mode;
    if (!Write_Raw(Temp_Path("FicRaw.Raw"), In_Place, Class_Grid.Bytes())) return false;
    // The raw file holds the work of earlier generations: it is replaced as a whole or not at all.
    const std::string New_Raw = The_Host().Is_Dry_Run() ? Temp_Path(Path_Name(Raw_File)) : Raw_File;
    if (ReUse_Raw != 0 && !Write_Raw(New_Raw, Safe, Class_Grid.Bytes())) return true;
    if (!Write_Inf(Kind, Square)) return false;
    Show_Stage(NameBgl, "ResampleV11.exe");
    if (!Bgl_Set_Aside(Bgl)) return true;
    const bool Have_Run = Run_Tools(Kind, Bgl);
    Bgl_Ended(Bgl, Have_Run);
    if (!Have_Run) {
        Plain_Box(Kind.Failure);
        return false;
    }
    if (!The_Host().Is_Dry_Run()) Tell_When_Unwritable(Bgl);
    Output_Delete(Temp_Path("landclass.tmf"));
    Output_Delete(Temp_Path("LWCcompress.tmf"));
    return true;
}

template <typename Record>
void Generate(const Class_Kind& Kind, const Project_Table<Record>& Tab) {
    const auto Has_Class = [](const Record& R) { return R.Num != No_Class; };
    if (!std::ranges::any_of(Tab.Rows(), Has_Class) || !Directories_Stand()) return;
    const Hourglass Shown;
    Show_Stage(Kind.Stage, "ResampleV11.exe");
    Dir_Create(App_Path + "\\Temp");
    const Table<Lod5_Cell> Tab_Lod5_Cell = Sorted_Cells(Tab);
    const Lod5_Cells All = Tab_Lod5_Cell.Rows();
    for (std::size_t First = 0, End = 0; First < All.size(); First = End) {
        while (End < All.size() && All[End].Square() == All[First].Square()) ++End;
        if (!Generate_Square(Kind, All.subspan(First, End - First))) return;
    }
}

}  // namespace

void LC_Generate() {
    Generate(Land, Tab_LC);
}

void WC_Generate() {
    Generate(Water, Tab_WC);
}
