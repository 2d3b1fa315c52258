// tests/gen/test_emit_excl.cpp - exclusion sources, byte by byte.
#include "gen/emit_excl.h"

#include "gen_test.h"
#include "support/golden.h"

namespace {

constexpr char Source_Name[] = "Terrafold$_Excl.ASM";

class Emit_Excl_Test : public Gen_Test {
protected:
    static void Exclude(const Cell_Pos& Cell, const std::vector<std::size_t>& Classes) {
        Excl E;
        static_cast<Cell_Pos&>(E) = Cell;
        for (const std::size_t Class : Classes) E.Chk_Excl[Class] = 1;
        Tab_Excl.Append(E);
    }
    std::size_t Count(std::string_view Text) const {
        const std::string Whole = Source(Source_Name);
        std::size_t Nb = 0;
        for (std::size_t At = Whole.find(Text); At != std::string::npos;
             At = Whole.find(Text, At + 1))
            ++Nb;
        return Nb;
    }
};

TEST_F(Emit_Excl_Test, CellsAreSortedIntoAreasAndClasses) {
    Exclude({200, 101, 4, 9}, {7});
    Exclude({300, 100, 31, 2}, {5, 100, 0});
    Exclude({300, 100, 2, 2}, {1});
    Exclude({200, 101, 4, 9}, {7, 3});  // names class 7 of this Cell again
    Exclude({300, 100, 0, 1}, {});
    Exclude({300, 100, 3, 1}, {6});  // further east than others, but in a row before them
    Exclude({200, 101, 4, 8}, {2});
    Emit_Excl();
    EXPECT_TRUE(Equals_Golden("excl.asm", Source(Source_Name)));
    const std::string Path = App_Path + "\\" + Source_Name;
    EXPECT_EQ(Host_Of_Test.Events,
              (std::vector<std::string>{"write " + Path, "run " + App_Path + "\\bglc.exe \"" +
                                                             Path + "\" \"" + NameBglExcl + "\""}));
    EXPECT_EQ(Host_Of_Test.Stages, (std::vector<std::string>{"LCompileNom=" + NameBglExcl,
                                                             "LCompile=Exclude : BGLC.exe"}));
}

TEST_F(Emit_Excl_Test, TheOtherSimulatorHasNoTextureType) {
    FS_CFS = 1;
    Exclude({0, 0, 0, 0}, {1});
    Emit_Excl();
    EXPECT_TRUE(Equals_Golden("excl_cfs.asm", Source(Source_Name)));
}

TEST_F(Emit_Excl_Test, ACellHoldsItsLowest31Classes) {
    std::vector<std::size_t> Classes;
    for (std::size_t Class = 40; Class < 80; ++Class) Classes.push_back(Class);
    Exclude({1, 1, 1, 1}, Classes);
    Exclude({1, 1, 1, 1}, {39});
    Emit_Excl();
    EXPECT_EQ(Count("VTPDataArea 31, 0, 1, 1\r\n"), 1U);
    EXPECT_EQ(Count("VTPLayer "), 31U);
    EXPECT_EQ(Count("VTPLayer 39, 1"), 1U) << "the lowest class comes from the second record";
    EXPECT_EQ(Count("VTPLayer 69, 1"), 1U);
}

TEST_F(Emit_Excl_Test, NothingIsWrittenWithoutAFlag) {
    Emit_Excl();
    Exclude({1, 1, 1, 1}, {});
    Tab_Excl[1].Chk_Excl[3] = 2;  // a flag counts when it is 1
    Emit_Excl();
    EXPECT_FALSE(Has_Source(Source_Name));
    EXPECT_TRUE(Host_Of_Test.Events.empty());
    EXPECT_TRUE(Host_Of_Test.Stages.empty());
}

TEST_F(Emit_Excl_Test, ASourceThatCannotBeMadeIsNotCompiled) {
    Exclude({1, 1, 1, 1}, {1});
    Dir.Write(std::string("App/") + Source_Name + "/in the way", "");
    Emit_Excl();
    ASSERT_EQ(Host_Of_Test.Events.size(), 1U) << "one box and no run";
    EXPECT_EQ(Host_Of_Test.Last_Message(), 0);
}

}  // namespace
