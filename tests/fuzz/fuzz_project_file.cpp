// tests/fuzz/fuzz_project_file.cpp - project files out of arbitrary bytes.
//
// Besides staying alive: a file that can't be read leaves an empty project after a damage, and
// one that can be read has sound chains and saves to a file that is read again and saved as the
// same bytes.
#include "core/model_ops.h"
#include "core/model_sound.h"
#include "core/program.h"
#include "core/project_file.h"
#include "fuzz/scratch.h"
#include "platform/files.h"

namespace {

// The bytes behind the first two lines.
std::string Saved() {
    Need(Save_Project(0, {}));
    const std::string File = File_Read(Nom_Projet).value();
    return File.substr(File.find("\r\n0010") + 2);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
    static const std::string Path = Program_Path(Scratch_Path(".LWM")).value();
    Program_Reset();
    Read_Project_Text({reinterpret_cast<const char*>(Data), Size});
    Need(Model_Is_Sound());
    if (Load_Failed != 0) {
        Need(Nb_Obj == 1 && Nb_Pt == 0 && The_Head == Project_Head());
        return 0;
    }
    Projet_Open = 1;
    Nom_Projet = Path;
    const std::string First = Saved();
    Read_Project_Text("0000 V5.0\n0002\n" + First);
    Need(Load_Failed == 0);
    Need(Model_Is_Sound());
    const std::string Second = Saved();
    Read_Project_Text("0000 V5.0\n0002\n" + Second);
    Need(Load_Failed == 0 && Saved() == Second);
    File_Delete(Path);
    return 0;
}
