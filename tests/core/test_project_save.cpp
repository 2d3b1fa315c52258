// tests/core/test_project_save.cpp - saving: what the user sees, and what a failure leaves.
#include <cstdlib>

#include "core/model_ops.h"
#include "core/project_file.h"
#include "core/project_maker.h"
#include "platform/files.h"
#include "support/environment.h"
#include "support/program_test.h"

namespace {

// A host that notes what shows while the window system has its turn.
class Turn_Host : public Test_Host {
public:
    void Turn() override {
        Turns += Visible["Fram_Creat_2500"] && Pointer == Pointer_Shape::Hourglass ? "busy " : "? ";
    }
    std::string Turns;
};

class Project_Save : public Program_Test {
protected:
    Project_Save() {
        Projet_Open = 1;
        Nom_Projet = Dir.Path("p.LWM");
        Carte = "C:\\Map.bmp";
    }
};

}  // namespace

TEST_F(Project_Save, TheFirstLinesTellWhenAndWhere) {
    const Environment_Scope Epoch("SOURCE_DATE_EPOCH", "1065225600");
    ASSERT_TRUE(Save_Project(0, {}));
    EXPECT_TRUE(Dir.Read("p.LWM").starts_with("0000 V5.0  (5.00) 2003-10-04 00:00:00 " +
                                              Nom_Projet + "\r\n0002         \r\n0010   0 "));
    ASSERT_TRUE(Save_Project(1, Dir.Path("copy.LWM")));
    EXPECT_TRUE(Dir.Read("copy.LWM")
                    .starts_with("0000 V5.0  (5.00) 2003-10-04 00:00:00 " + Dir.Path("copy.LWM") +
                                 "\r\n0002          issu de " + Nom_Projet + "\r\n"));
    EXPECT_EQ(Body_Of(Dir.Read("copy.LWM")), Body_Of(Dir.Read("p.LWM")));
    EXPECT_EQ(Nom_Projet, Dir.Path("p.LWM")) << "the copy is not the open project";
}

TEST_F(Project_Save, ProgressShowsAndTheWindowGetsItsTurns) {
    Turn_Host Window;
    const Host_Scope Scope(Window);
    ASSERT_TRUE(Save_Project(0, {}));
    EXPECT_EQ(Window.Turns, "busy busy ");
    EXPECT_EQ(Window.Caption["LTex2500"], "Save");
    EXPECT_EQ(Window.Caption["LPourCent"], "0%");
    EXPECT_EQ(Window.Caption["LNbTex"], "");
    EXPECT_FALSE(Window.Visible["Fram_Creat_2500"]);
    EXPECT_EQ(Window.Pointer, Pointer_Shape::Normal);
    EXPECT_TRUE(Window.Boxes.empty());
}

TEST_F(Project_Save, WithoutAnOpenProjectNothingHappens) {
    Projet_Open = 0;
    EXPECT_FALSE(Save_Project(0, {}));
    EXPECT_FALSE(Save_Project(1, Dir.Path("copy.LWM")));
    EXPECT_FALSE(Dir.Has("p.LWM") || Dir.Has("copy.LWM"));
    EXPECT_TRUE(Host_Of_Test.Boxes.empty());
}

TEST_F(Project_Save, ACopyNeedsAnotherPath) {
    for (const char* Name : {"p.LWM", "P.lwm"}) {
        Host_Of_Test.Boxes.clear();
        EXPECT_FALSE(Save_Project(1, Dir.Path(Name)));
        EXPECT_EQ(Host_Of_Test.Last_Message(), 14) << Name;
        EXPECT_EQ(Host_Of_Test.Boxes.size(), 1U);
    }
    EXPECT_FALSE(Dir.Has("p.LWM"));
}

TEST_F(Project_Save, AFailureIsToldAndChangesNothing) {
    Dir.Write("dir.LWM/inside.txt", "kept");
    for (const std::string& Path :
         {Dir.Path("dir.LWM"), Dir.Path("absent\\p.LWM"), std::string()}) {
        Nom_Projet = Path;
        Host_Of_Test.Boxes.clear();
        EXPECT_FALSE(Save_Project(0, {})) << Path;
        ASSERT_EQ(Host_Of_Test.Boxes.size(), 1U) << Path;
        EXPECT_EQ(Host_Of_Test.Boxes[0].Num, 0);
        EXPECT_TRUE(Host_Of_Test.Boxes[0].Text.ends_with(Path));
        EXPECT_FALSE(Host_Of_Test.Visible["Fram_Creat_2500"]);
        EXPECT_EQ(Host_Of_Test.Pointer, Pointer_Shape::Normal);
    }
    EXPECT_EQ(Dir.Read("dir.LWM/inside.txt"), "kept");
    EXPECT_FALSE(Dir.Has("absent"));
}

TEST_F(Project_Save, TheOldFileStaysUntilTheNewOneIsWhole) {
    ASSERT_TRUE(Save_Project(0, {}));
    const std::string Old = Dir.Read("p.LWM");
    Obj_Add({}, 1.0, 2.0);
    bool Named = false;
    On_Save_Step = [&](Save_Step Step) {
        EXPECT_TRUE(Step == Save_Step::Sync_Dir || Dir.Read("p.LWM") == Old);
        Named = Named || Step == Save_Step::Rename;
    };
    EXPECT_TRUE(Save_Project(0, {}));
    EXPECT_TRUE(Named);
    EXPECT_NE(Dir.Read("p.LWM"), Old);
}

TEST_F(Project_Save, TheSavedFileOpens) {
    Obj_Add({}, 1.0, 2.0);
    ASSERT_TRUE(Save_Project(0, {}));
    const Project_Copy Saved = Copy_Of_Project();
    Model_Reset();
    Nom_Projet = "C:\\stays.LWM";
    Read_Project_File(Dir.Path("P.lwm"));
    EXPECT_EQ(Load_Failed, 0);
    EXPECT_TRUE(Copy_Of_Project() == Saved);
    EXPECT_EQ(Nom_Projet, "C:\\stays.LWM");
}

TEST_F(Project_Save, AFileThatCannotBeReadLeavesTheModel) {
    Dir.Write("dir.LWM/inside.txt", "");
    Dir.Write("empty.LWM", "");
    for (const char* Name : {"dir.LWM", "absent.LWM", "empty.LWM"}) {
        Host_Of_Test.Boxes.clear();
        Load_Failed = 0;
        Language = "US";
        Read_Project_File(Dir.Path(Name));
        EXPECT_EQ(Load_Failed, 1) << Name;
        ASSERT_EQ(Host_Of_Test.Boxes.size(), 1U) << Name;
        const Box& B = Host_Of_Test.Boxes[0];
        if (std::string_view(Name) == "empty.LWM")
            EXPECT_EQ(B.Num, 30);
        else
            EXPECT_EQ(B.Text, "The file cannot be read: " + Dir.Path(Name));
        EXPECT_EQ(Carte, "C:\\Map.bmp");
    }
}
