// tests/core/test_project_file.cpp - what a project file holds, and how it is saved.
#include "core/project_file.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <tuple>

#include "core/model_ops.h"
#include "core/project_test.h"
#include "core/view_calls.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "support/environment.h"

using Project_File = Project_Test;

// Reader and writer share the order of the fields, so it is told once more here.
TEST_F(Project_File, EveryFieldHasItsPlace) {
    int Prepared = 0;
    The_View.Ima_Load = [&] { ++Prepared; };
    ASSERT_TRUE(Open(Whole));
    EXPECT_EQ(Prepared, 1);
    // In the order of model.h.
    // clang-format off
    Project_Copy P;
    P.Head = {"", "C:\\Map.bmp", "C:\\Out.bgl", "C:\\Out Excl.bgl", 1, "C:\\Raw", 2,
              "C:\\Class out", 70000, 80000, 12, -99.9F, 13, 40, 4, 1, 9, 10, 11};
    P.Cal = {48.5, 2.6, -48.7, -2.8, 100001, 100002, 100003, 100004, 3, 4,
             48.1, 2.2, -48.3, -2.4, 501, 1, 701, 2, 502, 3, 702, 4,
             503, 5, 703, 6, 504, 7, 704, 8, 48.9, 2.01, 47.11, 2.12, -.5, -1.25, 90000.5, 90001.25};
    P.Objs = {{0, Attr_Zero(), {}},
              {40, {101, -9999.0, 105, 104, 103, 102, 106, 207, "a road", "B1_03", 113.5, 108, 109,
                    110, 111, {"t0", "t1", "t2", "t3", "t4", "t5"}, 112, 115, 114, 116, 117, 118,
                    119, 120, 121}, {{10.25, -20.5}, {1E15, 1.5E-20}}}};
    P.Areas = {{{601, 402, 1, 2}, "a text ", 203, 201, 12.5, 204, 205, 206, 207, 208,
                {"a0", "a1", "a2", "a3", "a4", "a5"}, 209}};
    P.Excls = {{{602, 403, 3, 4}, {}}};
    for (std::size_t I = 0; I <= 100; ++I) P.Excls[0].Chk_Excl[I] = static_cast<Byte>(I + 100);
    P.Lod8s = {{603, 404, 210, -9999.0}};
    P.LCs = {{{604, 405, 5, 6}, 211}};
    P.WCs = {{{605, 406, 7, 8}, 212}};
    P.Imas = {
        {1, 301, "C:\\Pic.bmp", 302, 303, 1.5, 2.5, 3.5, 4.5, {"i0", "i1", "i2", "i3", "i4"}}};
    P.PtGrids = {{1, .25, -.75, 123.5F}};
    // clang-format on
    const Project_Copy Q = Copy();
    EXPECT_TRUE(Q.Head == P.Head && Q.Cal == P.Cal && Q.Objs == P.Objs && Q.Areas == P.Areas);
    EXPECT_TRUE(Q.Excls == P.Excls && Q.Lod8s == P.Lod8s && Q.LCs == P.LCs && Q.WCs == P.WCs);
    EXPECT_TRUE(Q.Imas == P.Imas && Q.PtGrids == P.PtGrids);
    EXPECT_EQ(std::tuple(Max_Obj, Max_Pt, Max_Area, Max_Excl, Max_Lod8, Max_LC, Max_WC, Max_Ima,
                         Max_PtGrid),
              std::tuple(2, 900, 4, 3, 4, 2, 2, 4, 51));
}

TEST_F(Project_File, ProjectsOfEveryKindAreSavedAsTheyWere) {
    int Files = 0;
    for (const auto& Entry : std::filesystem::directory_iterator(TEST_DATA_DIR "/projects")) {
        std::ifstream In(Entry.path(), std::ios::binary);
        const std::string File{std::istreambuf_iterator<char>(In), {}};
        ASSERT_TRUE(Open(File)) << Entry.path();
        const Project_Copy Read = Copy();
        EXPECT_TRUE(File.ends_with("\r\n" + Saved())) << Entry.path();
        Model_Reset();
        Read_Project_File(Dir.Path("P.lwm"));
        EXPECT_TRUE(Copy() == Read) << Entry.path();
        Nom_Projet = Dir.Path("p.LWM");
        ++Files;
    }
    EXPECT_GE(Files, 6);
}

TEST_F(Project_File, DeletedRecordsAreNotSaved) {
    for (int N = 1; N <= 3; ++N) Pt_Append(Obj_Add({}, N, 0.0), N, 1.0);
    Obj_Delete(3);
    Pt_Delete(3, Tab_Obj[3].First_Pt);
    for (int N = 1; N <= 3; ++N) Ima_Add({}), PtGrid_Add(N, 0.0, 0.0F);
    Ima_Delete(2);
    PtGrid_Delete(1);
    const Project_Copy Left = Copy();
    ASSERT_TRUE(Open("0000 V5.0\r\n0002\r\n" + Saved()));
    EXPECT_TRUE(Copy() == Left);
    EXPECT_EQ(Nb_Pt, 3) << "the holes of the pool are gone";
    EXPECT_EQ(Nb_Ima, 2);
    EXPECT_EQ(Nb_PtGrid, 2);
}

