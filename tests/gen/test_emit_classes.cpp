// tests/gen/test_emit_classes.cpp - rasters, their descriptions and the runs of the tools.
#include "gen/emit_classes.h"

#include <algorithm>

#include "gen_test.h"

namespace {

using Lines = std::vector<std::string>;

constexpr std::size_t Side = 257, Raster_Size = Side * Side;
constexpr char No_Class = static_cast<char>(254);

class Class_Test : public Gen_Test {
protected:
    Class_Test() {
        Dir_LCWC = Dir.Path("Classes");
        Dir_Raw = Dir.Path("Raw");
        Dir.Write("Classes/.keep", "");
        Dir.Write("Raw/.keep", "");
        // What the first tool finds, for each square.
        Host_Of_Test.Tool = [this](std::string_view Cmd_Line) {
            if (Cmd_Line.find("ResampleV11") != std::string_view::npos)
                Rasters.push_back(Source("Temp/FicRaw.Raw"));
            return ++Runs != Missing;
        };
    }

    // A cell of the square of level 5 (48, 32), which has its north-west corner at 0, 0.
    static LC_Cell Cell(Int Col, Int Row, Byte Num) {
        LC_Cell C;
        C.AreaLon = static_cast<Int>(384 + Col / 32);
        C.AreaLat = static_cast<Int>(256 + Row / 32);
        C.CellLon = Col % 32;
        C.CellLat = Row % 32;
        C.Num = Num;
        return C;
    }
    static std::string Blank() { return std::string(Raster_Size, No_Class); }
    static std::string Blank_But(std::size_t Col, std::size_t Row, char Num) {
        std::string Bytes = Blank();
        Bytes[Row * Side + Col] = Num;
        return Bytes;
    }
    Lines Events_With(const std::string& Verb) const {
        Lines Found;
        for (const std::string& E : Host_Of_Test.Events)
            if (E.starts_with(Verb)) Found.push_back(E);
        return Found;
    }

