// tests/core/test_project_versions.cpp - versions that open, and changes to one of version 4.0.
#include <vector>

#include "core/model_ops.h"
#include "core/project_file.h"
#include "core/project_maker.h"
#include "core/project_upgrade.h"
#include "support/program_test.h"

namespace {

constexpr V24_Choice None{.Chk_Adapt_lines = false,
                          .Chk_Change_layer_Line = false,
                          .Chk_Change_Layer_Poly = false,
                          .Chk_Change_Layer_Exclude = false};

class Project_Versions : public Program_Test {
protected:
    // Reads the file as one of Version; true when it opens.
    bool Open(std::string_view Version) {
        Host_Of_Test.Boxes.clear();
        Host_Of_Test.Events.clear();
        Read_Project_Text(With(Whole_File(), "V5.0", Version));
        return Load_Failed == 0;
    }
    void Answer(V24_Choice Choice, Form_End End = Form_End::Ok) {
        Host_Of_Test.Forms["Frm_V24"] = [=, this] {
            Pointer_At_Form = Host_Of_Test.Pointer;
            At_First = The_V24;
            The_V24 = Choice;
            return End;
        };
    }
    bool Asked() { return Host_Of_Test.Events == std::vector<std::string>{"form Frm_V24"}; }

    V24_Choice At_First;
    Pointer_Shape Pointer_At_Form = Pointer_Shape::Cross;
};

}  // namespace

TEST_F(Project_Versions, OnlyThoseFrom4To5Open) {
    for (const char* Version : {"V5.0", "V4.5", "V4.1x", "V5.05", "V5"}) {
        EXPECT_TRUE(Open(Version)) << Version;
        EXPECT_TRUE(Host_Of_Test.Events.empty()) << Version;
    }
    for (const char* Version : {"V5.1", "V9.9", "V10.0", "5.0", "v5.0", "\"V5.0\"", ""}) {
        EXPECT_FALSE(Open(Version)) << Version;
        EXPECT_EQ(Host_Of_Test.Boxes.size(), 1U);
        EXPECT_EQ(Host_Of_Test.Last_Message(), 30) << Version;
    }
    const std::vector<std::pair<const char*, const char*>> Old = {
        {"V3.9", " 3.9"}, {"V0.5", " .5"}, {"V", " 0"}, {"V-1", "-1"}};
    for (const auto& [Version, Number] : Old) {
        EXPECT_FALSE(Open(Version)) << Version;
        ASSERT_EQ(Host_Of_Test.Boxes.size(), 1U);
        EXPECT_EQ(Host_Of_Test.Boxes[0].Text,
                  "Old Terrafold version" + std::string(Number) + "not allowed");
        EXPECT_EQ(Host_Of_Test.Boxes[0].Num, 0);
    }
}

TEST_F(Project_Versions, ARefusedFileLeavesTheModel) {
    ASSERT_TRUE(Open("V5.0"));
    const Project_Copy Whole = Copy_Of_Project();
    EXPECT_FALSE(Open("V5.1"));
    EXPECT_FALSE(Open("V3.0"));
    EXPECT_TRUE(Copy_Of_Project() == Whole);
}

TEST_F(Project_Versions, TheQuestionStartsFromItsFirstSettings) {
    The_V24 = None;
    Answer(None);
    ASSERT_TRUE(Open("V4.0"));
    EXPECT_TRUE(Asked());
    EXPECT_TRUE(At_First.Chk_Adapt_lines && At_First.Chk_Change_Layer_Exclude);
    EXPECT_FALSE(At_First.Chk_Change_layer_Line || At_First.Chk_Change_Layer_Poly);
    EXPECT_EQ(Pointer_At_Form, Pointer_Shape::Normal);
    EXPECT_EQ(Host_Of_Test.Pointer, Pointer_Shape::Hourglass);
    EXPECT_EQ(V24_Upgrade, 0) << "nothing was ticked";
    EXPECT_EQ(Tab_Obj[2].Attr.Effil_Deb, 118);
}

TEST_F(Project_Versions, ClosingTheQuestionChangesNothing) {
    ASSERT_TRUE(Open("V5.0"));
    const Project_Copy Plain = Copy_Of_Project();
    Answer({}, Form_End::Closed);
    ASSERT_TRUE(Open("V4.0"));
    EXPECT_TRUE(Copy_Of_Project() == Plain);
    Host_Of_Test.Forms.clear();
    ASSERT_TRUE(Open("V4.0"));
    EXPECT_TRUE(Copy_Of_Project() == Plain) << "and so does a host without that form";
}

