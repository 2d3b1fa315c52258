// platform/file_writer.cpp - files written in place, and files that appear whole.
#include <cstdio>
#include <filesystem>
#include <random>
#include <system_error>
#include <utility>

#include "platform/byte_sum.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/raw_file.h"
#include "platform/system.h"

namespace fs = std::filesystem;

namespace {

void Tell_Step(Save_Step Step) {
    if (On_Save_Step) On_Save_Step(Step);
}

// The file that is meant when Path is a link: replacing the link itself would part the two
// names. Nothing when links run in a circle.
std::optional<fs::path> Behind_Links(fs::path Path) {
    for (int Links = 0; Links < 40; ++Links) {
        std::error_code Error;
        if (!fs::is_symlink(fs::symlink_status(Path, Error))) return Path;
        const fs::path To = fs::read_symlink(Path, Error);
        if (Error) return std::nullopt;
        Path = Path.parent_path() / To;  // just To when that is absolute
    }
    return std::nullopt;
}

// Numbers from here on are for when each below is another program's.
constexpr unsigned Nb_Own_Numbers = 4;

// A name beside Target that tells whose it is, so that what a killed program has left is found
// again. Short and plain whatever Target is called, so that it fits where that does.
fs::path Temporary_Of(const fs::path& Target, unsigned Number) {
    std::uint64_t Sum = 0xCBF29CE484222325;
    for (const char C : Utf8_From_Path(Target.filename()))
        Sum = (Sum ^ static_cast<unsigned char>(C)) * 0x100000001B3;
    char Name[48];
    std::snprintf(Name, sizeof Name, ".terrafold-%016llx-%x.tmp",
                  static_cast<unsigned long long>(Sum), Number);
    return Target.parent_path() / Name;
}

// Deletes what a killed program has left there; what a running one has is locked.
void Delete_Left(const fs::path& Temporary) {
    std::error_code Error;
    {
        Raw_File Left;
        if (!Left.Open(Temporary) || !Left.Lock() || !Left.Is_At(Temporary)) return;
        if (fs::remove(Temporary, Error)) return;
    }
    fs::remove(Temporary, Error);  // where a file that is open cannot be deleted
}

}  // namespace

struct File_Writer::Handle {
    ~Handle() { Drop(); }

    bool Open_In_Place(const fs::path& Path);
    bool Open_Safe(const fs::path& Path);
    void Write(std::string_view Bytes);
    bool Finish();

    Raw_File File;
    Mode How = Mode::In_Place;
    Byte_Sum Sum;
    bool Failed = false;

private:
    void Make(unsigned Number);
    bool Finish_Safe();
    void Drop();

    fs::path Target, Temporary;  // of a safe file; Temporary is empty when it is gone
};

bool File_Writer::Handle::Open_In_Place(const fs::path& Path) {
    How = Mode::In_Place;
    std::error_code Error;
    const fs::file_status Old = fs::symlink_status(Path, Error);
    if (fs::is_regular_file(Old) || fs::is_symlink(Old)) fs::remove(Path, Error);
    return File.Create(Path);
}

bool File_Writer::Handle::Open_Safe(const fs::path& Path) {
    How = Mode::Safe;
    const std::optional<fs::path> End = Behind_Links(Path);
    if (!End || !File_Replaceable(*End)) return false;
    Target = *End;
    Tell_Step(Save_Step::Create);
    for (unsigned I = 0; I < Nb_Own_Numbers; ++I) Delete_Left(Temporary_Of(Target, I));
    for (unsigned I = 0; I < Nb_Own_Numbers && !File.Is_Open(); ++I) Make(I);
    std::random_device Numbers;
    for (int Tries = 0; Tries < 20 && !File.Is_Open(); ++Tries) Make(Numbers() | Nb_Own_Numbers);
    if (!File.Is_Open()) return false;
    File.Take_Rights_Of(Target);
    return true;
}

// Between its making and its lock another program may take the file for one that was left. None
// does so to those of other numbers, which serve where files can't be locked.
void File_Writer::Handle::Make(unsigned Number) {
    fs::path Name = Temporary_Of(Target, Number);
    if (!File.Create(Name)) return;
    const bool Is_Ours = File.Lock() && File.Is_At(Name);
    if (Is_Ours || Number >= Nb_Own_Numbers)
        Temporary = std::move(Name);
    else
        File.Close();
}

void File_Writer::Handle::Write(std::string_view Bytes) {
    if (Failed || !File.Is_Open() || Bytes.empty()) return;
    if (How == Mode::Safe) {
        Tell_Step(Save_Step::Write);
        Sum.Add(Bytes);
    }
    Failed = !File.Write(Bytes);
}

bool File_Writer::Handle::Finish() {
    if (!File.Is_Open()) return !Failed;  // finished before
    if (How == Mode::Safe)
        Failed = !Finish_Safe();
    else
        Failed = !File.Close() || Failed;
    Drop();
    return !Failed;
}

bool File_Writer::Handle::Finish_Safe() {
    if (Failed) return false;
    Tell_Step(Save_Step::Sync);
    if (!File.Sync()) return false;
    Tell_Step(Save_Step::Rename);
    if (!File.Replace(Temporary, Target)) return false;
    Temporary.clear();
    Tell_Step(Save_Step::Sync_Dir);
    Dir_Sync(Target.parent_path());
    return true;
}

void File_Writer::Handle::Drop() {
    File.Close();
    std::error_code Ignored;
    if (!Temporary.empty()) fs::remove(Temporary, Ignored);
    Temporary.clear();
}

File_Writer::File_Writer(std::string_view Path, Mode How) {
    const std::optional<fs::path> Native = Native_Path(Path);
    if (!Native) return;
    auto Opened = std::make_unique<Handle>();
    if (How == Mode::Safe ? Opened->Open_Safe(*Native) : Opened->Open_In_Place(*Native))
        Handle_ = std::move(Opened);
}

File_Writer::~File_Writer() {
    if (Handle_ && Handle_->How == Mode::In_Place) Flush();
}

File_Writer::File_Writer(File_Writer&&) noexcept = default;

bool File_Writer::Is_Open() const {
    return Handle_ && Handle_->File.Is_Open();
}

void File_Writer::Flush() {
    if (Handle_) Handle_->Write(Buffer_);
    Buffer_.clear();
}

bool File_Writer::Commit() {
    if (!Handle_) return false;
    Flush();
    return Handle_->Finish();
}

std::uint64_t File_Writer::Sum() const {
    if (!Handle_) return 0;
    Byte_Sum All = Handle_->Sum;
    All.Add(Buffer_);
    return All.Value();
}
