// platform/file_writer.cpp - files written in place, and files that appear whole.
#include <cstdio>
#include <filesystem>
#include <random>
#include <system_error>

#include "platform/files.h"
#include "platform/paths.h"
#include "platform/raw_file.h"

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

// Short, so that it fits where a longer name beside it does.
std::string Temporary_Name(std::uint32_t Number) {
    char Name[32];
    std::snprintf(Name, sizeof Name, ".terrafold-%08x.tmp", static_cast<unsigned>(Number));
    return Name;
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
    bool Failed = false;

private:
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
    std::random_device Numbers;
    for (int Tries = 0; Tries < 20 && !File.Is_Open(); ++Tries) {
        const fs::path Name = Target.parent_path() / Temporary_Name(Numbers());
        if (File.Create(Name)) Temporary = Name;
    }
    if (!File.Is_Open()) return false;
    File.Take_Rights_Of(Target);
    return true;
}

void File_Writer::Handle::Write(std::string_view Bytes) {
    if (Failed || !File.Is_Open() || Bytes.empty()) return;
    if (How == Mode::Safe) Tell_Step(Save_Step::Write);
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
    if (!File.Sync() || !File.Close()) return false;
    Tell_Step(Save_Step::Rename);
    if (!File_Replace(Temporary, Target)) return false;
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
