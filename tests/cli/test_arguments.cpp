// tests/cli/test_arguments.cpp - words of the command line.
#include "cli/arguments.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using Command = Cli_Arguments::Command;
using Words = std::vector<std::string>;

TEST(Arguments, OptionsOfGenerateMayStandAnywhere) {
    const std::vector<Words> Same = {
        {"generate", "a b.LWM", "--app-path", "home", "--language", "us", "--dry-run"},
        {"generate", "--dry-run", "--language=US", "--app-path=home", "a b.LWM"},
        {"generate", "--app-path", "home", "--dry-run", "--language", "US", "--", "a b.LWM"},
    };
    for (const Words& W : Same) {
        const Cli_Arguments A = Cli_Parse(W);
        EXPECT_EQ(A.Error, "");
        EXPECT_EQ(A.What, Command::Generate);
        EXPECT_EQ(A.Project, "a b.LWM");
        EXPECT_EQ(A.App_Dir, "home");
        EXPECT_EQ(A.Language, "US");
        EXPECT_TRUE(A.Dry_Run);
    }
    EXPECT_EQ(Cli_Parse(Words{"generate", "--", "--dry-run"}).Project, "--dry-run");
}

TEST(Arguments, TheOtherCommands) {
    const Cli_Arguments Resave = Cli_Parse(Words{"resave", "in.LWM", "out.LWM"});
    EXPECT_EQ(Resave.What, Command::Resave);
    EXPECT_EQ(Resave.Project, "in.LWM");
    EXPECT_EQ(Resave.Target, "out.LWM");
    EXPECT_EQ(Cli_Parse(Words{"info", "in.LWM"}).What, Command::Info);
    EXPECT_EQ(Cli_Parse(Words{"--version"}).What, Command::Version);
    EXPECT_EQ(Cli_Parse(Words{"generate", "--bad", "--help"}).Error, "") << "help always comes";
}

TEST(Arguments, WrongUsageIsTold) {
    const std::vector<Words> Wrong = {
        {},
        {"compile"},
        {"generate"},
        {"generate", ""},
        {"generate", "a", "b"},
        {"generate", "a", "--app-path"},
        {"generate", "a", "--app-path="},
        {"generate", "a", "--language", "DE"},
        {"generate", "a", "--dry"},
        {"resave", "a"},
        {"resave", "a", "b", "--dry-run"},
        {"info"},
        {"--version", "a"},
    };
    for (const Words& W : Wrong)
        EXPECT_NE(Cli_Parse(W).Error, "") << (W.empty() ? "no word" : W.back());
}

}  // namespace
