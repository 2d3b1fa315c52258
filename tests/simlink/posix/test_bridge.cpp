// tests/simlink/posix/test_bridge.cpp - the helper that reaches a simulator under Wine.
#include <chrono>
#include <cstdlib>

#include "platform/posix/line_process.h"
#include "simlink/flight.h"
#include "simlink/fsconnect.h"
#include "support/environment.h"
#include "support/program_test.h"

namespace {

namespace fs = std::filesystem;

// Shell scripts stand in for the helper, which is looked for in the home.
class Bridge : public Program_Test {
protected:
    ~Bridge() override { Fsc_Close(); }

    void Put_Helper(std::string_view Script, fs::perms Rights = fs::perms(0755)) {
        Fsc_Close();
        Dir.Write("App/terrafold-fsbridge.exe", Script);
        fs::permissions(Dir.Native("App/terrafold-fsbridge.exe"), Rights);
    }
    Long Identify() {
        Long Number = 0;
        return Fsc_Identify(Name, Text, Number, Number);
    }

    std::string Name, Text;
};

constexpr char Good[] =
    "#!/bin/sh\necho started >>\"$0.log\"\nwhile read What A B; do case \"$What $A $B\" in\n"
    "'find  ') echo 1 ;;\n"
    "'send 10 0') printf -- '-16000\\r\\n' ;;\n"
    "'take -16000 ') echo '=FSCON01......02......free  text' ;;\n"
    "'send 1 71') echo 5 ;;\n"
    "*) echo '?' ;; esac; done\n";

TEST_F(Bridge, OneHelperServesManyReadings) {
    Put_Helper(Good);
    Fsc_Open();
    for (int I = 0; I < 20; ++I) ASSERT_EQ(Identify(), 0);
    EXPECT_EQ(Name + "|" + Text, "FSCON|free  text");
    Double Degrees = 1.0;
    EXPECT_EQ(Fsc_Get_Latitude(Degrees), 5);
    EXPECT_EQ(Fsc_Get_Longitude(Degrees), 1) << "an answer that is no number";
    EXPECT_EQ(Dir.Read("App/terrafold-fsbridge.exe.log"), "started\n");
    Fsc_Close();
    EXPECT_EQ(Identify(), 0) << "it is started again";
    EXPECT_EQ(Dir.Read("App/terrafold-fsbridge.exe.log"), "started\nstarted\n");
}

TEST_F(Bridge, WithoutAnAnswerThereIsNoServer) {
    EXPECT_EQ(Identify(), 1) << "no helper";
    Put_Helper(Good, fs::perms(0644));
    EXPECT_EQ(Identify(), 1) << "no program";
    for (const char* Script :
         {"exit 1", "exec <&-; sleep 60", "sleep 60 & exec sleep 60", "read A; echo 0; sleep 60",
          "read A; echo 1; read A; exit", "read A; echo 1; read A; sleep 60",
          "read A; echo 1; read A; echo -16000; read A; echo -; sleep 60",
          "read A; printf 1; sleep 60", "tr -d '\\n' </dev/zero", "yes"}) {
        Put_Helper("#!/bin/sh\n" + std::string(Script) + "\n");
        const auto Before = std::chrono::steady_clock::now();
        EXPECT_EQ(Identify(), 1) << Script;
        Fsc_Close();
        EXPECT_LT(std::chrono::steady_clock::now() - Before, std::chrono::seconds(2)) << Script;
    }
}

TEST_F(Bridge, AHelperForWindowsNeedsAWinePrefix) {
    const Environment_Scope Prefix("WINEPREFIX", Dir.Native("none").string());
    const Environment_Scope Path("PATH", Dir.Native("bin").string());
    Dir.Write("bin/wine", "#!/bin/sh\n: >'" + Dir.Native("ran").string() + "'\n");
    fs::permissions(Dir.Native("bin/wine"), fs::perms(0755));
    Put_Helper("MZ");
    EXPECT_EQ(Identify(), 1);
    EXPECT_FALSE(Dir.Has("ran"));
}

// The programs made for Windows, under the Wine that scripts/in_wine sets up.
TEST_F(Bridge, ReachesASimulatorUnderWine) {
    const char* const Programs = std::getenv("TERRAFOLD_WINDOWS_PROGRAMS");
    if (Programs == nullptr) GTEST_SKIP() << "part of ./test --windows";
    const fs::path Bin(Programs);
    fs::copy_file(Bin / "terrafold-fsbridge.exe", Dir.Native("App/terrafold-fsbridge.exe"));
    fs::copy_file(Bin / "stand_in_simulator.exe", Dir.Native("simulator.exe"));
    EXPECT_FALSE(Fsc_Available());
    Line_Process Simulator;
    Fly_Twice(
        Dir,
        [&](const std::string& Track) {
            ASSERT_TRUE(Simulator.Start("\"" + Dir.Path("simulator.exe") + "\" \"" + Track + "\""));
        },
        [&] { Simulator.Stop(); });
}

}  // namespace