    Lines Rasters;
    int Runs = 0, Missing = 0;
};

TEST_F(Class_Test, RasterDescriptionAndTools) {
    Tab_LC.Append(Cell(255, 3, 77));
    LC_Generate();
    ASSERT_EQ(Rasters.size(), 1U);
    EXPECT_TRUE(Rasters[0] == Blank_But(255, 3, 77)) << "column and row 256 hold no class";
    const std::string Temp = "\"" + App_Path + "\\Temp\\";
    EXPECT_EQ(Source("Temp/TmpLC.Inf"),
              "[Destination]\r\nLOD = 5\r\nDestDir = " + Temp +
                  "\"\r\nDestBaseFileName = landclass\r\nUseSourceDimensions = 0\r\n"
                  "NorthLat = 0\r\nSouthLat = -2.8125\r\nWestLong = 0\r\nEastLong = 3.75\r\n"
                  " \r\n[Source]\r\nType = ClassU8\r\nSourceDir = " +
                  Temp +
                  "\"\r\nSourceFile = \"FicRaw.raw\"\r\nLat = 0\r\nLon = 0\r\n"
                  "NumOfCellsPerLine =  257\r\nNumOfLines =  257\r\n"
                  "CellXdimensionDeg = .0146484375\r\nCellYdimensionDeg = .010986328125\r\n");
    EXPECT_EQ(Events_With("run"),
              (Lines{"run " + App_Path + "\\ResampleV11.exe  " + Temp + "TmpLC.Inf\"",
                     "run " + App_Path + "\\tmfcompress.exe  " + Temp + "landclass.tmf\" " + Temp +
                         "LWCcompress.tmf\"",
                     "run " + App_Path + "\\tmf2bgl.exe  " + Temp + "LWCcompress.tmf\" " +
                         Dir.Path("Classes\\LC_048_032.bgl")}));
    EXPECT_EQ(Host_Of_Test.Stages, (Lines{"LCompileNom=LandClasses", "LCompile=ResampleV11.exe",
                                          "LCompileNom=" + NameBgl, "LCompile=ResampleV11.exe"}));
    EXPECT_TRUE(Host_Of_Test.Boxes.empty());
    EXPECT_FALSE(Dir.Has("Raw/LC_048_032.Raw")) << "kept only when asked for";
}

TEST_F(Class_Test, WaterHasItsOwnNames) {
    WC_Cell C;
    static_cast<Cell_Pos&>(C) = Cell(1, 2, 0);
    C.Num = 9;
    Tab_WC.Append(C);
    ReUse_Raw = 1;
    WC_Generate();
    LC_Generate();
    EXPECT_TRUE(Dir.Read("Raw/WC_048_032.Raw") == Blank_But(1, 2, 9));
    EXPECT_NE(Source("Temp/TmpWC.Inf").find("\r\nType = WaterClassU8\r\n"), std::string::npos);
    EXPECT_NE(Source("Temp/TmpWC.Inf").find("DestBaseFileName = landclass\r\n"), std::string::npos);
    EXPECT_TRUE(Events_With("run").back().ends_with("\\WC_048_032.bgl"));
    EXPECT_EQ(Host_Of_Test.Stages.front(), "LCompileNom=WaterClasses");
    EXPECT_EQ(Runs, 3) << "no land without land cells";
}

TEST_F(Class_Test, NothingWithoutAClass) {
    LC_Generate();
    Tab_LC.Append(Cell(1, 1, 254));
    Tab_LC.Append(Cell(2, 1, 254));
    LC_Generate();
    EXPECT_TRUE(Host_Of_Test.Events.empty());
    EXPECT_FALSE(Has_Source("Temp"));
}

TEST_F(Class_Test, SquaresFromTheNorthThenFromTheWest) {
    for (const auto& [AreaLon, AreaLat] :
         std::vector<std::pair<Int, Int>>{{400, 300}, {10, 300}, {700, 7}, {400, 300}}) {
        LC_Cell C;
        C.AreaLon = AreaLon;
        C.AreaLat = AreaLat;
        C.CellLon = static_cast<Int>(Tab_LC.Nb());
        C.Num = 5;
        Tab_LC.Append(C);
    }
    LC_Generate();
    Lines Outputs;
    for (const std::string& E : Events_With("run"))
        if (E.ends_with(".bgl")) Outputs.push_back(E.substr(E.size() - 14));
    EXPECT_EQ(Outputs, (Lines{"LC_087_000.bgl", "LC_001_037.bgl", "LC_050_037.bgl"}));
    EXPECT_EQ(std::ranges::count(Rasters[2], '\5'), 2) << "both cells of the square";
    EXPECT_EQ(std::ranges::count(Rasters[0], '\5'), 1) << "a raster begins without classes";
}

TEST_F(Class_Test, EarlierClassesStayWhenAskedFor) {
    std::string Earlier = Blank_But(9, 9, 40);
    Earlier.back() = 41;  // the corner that no cell sets
    Dir.Write("Raw/LC_048_032.Raw", Earlier);
    Tab_LC.Append(Cell(8, 9, 7));
    Tab_LC.Append(Cell(30, 200, 254));
    Dir_Raw_On = 1;
    LC_Generate();
    std::string Wanted = Earlier;
    Wanted[9 * Side + 8] = 7;
    EXPECT_TRUE(Rasters.back() == Wanted);
    EXPECT_TRUE(Dir.Read("Raw/LC_048_032.Raw") == Earlier) << "read, not updated";

    Dir.Write("Raw/LC_048_032.Raw", std::string(9 * Side + 2, '\3'));
    LC_Generate();
    EXPECT_EQ(std::ranges::count(Rasters.back(), '\3'), 9 * 257 + 2) << "a short file is used";
    EXPECT_EQ(Rasters.back()[9 * Side + 2], No_Class);
    EXPECT_EQ(Rasters.back()[9 * Side + 8], 7);
    Dir.Write("Raw/LC_048_032.Raw", std::string(Raster_Size + 50, '\3'));
    LC_Generate();
    EXPECT_EQ(Rasters.back().size(), Raster_Size) << "a long one is cut";

    Dir_Raw_On = 0;
    ReUse_Raw = 1;
    LC_Generate();
    EXPECT_TRUE(Dir.Read("Raw/LC_048_032.Raw") == Blank_But(8, 9, 7)) << "overwritten, not read";
}

TEST_F(Class_Test, AMissingToolEndsTheKind) {
    Tab_LC.Append(Cell(1, 1, 5));
    LC_Cell Other = Cell(1, 1, 5);
    Other.AreaLat = 300;
    Tab_LC.Append(Other);
    for (Missing = 1; Missing <= 3; ++Missing) {
        Runs = 0;
        Host_Of_Test.Boxes.clear();
        LC_Generate();
        EXPECT_EQ(Runs, Missing);
        ASSERT_EQ(Host_Of_Test.Boxes.size(), 2U);
        EXPECT_EQ(Host_Of_Test.Boxes[1].Text, "Error BGL lC generation");
        EXPECT_EQ(Host_Of_Test.Pointer, Pointer_Shape::Normal);
        EXPECT_TRUE(Has_Source("Temp/FicRaw.Raw"));
    }
}

TEST_F(Class_Test, FilesThatCannotBeWrittenAreTold) {
    LC_Cell Other = Cell(1, 1, 5);
    Other.AreaLat = 300;
    Tab_LC.Append(Cell(1, 1, 5));
    Tab_LC.Append(Other);
    ReUse_Raw = 1;
    Dir.Write("Raw/LC_048_032.Raw/in the way", "");
    LC_Generate();
    EXPECT_EQ(Runs, 3) << "the second square";
    ASSERT_EQ(Host_Of_Test.Boxes.size(), 1U);
    EXPECT_NE(Host_Of_Test.Boxes[0].Text.find(Dir.Path("Raw\\LC_048_032.Raw")), std::string::npos);
    EXPECT_TRUE(Dir.Has("Raw/LC_048_037.Raw"));
    Dir_LCWC = Dir.Path("Nowhere");
    ReUse_Raw = 0;
    LC_Generate();
    ASSERT_EQ(Host_Of_Test.Boxes.size(), 3U) << "one for each square";
    EXPECT_NE(Host_Of_Test.Boxes[2].Text.find("LC_048_037.bgl"), std::string::npos);
}

TEST_F(Class_Test, ToolsForReal) {
    Tab_LC.Append(Cell(3, 4, 5));
    Put_Tool("ResampleV11.exe", "need $1\ncopy Temp/FicRaw.Raw Temp/landclass.tmf\n");
    Put_Tool("tmfcompress.exe", "copy $1 $2\n");
    Put_Tool("tmf2bgl.exe", "copy $1 $2\n");
    Dir.Write("Classes/LC_048_032.bgl", "older");
    LC_Generate();
    EXPECT_TRUE(Dir.Read("Classes/LC_048_032.bgl") == Blank_But(3, 4, 5));
    EXPECT_FALSE(Has_Source("Temp/landclass.tmf"));
    EXPECT_FALSE(Has_Source("Temp/LWCcompress.tmf"));
}

}  // namespace
