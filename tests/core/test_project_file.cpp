// tests/core/test_project_file.cpp - what a project file holds, and how it is saved.
#include "core/project_file.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <tuple>

#include "core/model_ops.h"
#include "core/project_maker.h"
#include "core/view_calls.h"
#include "support/program_test.h"

namespace {

void Expect_Head() {
    using std::tuple;
    EXPECT_EQ(tuple(LatMapNW, LonMapNW, LatMapSE, LonMapSE), tuple(48.1, 2.2, -48.3, -2.4));
    EXPECT_EQ(tuple(LatPtNW, LonPtNW, LatPtSE, LonPtSE), tuple(48.5, 2.6, -48.7, -2.8));
    EXPECT_EQ(tuple(LatGridNW, LonGridNW, LatGridSE, LonGridSE), tuple(48.9, 2.01, 47.11, 2.12));
    EXPECT_EQ(tuple(Dir_Raw_On, ReUse_Raw), tuple(1, 2));
    EXPECT_EQ(Dir_Raw, "C:\\Raw");
    EXPECT_EQ(Dir_LCWC, "C:\\Class out");
    EXPECT_EQ(Carte, "C:\\Map.bmp");
    EXPECT_EQ(tuple(Map_Width, Map_Height), tuple(70000, 80000));
    EXPECT_EQ(NameBgl, "C:\\Out.bgl");
    EXPECT_EQ(NameBglExcl, "C:\\Out Excl.bgl");
    EXPECT_EQ(tuple(AreaLatMapNW, AreaLonMapNW, AreaLatMapSE, AreaLonMapSE),
              tuple(501, 701, 502, 702));
    EXPECT_EQ(tuple(CellLatMapNW, CellLonMapNW, CellLatMapSE, CellLonMapSE), tuple(1, 2, 3, 4));
    EXPECT_EQ(tuple(CellLatGridNW, AreaLatGridNW, CellLonGridNW, AreaLonGridNW),
              tuple(5, 503, 6, 703));
    EXPECT_EQ(tuple(CellLatGridSE, AreaLatGridSE, CellLonGridSE, AreaLonGridSE),
              tuple(7, 504, 8, 704));
    EXPECT_EQ(tuple(XPtNW, YPtNW, XPtSE, YPtSE), tuple(100001, 100002, 100003, 100004));
    EXPECT_EQ(tuple(XGridNW, YGridNW, XGridSE, YGridSE), tuple(-.5, -1.25, 90000.5, 90001.25));
    EXPECT_EQ(tuple(CadNW_Done, CadSE_Done), tuple(3, 4));
    EXPECT_EQ(tuple(Nb_Tiles, Nb_Tile_Rows, Nb_Tile_Cols), tuple(9, 10, 11));
    EXPECT_EQ(tuple(Meter_Feet, Delta_Alt, FS_CFS), tuple(12, -99.9F, 13));
}

void Expect_Object() {
    ASSERT_EQ(Nb_Obj, 2);
    EXPECT_EQ(Last_Num_Obj, 40);
    EXPECT_EQ(Tab_Obj[1].Attr, Attr_Zero());
    const Obj& O = Tab_Obj[2];
    EXPECT_EQ(O.Num, 40);
    EXPECT_EQ(O.Nb_Pts, 2);
    EXPECT_EQ(O.Attr, (Attr{.Attrib = 101,
                            .Alti = -9999.0,
                            .SurfShore = 105,
                            .Largeur = 104,
                            .LineType = 103,
                            .LandOnRight = 102,
                            .FermerLine = 106,
                            .Layer = 207,
                            .Text_Rt = "a road",
                            .Imbrication = "B1_03",
                            .Alt_Coast = 113.5,
                            .Link_Ima = 108,
                            .LWM_VTP2 = 109,
                            .LandClass = 110,
                            .LC = 111,
                            .Texture_Name = {"t0", "t1", "t2", "t3", "t4", "t5"},
                            .Layer_Vtp2 = 112,
                            .Drive_Right = 115,
                            .Line_Night = 114,
                            .LayerScasm = 116,
                            .Vtp1_Line = 117,
                            .Effil_Deb = 118,
                            .Effil_Fin = 119,
                            .VTP1_SpecNor = 120,
                            .Flip_VTP1Texture = 121}));
    ASSERT_EQ(Nb_Pt, 2);
    EXPECT_EQ(std::tuple(O.First_Pt, O.Last_Pt), std::tuple(1, 2));
    const Pt& P = Tab_Pt[1];
    EXPECT_EQ(std::tuple(P.Prev, P.Next, P.X, P.Y), std::tuple(0, 2, 10.25, -20.5));
    const Pt& Q = Tab_Pt[2];
    EXPECT_EQ(std::tuple(Q.Prev, Q.Next, Q.X, Q.Y), std::tuple(1, 0, 1E15, 1.5E-20));
}

void Expect_Cells() {
    ASSERT_EQ(Nb_Area, 1);
    const Area& A = Tab_Area[1];
    EXPECT_EQ(A.Alti, 12.5);
    EXPECT_EQ(A.Attrib, 201);
    EXPECT_EQ(static_cast<const Cell_Pos&>(A), (Cell_Pos{601, 402, 1, 2}));
    EXPECT_EQ(A.Fill1x1, 203);
    EXPECT_EQ(A.InvertMask, 204);
    EXPECT_EQ(A.InvertMaskValue, 205);
    EXPECT_EQ(A.Custom, 206);
    EXPECT_EQ(A.LandClass, 207);
    EXPECT_EQ(A.LC, 208);
    EXPECT_EQ(A.Layer, 209);
    EXPECT_EQ(A.Texture_Name, (std::array<std::string, 6>{"a0", "a1", "a2", "a3", "a4", "a5"}));
    EXPECT_EQ(A.Texte, "a text ") << "a line without a closing quote reads to its end";
    ASSERT_EQ(Nb_Excl, 1);
    EXPECT_EQ(static_cast<const Cell_Pos&>(Tab_Excl[1]), (Cell_Pos{602, 403, 3, 4}));
    for (std::size_t Flag = 0; Flag <= 100; ++Flag)
        EXPECT_EQ(Tab_Excl[1].Chk_Excl[Flag], Flag + 100);
    ASSERT_EQ(Nb_Lod8, 1);
    EXPECT_EQ(Tab_Lod8[1], (Lod8{603, 404, 210, -9999.0}));
    ASSERT_EQ(Nb_LC, 1);
    EXPECT_EQ(Tab_LC[1], (LC_Cell{{604, 405, 5, 6}, 211}));
    ASSERT_EQ(Nb_WC, 1);
    EXPECT_EQ(Tab_WC[1], (WC_Cell{{605, 406, 7, 8}, 212}));
}

void Expect_Pictures_And_Altitudes() {
    ASSERT_EQ(Nb_Ima, 1);
    EXPECT_EQ(Tab_Ima[1], (Ima{.Active = 1,
                               .Num = 301,
                               .DirFic = "C:\\Pic.bmp",
                               .Ima_Width = 302,
                               .Ima_Height = 303,
                               .X1 = 1.5,
                               .Y1 = 2.5,
                               .X2 = 3.5,
                               .Y2 = 4.5,
                               .Texture_Name = {"i0", "i1", "i2", "i3", "i4"}}));
    EXPECT_EQ(LodMesh, 4);
    EXPECT_EQ(Mesh_Done, 1);
    ASSERT_EQ(Nb_PtGrid, 1);
    EXPECT_EQ(Tab_PtGrid[1], (PtGrid{.Active = 1, .X = .25, .Y = -.75, .Alt = 123.5F}));
}

class Project_File : public Program_Test {
protected:
    // Reads Text as a project that is open then.
    bool Open(std::string_view Text) {
        Host_Of_Test.Boxes.clear();
        Read_Project_Text(Text);
        Projet_Open = Load_Failed == 0 ? 1 : 0;
        Nom_Projet = Dir.Path("p.LWM");
        return Projet_Open == 1;
    }
    std::string Save() {
        EXPECT_TRUE(Save_Project(0, {}));
        return Dir.Read("p.LWM");
    }
};

}  // namespace

