// tests/platform/win32/test_paths.cpp - drives and devices.
#include "platform/paths.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/files.h"

TEST(Paths, DrivesAreThoseOfTheComputer) {
    EXPECT_EQ(Native_Path("c:\\..\\"), std::filesystem::path("c:\\"));
    EXPECT_EQ(Program_Path("c:/"), "c:\\");
    EXPECT_FALSE(File_Exists("NUL")) << "a device";
    const std::vector<std::string> Drives = Drive_List();
    EXPECT_EQ(std::count(Drives.begin(), Drives.end(), "C:\\"), 1);
    for (const std::string& Drive : Drives) EXPECT_EQ(Program_Path(Drive), Drive);
}
