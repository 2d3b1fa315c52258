// tests/platform/posix/test_paths.cpp - the program's paths on a system that minds case.
#include <gtest/gtest.h>

#include "platform/files.h"
#include "platform/paths.h"
#include "support/environment.h"
#include "support/temp_dir.h"

namespace fs = std::filesystem;

namespace {

class Current_Dir {
public:
    explicit Current_Dir(const fs::path& Dir) : Former_(fs::current_path()) {
        fs::current_path(Dir);
    }
    ~Current_Dir() { fs::current_path(Former_); }
    Current_Dir(const Current_Dir&) = delete;
    Current_Dir& operator=(const Current_Dir&) = delete;

private:
    fs::path Former_;
};

}  // namespace

TEST(Paths, CaseIsIgnoredWhereTheExactNameIsAbsent) {
    const Temp_Dir Dir;
    Dir.Write("Sc\xC3\xA9nes/\xC3\x8Ele.LWM", "isle");  // UTF-8 on disk
    EXPECT_EQ(File_Read(Dir.Path("SC\xC9NES\\\xEELE.lwm")), "isle");
    EXPECT_EQ(Native_Path(Dir.Path("sc\xE9nes/\xEEle.lwm")),
              Dir.Native("Sc\xC3\xA9nes/\xC3\x8Ele.LWM"));

    Dir.Write("map.bmp", "exact");
    for (const char* Other : {"Map.bmp", "maP.bmp", "mAP.bmp", "MaP.bmp", "MAp.bmp"})
        Dir.Write(Other, "other");
    Dir.Write("MAP.bmp", "first in byte order");
    EXPECT_EQ(File_Read(Dir.Path("map.bmp")), "exact");
    EXPECT_EQ(File_Read(Dir.Path("mAp.bmp")), "first in byte order");
}

TEST(Paths, WhatDoesNotExistKeepsItsSpelling) {
    const Temp_Dir Dir;
    Dir.Write("Out/readme", "");
    EXPECT_EQ(Native_Path(Dir.Path("oUT\\New\\Isle_\x9C.bgl")),
              Dir.Native("Out/New/Isle_\xC5\x93.bgl"));
    EXPECT_EQ(Native_Path(Dir.Path("OUT\\README\\below")), Dir.Native("Out/readme/below"));
    EXPECT_EQ(Native_Path(Dir.Path(std::string(5000, 'n'))), Dir.Native(std::string(5000, 'n')));
}

TEST(Paths, DotsAndDoubledDividers) {
    const Temp_Dir Dir;
    Dir.Write("a/b/file", "");
    EXPECT_EQ(Native_Path(Dir.Path("a\\none\\..\\.\\B\\\\file\\")), Dir.Native("a/b/file"));
    EXPECT_EQ(Native_Path("\\..\\..\\"), fs::path("/"));

    const Current_Dir Inside(Dir.Native("a/b"));
    EXPECT_EQ(Native_Path("FILE"), Dir.Native("a/b/file"));
    EXPECT_EQ(Native_Path("..\\B\\file"), Dir.Native("a/b/file"));
    EXPECT_EQ(Native_Path("..\\.."), Dir.Native());
    EXPECT_EQ(Program_Path("file"), Dir.Path("a\\b\\file"));
    EXPECT_EQ(Program_Path("../x/"), Dir.Path("a\\x\\"));
    EXPECT_EQ(Program_Path("."), Dir.Path("a\\b"));
    EXPECT_EQ(Files_Matching("f", "*"), std::vector<std::string>{"file"})
        << "a stem without a directory";
}

TEST(Paths, NothingForWhatCannotExist) {
    const Temp_Dir Dir;
    EXPECT_EQ(Native_Path(""), std::nullopt);
    EXPECT_EQ(Native_Path(std::string_view("\\tmp\0x", 6)), std::nullopt) << "not \\tmp";
    EXPECT_EQ(Program_Path(""), std::nullopt);
    EXPECT_EQ(Program_Path(Dir.Native("\xCE\xA9.LWM")), std::nullopt) << "a Greek letter";
    EXPECT_EQ(Program_Path(Dir.Native("a\\b")), std::nullopt);
    Dir.Write("\xCE\xA9.LWM", "");
    Dir.Write("a\\b", "");
    Dir.Write("seen", "");
    EXPECT_EQ(Dir_Files(Dir.Path()), std::vector<std::string>{"seen"});
}

TEST(Paths, AStarInANameIsNoPattern) {
    const Temp_Dir Dir;
    Dir.Write("is*e_1.bgl", "");
    Dir.Write("isle_2.bgl", "");
    EXPECT_EQ(Files_Matching(Dir.Path("is*e"), "_*.bgl"),
              std::vector<std::string>{Dir.Path("is*e_1.bgl")});
}

TEST(Paths, DrivesAreThoseOfTheWinePrefix) {
    const Temp_Dir Dir;
    Dir.Write("drive_c/Program Files/FS9/fs9.exe", "MZ");
    Dir.Write("dosdevices/keep", "");
    fs::create_directory_symlink("../drive_c", Dir.Native("dosdevices/c:"));
    fs::create_directory_symlink("/none/of/this", Dir.Native("dosdevices/d:"));
    {
        const Environment_Scope Prefix("WINEPREFIX", Dir.Native().string());
        EXPECT_EQ(Native_Path("C:\\program files\\fs9\\FS9.EXE"),
                  Dir.Native("drive_c/Program Files/FS9/fs9.exe"));
        EXPECT_EQ(Native_Path("c:\\..\\New"), Dir.Native("drive_c/New")) << "no way out of a drive";
        EXPECT_EQ(Native_Path("D:\\x"), std::nullopt) << "a link to nowhere";
        EXPECT_EQ(Native_Path("E:\\x"), std::nullopt);
        EXPECT_FALSE(File_Writer("E:\\x", File_Writer::Mode::Safe).Is_Open());
        EXPECT_EQ(Drive_List(), (std::vector<std::string>{"\\", "C:\\"}));
    }
    const Environment_Scope No_Prefix("WINEPREFIX", std::nullopt);
    const Environment_Scope Home("HOME", Dir.Native().string());
    EXPECT_EQ(Native_Path("C:\\x"), std::nullopt);
    fs::create_directory(Dir.Native(".wine"));
    fs::rename(Dir.Native("dosdevices"), Dir.Native(".wine/dosdevices"));
    fs::rename(Dir.Native("drive_c"), Dir.Native(".wine/drive_c"));
    EXPECT_TRUE(File_Exists("c:\\Program Files\\FS9\\fs9.exe")) << "in the home directory";
}

TEST(Paths, AFileOfAnotherComputerIsFoundBesideTheProject) {
    const Temp_Dir Dir;
    const Environment_Scope Prefix("WINEPREFIX", Dir.Native("none").string());
    Dir.Write("Isle.LWM", "");
    Dir.Write("Map.bmp", "");
    Dir.Write("far/Map.bmp", "");
    const std::string Project = Dir.Path("Isle.LWM");
    EXPECT_EQ(File_Locate("D:\\Scenery\\MAP.BMP", Project), Dir.Path("MAP.BMP"));
    EXPECT_EQ(File_Locate(Dir.Path("FAR\\map.bmp"), Project), Dir.Path("FAR\\map.bmp"));
    EXPECT_EQ(File_Locate("D:\\Scenery\\Other.bmp", Project), "D:\\Scenery\\Other.bmp");
    EXPECT_EQ(File_Locate("", Project), "");
    EXPECT_EQ(File_Locate("D:\\Scenery\\", Project), "D:\\Scenery\\");
}