TEST_F(Project_File, EveryFieldHasItsPlace) {
    const std::string File = Whole_File();
    int Prepared = 0;
    The_View.Ima_Load = [&] { Prepared += Nb_Ima; };
    ASSERT_TRUE(Open(File));
    Expect_Head();
    Expect_Object();
    Expect_Cells();
    Expect_Pictures_And_Altitudes();
    EXPECT_EQ(Prepared, 1);
    EXPECT_EQ(Body_Of(Save()), With(std::string(Body_Of(File)), "40  900", "40  2"))
        << "the same bytes but for the points, of which two are left";
}

TEST_F(Project_File, CapacitiesAfterReading) {
    ASSERT_TRUE(Open(Whole_File()));
    EXPECT_EQ(Max_Obj, 2);
    EXPECT_EQ(Max_Pt, 900) << "what the file says, holes included";
    EXPECT_EQ(std::tuple(Max_Area, Max_Excl, Max_Lod8, Max_LC, Max_WC, Max_Ima, Max_PtGrid),
              std::tuple(4, 3, 4, 2, 2, 4, 51));
    Model_Reset();
    Nom_Projet = Dir.Path("p.LWM");
    Tab_Excl.Dimension(77);
    ASSERT_TRUE(Open(Save()));
    EXPECT_EQ(Max_Pt, 10);
    EXPECT_EQ(std::tuple(Max_Area, Max_Excl, Max_Lod8, Max_LC, Max_WC, Max_Ima, Max_PtGrid),
              std::tuple(3, 77, 3, 1, 1, 3, 50));
}