TEST_F(Project_File, WhatTheFileCannotHold) {
    ASSERT_TRUE(Open(Whole));
    Tab_Obj.Edit(2).Attr.Text_Rt = "a \"good\"\r\nroad";
    Tab_Pt.Edit(1).X = std::numeric_limits<Double>::infinity();
    Tab_Pt.Edit(1).Y = -std::numeric_limits<Double>::max();
    Tab_PtGrid.Edit(1).Alt = std::numeric_limits<Single>::quiet_NaN();
    ASSERT_TRUE(Open("0000 V5.0\r\n0002\r\n" + Saved()));
    EXPECT_EQ(Tab_Obj[2].Attr.Text_Rt, "a 'good'  road");
    EXPECT_EQ(Tab_Pt[1].X, 0.0);
    EXPECT_EQ(Tab_Pt[1].Y, -1.79769313486231E+308) << "the largest that 15 digits can read back";
    EXPECT_EQ(Tab_PtGrid[1].Alt, 0.0F);
}

TEST_F(Project_File, TheFirstLinesTellWhenAndWhere) {
    const Environment_Scope Epoch("SOURCE_DATE_EPOCH", "1065225600");
    const std::string Begin = "0000 V5.0  (5.00) 2003-10-04 00:00:00 ", Next = "\r\n0002         ";
    const std::string Body = Saved(), Path = Dir.Path("copy.LWM");
    EXPECT_EQ(Dir.Read("p.LWM"), Begin + Nom_Projet + Next + "\r\n" + Body);
    EXPECT_FALSE(Save_Project(1, Path)) << "no open project";
    Projet_Open = 1;
    ASSERT_TRUE(Save_Project(1, Path));
    EXPECT_EQ(Dir.Read("copy.LWM"),
              Begin + Path + Next + " issu de " + Dir.Path("p.LWM") + "\r\n" + Body);
    EXPECT_EQ(Nom_Projet, Dir.Path("p.LWM")) << "the copy is not the open project";
    for (const char* Name : {"p.LWM", "P.lwm"}) {
        EXPECT_FALSE(Save_Project(1, Dir.Path(Name)));
        EXPECT_EQ(Host_Of_Test.Last_Message(), 14) << Name;
    }
}

TEST_F(Project_File, AFailedSaveIsToldAndChangesNothing) {
    Projet_Open = 1;
    Dir.Write("dir.LWM/inside.txt", "kept");
    for (const std::string& Path :
         {Dir.Path("dir.LWM"), Dir.Path("absent\\p.LWM"), std::string()}) {
        Nom_Projet = Path;
        Host_Of_Test.Boxes.clear();
        EXPECT_FALSE(Save_Project(0, {})) << Path;
        ASSERT_EQ(Host_Of_Test.Boxes.size(), 1U) << Path;
        EXPECT_TRUE(Host_Of_Test.Boxes[0].Text.ends_with(Shown_Path(Path)));
        EXPECT_FALSE(Host_Of_Test.Visible["Fram_Creat_2500"]);
        EXPECT_EQ(Host_Of_Test.Pointer, Pointer_Shape::Normal);
    }
    EXPECT_EQ(Dir.Read("dir.LWM/inside.txt"), "kept");
    EXPECT_FALSE(Dir.Has("absent"));
}

TEST_F(Project_File, TheOldFileStaysUntilTheNewOneIsWhole) {
    Saved();
    const std::string Old = Dir.Read("p.LWM");
    Obj_Add({}, 1.0, 2.0);
    bool Named = false;
    On_Save_Step = [&](Save_Step Step) {
        EXPECT_TRUE(Step == Save_Step::Sync_Dir || Dir.Read("p.LWM") == Old);
        Named = Named || Step == Save_Step::Rename;
    };
    Saved();
    EXPECT_TRUE(Named);
    EXPECT_NE(Dir.Read("p.LWM"), Old);
}

TEST_F(Project_File, AFileThatCannotBeReadLeavesTheModel) {
    Dir.Write("dir.LWM/inside.txt", "");
    Language = "US";
    Carte = "C:\\Map.bmp";
    for (const std::string& Path : {Dir.Path("dir.LWM"), Dir.Path("absent.LWM")}) {
        Load_Failed = 0;
        Read_Project_File(Path);
        EXPECT_EQ(Load_Failed, 1);
        EXPECT_EQ(Host_Of_Test.Boxes.back().Text, "The file cannot be read: " + Shown_Path(Path));
        EXPECT_EQ(Carte, "C:\\Map.bmp");
    }
}
