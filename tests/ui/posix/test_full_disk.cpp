// tests/ui/posix/test_full_disk.cpp - tiles for which the disk has no room.
#include "support/bitmap_file.h"
#include "support/file_size_limit.h"
#include "ui/canvas/map_tiles.h"
#include "ui/frm/frm.h"
#include "ui_support/ui_test.h"

namespace {

using Full_Disk = Ui_Test;

TEST_F(Full_Disk, LeavesNoTile) {
    Dir.Write("Map.bmp", Bitmap_Bytes({.Width = 2001, .Height = 2001, .Bits = 8}));
    Int Error = 0;
    {
        const File_Size_Limit Limit(4'001'077);  // one byte less than a tile
        Main_Form_Progress Progress;
        Map_Split_Tiles(Progress, Dir.Path("Map.bmp"), Error);
    }
    EXPECT_EQ(Error, 1);
    ASSERT_EQ(Host_Of_Test.Boxes.size(), 1u);
    EXPECT_TRUE(Host_Of_Test.Boxes[0].Text.ends_with("/Temp/$$$_01.bmp"));
    EXPECT_TRUE(std::filesystem::is_empty(Dir.Native("App/Temp")));
}

}  // namespace
