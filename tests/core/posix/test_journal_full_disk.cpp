// tests/core/posix/test_journal_full_disk.cpp - the disk fills up while the journal grows.
#include "core/history.h"
#include "core/journal_read.h"
#include "core/lifecycle.h"
#include "core/model_ops.h"
#include "core/project_file.h"
#include "platform/files.h"
#include "support/file_size_limit.h"
#include "support/program_test.h"

namespace {

using Journal_Full_Disk = Program_Test;

void Move_Point(int Times) {
    for (int N = 0; N < Times; ++N) {
        Pt_Move(1, Tab_Pt[1].X + 1.0, 2.0);
        History_Act_Ended();
    }
}

}  // namespace

TEST_F(Journal_Full_Disk, IsToldOnceAndWorkGoesOn) {
    Nom_Projet = Dir.Path("p.LWM");
    Projet_Open = 1;
    Obj_Add({}, 1.0, 2.0);
    ASSERT_TRUE(Save_Project(0, {}));
    Open_Project(Nom_Projet);
    const File_Size_Limit Limit(20'000);
    Move_Point(1000);
    EXPECT_EQ(Host_Of_Test.Boxes.size(), 1U);
    EXPECT_EQ(History_Undo_Count(), 1000U);
    ASSERT_TRUE(Save_Project(0, {}));
    Move_Point(3);
    EXPECT_EQ(Host_Of_Test.Boxes.size(), 1U);
    const std::string Bytes = File_Read(Journal_Path()).value();
    EXPECT_EQ(Journal_Read(Bytes).Steps.size(), 3U) << "a save begins anew";
    Move_Point(1000);
    EXPECT_EQ(Host_Of_Test.Boxes.size(), 2U);
}
