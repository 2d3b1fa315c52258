// tests/platform/test_program_dir.cpp - where App_Path is, and what is put there.
#include "platform/program_dir.h"

#include <gtest/gtest.h>

#include "platform/files.h"
#include "platform/process.h"
#include "support/environment.h"
#include "support/temp_dir.h"

namespace fs = std::filesystem;

// Not a test: what a copy of this program, put somewhere else, does.
TEST(Program_Dir, DISABLED_Prepare) {
    ASSERT_TRUE(Prepare_App_Dir(Find_App_Dir().value()));
}

namespace {

class Moved_Program : public testing::Test {
protected:
    void Start() const {
        fs::create_directories(Dir.Native("opt/bin"));
        fs::copy_file(Own_Program().value(), Dir.Native("opt/bin/terrafold.exe"));
        EXPECT_TRUE(Process_Run(Dir.Path("opt\\bin\\terrafold.exe") +
                                    " --gtest_brief=1 --gtest_also_run_disabled_tests"
                                    " --gtest_filter=Program_Dir.DISABLED_Prepare",
                                true));
    }

    const Temp_Dir Dir;
    const Environment_Scope No_Home_{"TERRAFOLD_HOME", std::nullopt};
    const Environment_Scope Data_{"XDG_DATA_HOME", Dir.Native("data").string()};
    const Environment_Scope Windows_Data_{"LOCALAPPDATA", Dir.Native("data").string()};
};

}  // namespace

TEST_F(Moved_Program, AnInstalledProgramFillsTheUsersDirectory) {
    Dir.Write("opt/share/terrafold/Resource/FicErr.txt", "[ERR]");
    Dir.Write("opt/share/terrafold/Resource/LC.txt", "classes");
    Dir.Write("opt/share/terrafold/Resource/Road.Ref", "deleted by the user");
    Dir.Write("data/terrafold/Resource/ficerr.TXT", "the user's own");
    Start();
    EXPECT_EQ(Dir.Read("data/terrafold/Resource/LC.txt"), "classes");
    EXPECT_EQ(Dir.Read("data/terrafold/Resource/ficerr.TXT"), "the user's own");
    EXPECT_EQ(Dir_Files(Dir.Path("data\\terrafold\\Resource")),
              (std::vector<std::string>{"ficerr.TXT", "LC.txt"}));
}

TEST_F(Moved_Program, AnUnpackedProgramUsesItsOwnDirectory) {
    Dir.Write("opt/bin/Resource/FicErr.txt", "[ERR]");
    Start();
    EXPECT_FALSE(Dir.Has("data"));
    EXPECT_EQ(Dir_Files(Dir.Path("opt\\bin\\Resource")), std::vector<std::string>{"FicErr.txt"});
}

TEST(Program_Dir, TheVariableInEitherForm) {
    const Temp_Dir Dir;
    const auto Named = [](const std::string& Value) {
        const Environment_Scope Scope("TERRAFOLD_HOME", Value);
        return Find_App_Dir();
    };
    EXPECT_EQ(Named(Dir.Native("my app/").string()), Dir.Path("my app"));
    EXPECT_EQ(Named(Dir.Path("app\\")), Dir.Path("app")) << "given in the program's form";
    EXPECT_EQ(Named(Dir.Native("\xCE\xA9").string()), std::nullopt) << "no path of ours";
    EXPECT_TRUE(Prepare_App_Dir(Dir.Path("new\\app")));
    EXPECT_TRUE(Dir_Exists(Dir.Path("new\\app\\Resource")));
    Dir.Write("file", "");
    EXPECT_FALSE(Prepare_App_Dir(Dir.Path("file")));
}
