// tests/platform/test_paths.cpp - the program's paths, the same on every system.
#include "platform/paths.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/files.h"
#include "support/environment.h"
#include "support/temp_dir.h"

namespace fs = std::filesystem;

using Names = std::vector<std::string>;

TEST(Paths, CaseAndLettersBeyondAscii) {
    const Temp_Dir Dir;
    Dir.Write("Sc\xC3\xA9nes/\xC3\x8Ele \xE2\x82\xAC.LWM", "isle");
    EXPECT_EQ(File_Read(Dir.Path("SC\xC9NES\\\xEELE \x80.lwm")), "isle");
    EXPECT_EQ(Dir_Files(Dir.Path("sc\xE9nes")), Names{"\xCEle \x80.LWM"});
    EXPECT_EQ(Program_Path(Dir.Native("Sc\xC3\xA9nes")), Dir.Path("Sc\xE9nes"));
    Dir.Write("\xCE\xA9.LWM", "");
    EXPECT_EQ(Program_Path(Dir.Native("\xCE\xA9.LWM")), std::nullopt) << "a Greek letter";
    EXPECT_EQ(Dir_Files(Dir.Path()), Names{});
}

TEST(Paths, DotsAndDoubledDividers) {
    const Temp_Dir Dir;
    Dir.Write("a/b/file", "");
    EXPECT_EQ(Native_Path(Dir.Path("a\\none\\..\\.\\b\\\\file\\")), Dir.Native("a/b/file"));
    EXPECT_EQ(Native_Path(Dir.Path("a/b/")), Dir.Native("a/b"));
    const fs::path Former = fs::current_path();
    fs::current_path(Dir.Native("a/b"));
    EXPECT_EQ(Native_Path("..\\b\\file"), Dir.Native("a/b/file"));
    EXPECT_EQ(Native_Path("..\\.."), Dir.Native());
    EXPECT_EQ(Program_Path("file"), Dir.Path("a\\b\\file"));
    EXPECT_EQ(Program_Path("../x/"), Dir.Path("a\\x\\"));
    EXPECT_EQ(Program_Path("."), Dir.Path("a\\b"));
    EXPECT_EQ(Files_Matching("f", "*"), Names{"file"}) << "a stem without a directory";
    fs::current_path(Former);
}

TEST(Paths, NothingForWhatCannotExist) {
    EXPECT_EQ(Native_Path(""), std::nullopt);
    EXPECT_EQ(Native_Path(std::string_view("\\tmp\0x", 6)), std::nullopt) << "not \\tmp";
    EXPECT_EQ(Program_Path(""), std::nullopt);
    EXPECT_FALSE(File_Writer("?:\\x", File_Writer::Mode::Safe).Is_Open());
}

TEST(Paths, AFileOfAnotherComputerIsFoundBesideTheProject) {
    const Temp_Dir Dir;
    const Environment_Scope Prefix("WINEPREFIX", Dir.Native("none").string());
    Dir.Write("Map.bmp", "");
    Dir.Write("far/Map.bmp", "");
    const std::string Project = Dir.Path("Isle.LWM");
    EXPECT_EQ(File_Locate("Q:\\Scenery\\MAP.BMP", Project), Dir.Path("MAP.BMP"));
    for (const std::string& Path : {Dir.Path("FAR\\map.bmp"), std::string("Q:\\Scenery\\No.bmp"),
                                    std::string("Q:\\Scenery\\"), std::string()})
        EXPECT_EQ(File_Locate(Path, Project), Path);
}
