// tests/platform/posix/test_paths.cpp - the program's paths on a system that minds case.
#include "platform/paths.h"

#include <gtest/gtest.h>

#include "platform/files.h"
#include "support/environment.h"
#include "support/temp_dir.h"

namespace fs = std::filesystem;

TEST(Paths, TheExactNameComesFirst) {
    const Temp_Dir Dir;
    for (const char* Other : {"Map.bmp", "maP.bmp", "mAP.bmp", "MaP.bmp", "MAp.bmp", "Out/readme"})
        Dir.Write(Other, "other");
    Dir.Write("map.bmp", "exact");
    Dir.Write("MAP.bmp", "first in byte order");
    EXPECT_EQ(File_Read(Dir.Path("map.bmp")), "exact");
    EXPECT_EQ(File_Read(Dir.Path("mAp.bmp")), "first in byte order");
    EXPECT_EQ(Native_Path(Dir.Path("oUT\\New\\Isle_\x9C.bgl")),
              Dir.Native("Out/New/Isle_\xC5\x93.bgl"))
        << "what does not exist keeps its spelling";
    EXPECT_EQ(Native_Path(Dir.Path("OUT\\README\\below")), Dir.Native("Out/readme/below"));
    EXPECT_EQ(Native_Path(Dir.Path(std::string(5000, 'n'))), Dir.Native(std::string(5000, 'n')));
    EXPECT_EQ(Native_Path("\\..\\..\\"), fs::path("/"));
}

TEST(Paths, NamesThatOnlyThisSystemCanHave) {
    const Temp_Dir Dir;
    for (const char* Name : {"is*e_1.bgl", "isle_2.bgl", "a\\b"}) Dir.Write(Name, "");
    EXPECT_EQ(Files_Matching(Dir.Path("is*e"), "_*.bgl"),
              std::vector<std::string>{Dir.Path("is*e_1.bgl")});
    EXPECT_EQ(Program_Path(Dir.Native("a\\b")), std::nullopt);
    EXPECT_EQ(Dir_Files(Dir.Path()), (std::vector<std::string>{"is*e_1.bgl", "isle_2.bgl"}));
}

TEST(Paths, DrivesAreThoseOfTheWinePrefix) {
    const Temp_Dir Dir;
    Dir.Write(".wine/drive_c/Program Files/FS9/fs9.exe", "MZ");
    Dir.Write(".wine/dosdevices/keep", "");
    fs::create_directory_symlink("../drive_c", Dir.Native(".wine/dosdevices/c:"));
    fs::create_directory_symlink("/none/of/this", Dir.Native(".wine/dosdevices/d:"));
    const Environment_Scope Home("HOME", Dir.Native().string());
    const std::string Wine = Dir.Native(".wine").string();
    for (const std::optional<std::string>& Value :
         {std::optional(Wine), std::optional<std::string>()}) {
        const Environment_Scope Prefix("WINEPREFIX", Value);
        EXPECT_EQ(Native_Path("C:\\program files\\fs9\\FS9.EXE"),
                  Dir.Native(".wine/drive_c/Program Files/FS9/fs9.exe"));
        EXPECT_EQ(Native_Path("c:\\..\\New"), Dir.Native(".wine/drive_c/New")) << "no way out";
        EXPECT_EQ(Shown_Path("C:\\PROGRAM FILES\\new\\"),
                  Dir.Native(".wine/drive_c/Program Files/new/"));
        EXPECT_EQ(Native_Path("D:\\x"), std::nullopt) << "a link to nowhere";
        EXPECT_EQ(Native_Path("E:\\x"), std::nullopt);
        EXPECT_EQ(Drive_List(), (std::vector<std::string>{"\\", "C:\\"}));
    }
    const Environment_Scope Prefix("WINEPREFIX", Dir.Native("none").string());
    EXPECT_EQ(Native_Path("C:\\x"), std::nullopt);
    EXPECT_EQ(Shown_Path("C:\\x"), "C:\\x") << "it has no other form here";
    EXPECT_EQ(Shown_Path("maps\\x.bmp"), "maps/x.bmp");
}