TEST_F(Project_File, RandomProjectsComeBack) {
    for (unsigned Seed = 0; Seed < 300; ++Seed) {
        std::mt19937_64 Source(Seed);
        Make_Random_Project(Source);
        const Project_Copy Made = Copy_Of_Project();
        Projet_Open = 1;
        Nom_Projet = Dir.Path("p.LWM");
        const std::string First = Save();
        Model_Reset();
        ASSERT_TRUE(Open(First)) << Seed;
        ASSERT_TRUE(Copy_Of_Project() == Made) << Seed;
        std::size_t Points = 0;
        for (const auto& O : Made.Objs) Points += O.Pts.size();
        ASSERT_EQ(Nb_Pt, static_cast<Long>(Points)) << Seed;
        const std::string Second = Save();
        ASSERT_TRUE(Open(Second)) << Seed;
        ASSERT_EQ(Body_Of(Save()), Body_Of(Second)) << Seed;
    }
}

TEST_F(Project_File, ProjectsOfEveryKindAreSavedAsTheyWere) {
    namespace fs = std::filesystem;
    int Files = 0;
    for (const auto& Entry : fs::directory_iterator(fs::path(TEST_DATA_DIR) / "projects")) {
        std::ifstream In(Entry.path(), std::ios::binary);
        const std::string File{std::istreambuf_iterator<char>(In), {}};
        ASSERT_TRUE(Open(File)) << Entry.path();
        EXPECT_EQ(Body_Of(Save()), Body_Of(File)) << Entry.path();
        ++Files;
    }
    EXPECT_GE(Files, 6);
}

TEST_F(Project_File, DeletedRecordsAreNotSaved) {
    Projet_Open = 1;
    Nom_Projet = Dir.Path("p.LWM");
    for (int N = 1; N <= 3; ++N) Pt_Append(Obj_Add({}, N, 0.0), N, 1.0);
    Obj_Delete(3);
    Pt_Delete(3, Tab_Obj[3].First_Pt);
    for (int N = 1; N <= 3; ++N) Ima_Add({}), PtGrid_Add(N, 0.0, 0.0F);
    Ima_Delete(2);
    PtGrid_Delete(1);
    EXPECT_EQ(Nb_Pt, 6);
    ASSERT_TRUE(Open(Save()));
    EXPECT_EQ(Nb_Obj, 3);
    EXPECT_EQ(Nb_Pt, 3) << "the holes are gone";
    EXPECT_EQ(Tab_Obj[3].First_Pt, 3);
    EXPECT_EQ(Tab_Obj[3].Num, 3);
    EXPECT_EQ(Last_Num_Obj, 3);
    ASSERT_EQ(Nb_Ima, 2);
    EXPECT_EQ(Tab_Ima[2].Num, 3) << "numbers keep their gaps";
    ASSERT_EQ(Nb_PtGrid, 2);
    EXPECT_EQ(Tab_PtGrid[1].X, 2.0);
}

