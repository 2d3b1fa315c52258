// tests/platform/win32/test_file_writer.cpp - files that are protected or in use.
#include <gtest/gtest.h>
#include <windows.h>

#include "platform/files.h"
#include "support/temp_dir.h"

namespace {

bool Save(const std::string& Path) {
    File_Writer Out(Path, File_Writer::Mode::Safe);
    Out.Put("new");
    return Out.Commit();
}

}  // namespace

TEST(Safe_Save, AFileProtectedOrInUseStaysWhole) {
    const Temp_Dir Dir;
    Dir.Write("p.LWM", "old");
    const std::filesystem::path Native = Dir.Native("p.LWM");
    SetFileAttributesW(Native.c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_FALSE(Save(Dir.Path("P.lwm")));
    SetFileAttributesW(Native.c_str(), FILE_ATTRIBUTE_NORMAL);
    const HANDLE Reader =
        CreateFileW(Native.c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                    OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(Reader, INVALID_HANDLE_VALUE);
    EXPECT_FALSE(Save(Dir.Path("p.LWM")));
    EXPECT_FALSE(File_Delete(Dir.Path("p.LWM")));
    CloseHandle(Reader);
    EXPECT_EQ(Dir.Read("p.LWM"), "old");
    EXPECT_EQ(Dir_Files(Dir.Path()), std::vector<std::string>{"p.LWM"}) << "no temporary file";
    EXPECT_TRUE(Save(Dir.Path("p.LWM")));
    EXPECT_EQ(Dir.Read("p.LWM"), "new");
}
