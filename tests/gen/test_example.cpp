// tests/gen/test_example.cpp - everything that the example project generates, byte by byte.
#include <gtest/gtest.h>

#include "core/lifecycle.h"
#include "gen_test.h"
#include "platform/paths.h"
#include "support/golden.h"

namespace {

class Example_Test : public Gen_Test {
protected:
    Example_Test() {
        const auto Project = Program_Path(TEST_SOURCE_DIR "/examples/island/Island.LWM");
        Opened_ = Load_Project(Project.value());
        NameBgl = Dir.Path("Island.bgl");
        NameBglExcl = Dir.Path("Island_Excl.bgl");
        Dir_LCWC = Dir.Path("Classes");
        Dir_Raw = Dir.Path("Raw");
        std::filesystem::copy_file(TEST_SOURCE_DIR "/resource/OwnLines4.txt",
                                   Dir.Native("App/Resource/OwnLines4.txt"));
        std::filesystem::create_directory(Dir.Native("Classes"));
        std::filesystem::create_directory(Dir.Native("Raw"));
        Host_Of_Test.Tool = [this](std::string_view Cmd_Line) { return Keep(Cmd_Line); };
    }

    void Expect_Golden(const std::string& Name, const std::string& File) {
        EXPECT_TRUE(Equals_Golden("island/" + Name, Without_Dir(Source(File))));
    }

    bool Opened_ = false;

private:
    // Files of one name that are written again for each Area or square are compared when their
    // tool is started.
    bool Keep(std::string_view Cmd_Line) {
        if (Cmd_Line.find("\\scasm.exe") != std::string_view::npos)
            Expect_Golden("night_" + std::to_string(++Nb_Night_) + ".sca", "TmpRt.Sca");
        if (Cmd_Line.find("\\ResampleV11.exe") != std::string_view::npos) {
            const bool Land = Cmd_Line.find("TmpLC.Inf") != std::string_view::npos;
            const std::string Name = "classes_" + std::to_string(++Nb_Class_);
            Expect_Golden(Name + ".inf", Land ? "Temp/TmpLC.Inf" : "Temp/TmpWC.Inf");
            Expect_Golden(Name + ".raw", "Temp/FicRaw.Raw");
        }
        return true;
    }

    int Nb_Night_ = 0;
    int Nb_Class_ = 0;
};

TEST_F(Example_Test, EveryFileIsAsAccepted) {
    ASSERT_TRUE(Opened_);
    Cmd_API();
    EXPECT_TRUE(Host_Of_Test.Boxes.empty()) << Host_Of_Test.Boxes.front().Text;
    std::string Events;
    for (const std::string& Event : Host_Of_Test.Events) Events += Event + "\r\n";
    EXPECT_TRUE(Equals_Golden("island/events.txt", Without_Dir(Events)));
    Expect_Golden("excl.asm", "Terrafold$_Excl.ASM");
    Expect_Golden("remesh.asm", "Terrafold$_Remesh_LWM.asm");
    Expect_Golden("mask.asm", "Terrafold$_Poly_LWM.asm");
    Expect_Golden("lines.asm", "Terrafold$_Lines.ASM");
    Expect_Golden("textured.asm", "Terrafold$_VTP2.ASM");
}

}  // namespace
