// tests/fuzz/fuzz_journal.cpp - journals whose checksums are right and whose bytes are arbitrary.
//
// The input's first byte says what it is: the bytes of a journal, or changes to those of a good
// one, each a place in two bytes and the byte that comes there. Besides staying alive: what is
// restored holds together and can be taken back.
#include <cstring>
#include <vector>

#include "core/history.h"
#include "core/host.h"
#include "core/journal_read.h"
#include "core/model_ops.h"
#include "core/model_sound.h"
#include "core/program.h"
#include "core/restore.h"
#include "fuzz/scratch.h"
#include "platform/append_file.h"
#include "platform/files.h"

namespace {

class Yes_Host final : public Silent_Host {
public:
    Int Show_Box(const Box&) override { return Button_Yes; }
};

const std::string& Home() {
    static const std::string Dir = [] {
        const std::filesystem::path Made = Scratch_Path("_home");
        std::filesystem::create_directories(Made / "Temp");
        return Program_Path(Made).value();
    }();
    return Dir;
}

// A project never saved, with steps of every table.
std::string Good_Journal() {
    Program_Reset();
    App_Path = Home();
    Nom_Projet = Home() + "\\p.LWM";
    Projet_Open = 1;
    History_Start();
    Journal_Start(false);
    const Long I = Obj_Add({}, 1.0, 2.0);
    Pt_Append(I, 3.0, 4.0);
    Pt_Append(I, 5.0, 6.0);
    History_Act_Ended();
    Pt_Delete(I, 2);
    History_Act_Ended();
    Ima_Add({});
    PtGrid_Add(1.0, 2.0, 3.0F);
    const Area A;
    Squares_Store(Tab_Area, std::span(&A, 1));
    History_Act_Ended();
    NameBgl = "n.bgl";
    LatGridNW = 7.0;
    History_Act_Ended();
    Obj_Delete(I);
    History_Act_Ended();
    const std::string Bytes = File_Read(Journal_Path()).value();
    Journal_End();
    return Bytes;
}

// Every record gets the sum of its bytes, as far as there are records.
void Put_Sums_Right(std::string& Bytes) {
    std::size_t At = sizeof Journal_Magic - 1 + 2 * sizeof(std::uint32_t);
    while (At + 12 <= Bytes.size()) {
        std::uint32_t Size = 0;
        std::memcpy(&Size, Bytes.data() + At, sizeof Size);
        if (Size > Bytes.size() - At - 12) return;
        const std::uint64_t Sum = Bytes_Sum(std::string_view(Bytes).substr(At + 12, Size));
        std::memcpy(Bytes.data() + At + 4, &Sum, sizeof Sum);
        At += 12 + Size;
    }
}

std::string Journal_From(std::string_view Data) {
    static const std::string Good = Good_Journal();
    if (Data.empty()) return {};
    const bool Is_Whole = Data.front() == 0;
    Data.remove_prefix(1);
    std::string Bytes(Is_Whole ? Data : std::string_view(Good));
    for (; !Is_Whole && Data.size() >= 3; Data.remove_prefix(3)) {
        std::uint16_t At = 0;
        std::memcpy(&At, Data.data(), sizeof At);
        Bytes[At % Bytes.size()] = Data[2];
    }
    Put_Sums_Right(Bytes);
    return Bytes;
}

void Write(const std::string& Path, std::string_view Bytes) {
    File_Writer Out(Path, File_Writer::Mode::In_Place);
    Out.Put(Bytes);
    Out.Commit();
}

// As the program restores, without its files: false when there is nothing sound to be had.
bool Restore_Quickly(const Journal& J) {
    if (!History_Set_Model(J.Model) || !Model_Is_Sound()) return false;
    History_Start();
    for (const Journal_Entry& E : J.Steps)
        if (!History_Do(E.Bytes, E.Flags.Joins_Last)) break;
    return Model_Is_Sound();
}

bool Restore_From_File(std::string_view Bytes) {
    Write(Home() + "\\Temp\\Journal1.jnl", Bytes);
    return Offer_Restore();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
    const std::string Bytes = Journal_From({reinterpret_cast<const char*>(Data), Size});
    const Journal J = Journal_Read(Bytes);
    Journal_Report(J);
    Program_Reset();
    Yes_Host Host;
    const Host_Scope Scope(Host);
    App_Path = Home();
    const bool By_File = Size != 0 && Data[0] % 16 == 1;
    if (By_File ? Restore_From_File(Bytes) : Restore_Quickly(J)) {
        Need(Model_Is_Sound());
        while (History_Undo(nullptr)) {
        }
        Need(Model_Is_Sound());
    }
    Journal_End();
    if (By_File)
        for (const std::string& Path : Files_Matching(Home() + "\\Temp\\Journal", "*"))
            File_Delete(Path);
    return 0;
}
