// tests/platform/posix/test_environment.cpp - what variables and Wine's registry say.
#include <gtest/gtest.h>

#include "platform/locale.h"
#include "platform/simulator_dir.h"
#include "support/environment.h"
#include "support/rows.h"
#include "support/temp_dir.h"

TEST(Environment, TheLanguageOfMessages) {
    Expect_Rows("environment", {{"System_Language",
                                 [](const Row_Cells& C) {
                                     const Environment_Scope All("LC_ALL", C[0]);
                                     const Environment_Scope Messages("LC_MESSAGES", C[1]);
                                     const Environment_Scope Lang("LANG", C[2]);
                                     return System_Language();
                                 }},
                                {"system.reg", [](const Row_Cells& C) {
                                     const Temp_Dir Dir;
                                     const Environment_Scope None("TERRAFOLD_FSDIR");
                                     const Environment_Scope Prefix("WINEPREFIX",
                                                                    Dir.Native().string());
                                     EXPECT_EQ(Simulator_Dir(), "") << "no file";
                                     Dir.Write("system.reg", C[0]);
                                     return Simulator_Dir();
                                 }}});
}

TEST(Environment, PlacesThatAreNamed) {
    const Temp_Dir Dir;
    const Environment_Scope Home("HOME", Dir.Native().string());
    const Environment_Scope Relative("XDG_DATA_HOME", "data");
    EXPECT_EQ(User_Data_Dir(), Dir.Native(".local/share/terrafold")) << "no relative one";
    const Environment_Scope Named("TERRAFOLD_FSDIR",
                                  Dir.Native("jeux \xC3\xA9t\xC3\xA9/").string());
    EXPECT_EQ(Simulator_Dir(), Dir.Path("jeux \xE9t\xE9\\"));
    const Environment_Scope Other("TERRAFOLD_FSDIR", "D:\\FS9");
    EXPECT_EQ(Simulator_Dir(), "D:\\FS9") << "in the program's form";
}