TEST_F(Project_File, LinesAreReadWithPatience) {
    ASSERT_TRUE(Open(Whole_File()));
    const Project_Copy Whole = Copy_Of_Project();
    std::string Gaps, Bare;
    for (const char C : Whole_File()) {
        if (C == '\r') continue;
        Gaps += C == '\n' ? "\r\n\n" : std::string(1, C);
        Bare += C == '\n' ? "\n" : std::string(1, C);
    }
    ASSERT_TRUE(Open(Gaps));
    EXPECT_TRUE(Copy_Of_Project() == Whole) << "empty lines";
    ASSERT_TRUE(Open(Bare));
    EXPECT_TRUE(Copy_Of_Project() == Whole) << "lines that end with LF alone";
    ASSERT_TRUE(Open(With(With(Whole_File(), "0017  1  2", "9999  1  2  x"), "-20.5", "-20.5  7")));
    EXPECT_TRUE(Copy_Of_Project() == Whole) << "values beyond those expected, and tags of the head";
    ASSERT_TRUE(Open(With(Whole_File(), "\nEnd", "")));
    EXPECT_TRUE(Copy_Of_Project() == Whole) << "the last line is not needed";
}

TEST_F(Project_File, MissingValuesAreZero) {
    std::string File = With(Whole_File(), "0021  70000  80000", "0021  7");
    File = With(File, "0061  3  4", "0061");
    File = With(File, "0018 \"C:\\Raw\"", "0018 C:\\Raw");
    File = With(File, "0062  9  10  11", "0062  x  -  5y");
    File = With(File, "10.25 -20.5", "10.25");
    ASSERT_TRUE(Open(File));
    EXPECT_EQ(Map_Width, 7);
    EXPECT_EQ(Map_Height, 0);
    EXPECT_EQ(CadNW_Done, 0);
    EXPECT_EQ(Dir_Raw, "");
    EXPECT_EQ(Nb_Tiles, 0);
    EXPECT_EQ(Nb_Tile_Cols, 5);
    EXPECT_EQ(Tab_Pt[1].Y, 0.0);
}

TEST_F(Project_File, FractionsRoundToTheEvenNeighbour) {
    ASSERT_TRUE(Open(With(With(Whole_File(), "0017  1  2", "0017  2.5 -32768.5"), "  207  108",
                          "  255.49  3.5E1")));
    EXPECT_EQ(Dir_Raw_On, 2);
    EXPECT_EQ(ReUse_Raw, -32768);
    EXPECT_EQ(Tab_Obj[2].Attr.Layer, 255);
    EXPECT_EQ(Tab_Obj[2].Attr.Link_Ima, 35);
}

TEST_F(Project_File, StringsThatTheFileCannotHold) {
    ASSERT_TRUE(Open(Whole_File()));
    Tab_Obj[2].Attr.Text_Rt = "a \"good\"\r\nroad";
    Tab_Area[1].Texte = "a\nb";
    ASSERT_TRUE(Open(Save()));
    EXPECT_EQ(Tab_Obj[2].Attr.Text_Rt, "a 'good'  road");
    EXPECT_EQ(Tab_Area[1].Texte, "a b");
}

TEST_F(Project_File, NumbersThatTheFileCannotHold) {
    constexpr Double Infinite = std::numeric_limits<Double>::infinity();
    ASSERT_TRUE(Open(Whole_File()));
    Tab_Pt[1].X = Infinite;
    Tab_Pt[1].Y = -std::numeric_limits<Double>::max();
    Tab_PtGrid[1].Alt = std::numeric_limits<Single>::quiet_NaN();
    Delta_Alt = std::numeric_limits<Single>::max();
    ASSERT_TRUE(Open(Save()));
    EXPECT_EQ(Tab_Pt[1].X, 0.0);
    EXPECT_EQ(Tab_Pt[1].Y, -1.79769313486231E+308) << "the largest that 15 digits can read back";
    EXPECT_EQ(Tab_PtGrid[1].Alt, 0.0F);
    EXPECT_EQ(Delta_Alt, 3.402823E+38F);
}