TEST_F(Project_Versions, EachTickChangesItsOwnFields) {
    ASSERT_TRUE(Open("V5.0"));
    const Attr Plain = Tab_Obj[2].Attr;
    V24_Choice Choice = None;
    Choice.Chk_Adapt_lines = true;
    Answer(Choice);
    ASSERT_TRUE(Open("V4.0"));
    Attr Wanted = Plain;
    Wanted.Effil_Deb = Wanted.Effil_Fin = 0;
    EXPECT_EQ(Tab_Obj[2].Attr, Wanted);
    EXPECT_EQ(Tab_Excl[1].Chk_Excl[4], 104);

    Choice = None;
    Choice.Chk_Change_layer_Line = true;
    Answer(Choice);
    ASSERT_TRUE(Open("V4.0"));
    Wanted = Plain;
    Wanted.Layer = 24;
    EXPECT_EQ(Tab_Obj[2].Attr, Wanted) << "its kind is 103";
    EXPECT_EQ(Tab_Obj[1].Attr.Layer, 0) << "a polygon without shore";

    Choice = None;
    Choice.Chk_Change_Layer_Poly = true;
    Answer(Choice);
    ASSERT_TRUE(Open("V4.0"));
    EXPECT_EQ(Tab_Obj[2].Attr, Plain) << "no polygon";
    EXPECT_EQ(Tab_Obj[1].Attr.Layer_Vtp2, 17);

    const std::string File =
        With(With(Whole_File(), "V5.0", "V4.0"), "\r\n      104\r\n", "\r\n      1\r\n");
    for (const bool Ticked : {false, true}) {
        Choice.Chk_Change_Layer_Exclude = Ticked;
        Answer(Choice);
        Read_Project_Text(File);
        EXPECT_EQ(Tab_Excl[1].Chk_Excl[7], Ticked ? 1 : 107);
    }
}

TEST_F(Project_Versions, PolygonsWithAndWithoutShoreGetTheLayerOfPolygons) {
    The_V24 = None;
    The_V24.Chk_Change_Layer_Poly = true;
    for (const Int SurfShore : {Int{0}, Int{1}, Int{2}, Int{3}}) {
        Attr A;
        A.SurfShore = SurfShore;
        Upgrade_Obj(A);
        EXPECT_EQ(A.Layer_Vtp2, SurfShore < 2 ? 17 : 4) << SurfShore;
    }
}

TEST_F(Project_Versions, TheLayerOfALineFollowsItsKind) {
    The_V24 = None;
    The_V24.Chk_Change_layer_Line = true;
    const std::vector<std::pair<int, int>> Layers = {{1023, 24}, {1024, 22}, {1025, 22},
                                                     {1026, 21}, {1133, 21}, {1134, 23},
                                                     {1181, 23}, {1182, 24}, {-1, 24}};
    for (const auto& [Kind, Layer] : Layers) {
        Attr A;
        A.SurfShore = 1;
        A.LineType = static_cast<Int>(Kind);
        Upgrade_Obj(A);
        EXPECT_EQ(A.Layer, Layer) << Kind;
    }
}

TEST_F(Project_Versions, ExclusionClassesMoveOneAfterTheOther) {
    const auto Upgraded = [](std::vector<std::size_t> Set) {
        Excl E;
        for (const std::size_t Flag : Set) E.Chk_Excl[Flag] = 1;
        Upgrade_Excl(E);
        std::vector<std::size_t> Left;
        for (std::size_t Flag = 0; Flag < E.Chk_Excl.size(); ++Flag)
            if (E.Chk_Excl[Flag] == 1) Left.push_back(Flag);
        return Left;
    };
    using Flags = std::vector<std::size_t>;
    EXPECT_EQ(Upgraded({4}), Flags{7});
    EXPECT_EQ(Upgraded({16}), Flags{4}) << "not on to 7";
    EXPECT_EQ(Upgraded({4, 16}), (Flags{4, 7}));
    EXPECT_EQ(Upgraded({31}), Flags{6});
    EXPECT_EQ(Upgraded({32}), Flags{6});
    EXPECT_EQ(Upgraded({31, 32, 100}), (Flags{6, 100}));
    EXPECT_EQ(Upgraded({6, 7, 30}), (Flags{6, 7, 30}));
}
