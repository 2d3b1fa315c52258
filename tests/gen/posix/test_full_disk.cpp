// tests/gen/posix/test_full_disk.cpp - sources that the disk has no room for.
#include "gen/emit_excl.h"
#include "gen/gen_test.h"
#include "platform/paths.h"
#include "support/file_size_limit.h"

namespace {

using Full_Disk_Test = Gen_Test;

TEST_F(Full_Disk_Test, ASourceThatEndsHalfwayIsToldAndNotCompiled) {
    Excl E;
    E.Chk_Excl.fill(1);
    for (E.CellLon = 0; E.CellLon < 2; ++E.CellLon)
        for (E.CellLat = 0; E.CellLat < 32; ++E.CellLat) Tab_Excl.Append(E);
    const std::string Path = App_Path + "\\Terrafold$_Excl.ASM";
    for (const rlim_t Room :
         {100, 70'000}) {  // the room ends while lines are written, and at the close
        Host_Of_Test.Events.clear();
        {
            const File_Size_Limit Full(Room);
            Emit_Excl();
        }
        EXPECT_FALSE(Has_Source("Terrafold$_Excl.ASM"));
        EXPECT_EQ(Host_Of_Test.Events, (std::vector<std::string>{"message 0 Impossible d'\xE9"
                                                                 "crire le fichier " +
                                                                     Shown_Path(Path),
                                                                 "delete " + Path}));
    }
    Emit_Excl();
    EXPECT_GT(Source("Terrafold$_Excl.ASM").size(), 100'000U) << "the limits cut it short";
}

}  // namespace
