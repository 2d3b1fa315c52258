// tests/fuzz/fuzz_ref_file.cpp - reference files out of arbitrary bytes.
//
// Besides staying alive: a file that can't be read changes nothing, and one that can be read is
// written as a file that reads back as the same attributes.
#include "core/model.h"
#include "core/program.h"
#include "core/reference_file.h"
#include "fuzz/scratch.h"
#include "platform/files.h"

namespace {

std::string Home() {
    const std::filesystem::path Dir = Scratch_Path("");
    std::filesystem::create_directories(Dir / "Resource");
    return Program_Path(Dir).value();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
    static const std::string Dir = Home();
    Program_Reset();
    App_Path = Dir;
    Cur_Attr.Text_Rt = Ref_Name = "before";
    const Attr Before = Cur_Attr;
    const bool Read = Ref_Read_Text({reinterpret_cast<const char*>(Data), Size});
    if (!Read) {
        Need(Cur_Attr == Before && Ref_Name == "before");
        return 0;
    }
    // Of 15 digits, two more saves keep what one made of them.
    const std::string Path = Ref_Dir() + "x.Ref";
    Need(Ref_Save(Path, Ref_Name) && Ref_Read(Path));
    const Attr Once = Cur_Attr;
    const std::string Name = Ref_Name;
    Need(Ref_Save(Path, Ref_Name) && Ref_Read(Path));
    Need(Cur_Attr == Once && Ref_Name == Name);
    Ref_List();
    Need(Nb_Refs == 1 && Ref_Names[0] == (Name.empty() ? "???" : Name));
    File_Delete(Path);
    return 0;
}
