// tests/platform/posix/test_simulator_dir.cpp - finding the simulator without a registry.
#include <gtest/gtest.h>

#include "platform/simulator_dir.h"
#include "support/environment.h"
#include "support/temp_dir.h"

namespace {

class Simulator : public testing::Test {
protected:
    std::string With_Registry(std::string_view Text) const {
        Dir.Write("system.reg", Text);
        return Simulator_Dir();
    }

    const Temp_Dir Dir;
    const Environment_Scope No_Variable_{"TERRAFOLD_FSDIR", std::nullopt};
    const Environment_Scope Prefix_{"WINEPREFIX", Dir.Native().string()};
};

}  // namespace

TEST_F(Simulator, TheVariableInEitherForm) {
    Dir.Write("system.reg",
              "[Software\\\\Microsoft\\\\Microsoft Games\\\\Flight Simulator\\\\9.0]\n"
              "\"EXE Path\"=\"C:\\\\FS9\"\n");
    {
        const Environment_Scope Named("TERRAFOLD_FSDIR",
                                      Dir.Native("jeux \xC3\xA9t\xC3\xA9/").string());
        EXPECT_EQ(Simulator_Dir(), Dir.Path("jeux \xE9t\xE9\\"));
    }
    {
        const Environment_Scope Named("TERRAFOLD_FSDIR", "D:\\FS9");
        EXPECT_EQ(Simulator_Dir(), "D:\\FS9");
    }
    const Environment_Scope Empty("TERRAFOLD_FSDIR", "");
    EXPECT_EQ(Simulator_Dir(), "C:\\FS9") << "an empty variable says nothing";
}

TEST_F(Simulator, TheRegistryTextOfWine) {
    EXPECT_EQ(Simulator_Dir(), "") << "no file";
    EXPECT_EQ(With_Registry("WINE REGISTRY Version 2\n\n"
                            "[Software\\\\Microsoft\\\\Microsoft Games\\\\Other\\\\9.0] 12\n"
                            "\"EXE Path\"=\"C:\\\\wrong\"\n\n"
                            "[SoftWare\\\\wow6432node\\\\Microsoft\\\\Microsoft GAMES\\\\"
                            "Flight Simulator\\\\9.0] 1234567\n#time=1d\n"
                            "\"AppVersion\"=\"9.0\"\n"
                            "\"exe path\"=\"C:\\\\Jeux d'\\xe9t\\x00e9 \\\"x\\\" \\x20ac\\\\\"\n"),
              "C:\\Jeux d'\xE9t\xE9 \"x\" \x80\\")
        << "case, the 32-bit twin, escapes";
    const std::string Key =
        "[Software\\\\Microsoft\\\\Microsoft Games\\\\Flight Simulator\\\\9.0]\n";
    EXPECT_EQ(With_Registry(Key + "[Other]\n\"EXE Path\"=\"C:\\\\x\"\n"), "");
    EXPECT_EQ(With_Registry(Key + "\"EXE Path\"=\"C:\\\\x"), "") << "cut off";
    EXPECT_EQ(With_Registry(Key + "\"EXE Path\"=\"C:\\\\\\x3a9\"\n"), "") << "a Greek letter";
    EXPECT_EQ(With_Registry(Key + "\"EXE Path\"=dword:00000001\n"), "");
}
