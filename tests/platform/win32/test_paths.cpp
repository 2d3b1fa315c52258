// tests/platform/win32/test_paths.cpp - the program's paths where they are the system's.
#include "platform/paths.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "platform/files.h"
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

TEST(Paths, CaseAndLettersBeyondAscii) {
    const Temp_Dir Dir;
    Dir.Write("Sc\xC3\xA9nes/\xC3\x8Ele \xE2\x82\xAC.LWM", "isle");
    EXPECT_EQ(File_Read(Dir.Path("SC\xC9NES\\\xEELE \x80.lwm")), "isle");
    EXPECT_EQ(Dir_Files(Dir.Path("sc\xE9nes")), std::vector<std::string>{"\xCEle \x80.LWM"});
    EXPECT_EQ(Program_Path(Dir.Native("Sc\xC3\xA9nes")), Dir.Path("Sc\xE9nes"));
    Dir.Write("\xCE\xA9.LWM", "");
    EXPECT_EQ(Program_Path(Dir.Native("\xCE\xA9.LWM")), std::nullopt) << "a Greek letter";
    EXPECT_EQ(Dir_Files(Dir.Path()), std::vector<std::string>{});
}

TEST(Paths, DotsAndDoubledDividers) {
    const Temp_Dir Dir;
    Dir.Write("a/b/file", "");
    EXPECT_EQ(Native_Path(Dir.Path("a\\none\\..\\.\\b\\\\file\\")), Dir.Native("a\\b\\file"));
    EXPECT_EQ(Native_Path(Dir.Path("a/b/")), Dir.Native("a\\b"));
    EXPECT_EQ(Native_Path("c:\\..\\"), fs::path("c:\\"));
    EXPECT_TRUE(Dir_Exists("C:\\"));

    const Current_Dir Inside(Dir.Native("a/b"));
    EXPECT_EQ(Native_Path("..\\b\\file"), Dir.Native("a\\b\\file"));
    EXPECT_EQ(Program_Path("file"), Dir.Path("a\\b\\file"));
    EXPECT_EQ(Program_Path("../x/"), Dir.Path("a\\x\\"));
    EXPECT_EQ(Program_Path("."), Dir.Path("a\\b"));
    EXPECT_EQ(Program_Path("c:/"), "c:\\");
    EXPECT_EQ(Files_Matching("f", "*"), std::vector<std::string>{"file"})
        << "a stem without a directory";
}

TEST(Paths, NothingForWhatCannotExist) {
    EXPECT_EQ(Native_Path(""), std::nullopt);
    EXPECT_EQ(Native_Path(std::string_view("\\tmp\0x", 6)), std::nullopt) << "not \\tmp";
    EXPECT_EQ(Program_Path(""), std::nullopt);
    EXPECT_FALSE(File_Exists("NUL")) << "a device";
    EXPECT_FALSE(File_Writer("?:\\x", File_Writer::Mode::Safe).Is_Open());
}

TEST(Paths, DrivesAreThoseOfTheComputer) {
    const std::vector<std::string> Drives = Drive_List();
    EXPECT_EQ(std::count(Drives.begin(), Drives.end(), "C:\\"), 1);
    for (const std::string& Drive : Drives) EXPECT_EQ(Program_Path(Drive), Drive);
}

TEST(Paths, AFileOfAnotherComputerIsFoundBesideTheProject) {
    const Temp_Dir Dir;
    Dir.Write("Map.bmp", "");
    const std::string Project = Dir.Path("Isle.LWM");
    EXPECT_EQ(File_Locate("Q:\\Scenery\\MAP.BMP", Project), Dir.Path("MAP.BMP"));
    EXPECT_EQ(File_Locate("Q:\\Scenery\\Other.bmp", Project), "Q:\\Scenery\\Other.bmp");
}
