// platform/append_file.cpp - the thread that waits for the disk.
#include "platform/append_file.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>

#include "platform/files.h"
#include "platform/paths.h"
#include "platform/raw_file.h"

namespace fs = std::filesystem;

namespace {

// The disk has the rest of a second for its part.
constexpr std::chrono::milliseconds Sync_After{500};

}  // namespace

struct Append_File::Handle {
    ~Handle() {
        {
            const std::lock_guard Held(Mutex);
            Ends = true;
        }
        Woken.notify_all();
        if (Waiter.joinable()) Waiter.join();
    }

    void Note_Written() {
        {
            const std::lock_guard Held(Mutex);
            Is_Dirty = true;
        }
        if (!Waiter.joinable()) Waiter = std::thread([this] { Wait_For_Disk(); });
        Woken.notify_all();
    }

    // A file that is new is not there before its directory is on the disk as well.
    bool Sync() {
        if (!File.Sync()) return false;
        if (Is_New.exchange(false)) Dir_Sync(Dir);
        return true;
    }

    void Wait_For_Disk() {
        std::unique_lock Held(Mutex);
        for (;;) {
            Woken.wait(Held, [this] { return Ends || Is_Dirty; });
            if (Woken.wait_for(Held, Sync_After, [this] { return Ends; })) return;
            Is_Dirty = false;
            Held.unlock();
            Sync();
            Held.lock();
        }
    }

    Raw_File File;
    fs::path Dir;
    std::atomic<bool> Is_New{false};
    std::mutex Mutex;
    std::condition_variable Woken;
    bool Is_Dirty = false, Ends = false;
    std::thread Waiter;
};

Append_File::Append_File() = default;
Append_File::~Append_File() = default;

// Between the making of a file and its lock another program may have claimed it, and deleted it
// as one that holds nothing.
bool Append_File::Create(std::string_view Path) {
    const auto Native = Native_Path(Path);
    auto H = std::make_unique<Handle>();
    if (!Native || !H->File.Create(*Native)) return false;
    if (!H->File.Lock() || !H->File.Is_At(*Native)) return false;
    H->Dir = Native->parent_path();
    H->Is_New = true;
    Handle_ = std::move(H);
    return true;
}

bool Append_File::Claim(std::string_view Path) {
    const auto Native = Native_Path(Path);
    auto H = std::make_unique<Handle>();
    if (!Native || !H->File.Open(*Native) || !H->File.Lock() || !H->File.Is_At(*Native))
        return false;
    Handle_ = std::move(H);
    return true;
}

bool Append_File::Is_Open() const {
    return Handle_ != nullptr;
}

bool Append_File::Append(std::string_view Bytes) {
    if (!Handle_ || !Handle_->File.Write(Bytes)) return false;
    Handle_->Note_Written();
    return true;
}

bool Append_File::Sync() {
    return Handle_ && Handle_->Sync();
}

void Append_File::Delete(std::string_view Path) {
    const auto Native = Native_Path(Path);
    if (Handle_ && Native) Handle_->File.Delete(*Native);
    Close();
}

void Append_File::Close() {
    Handle_.reset();
}

std::optional<File_Mark> File_Mark_Of(std::string_view Path) {
    const auto Native = Native_Path(Path);
    if (!Native || !File_Exists(Path)) return std::nullopt;
    std::error_code Error;
    const auto Size = fs::file_size(*Native, Error);
    const auto Time = File_Changed_At(*Native);
    if (Error || !Time) return std::nullopt;
    return File_Mark{.Size = Size, .Time = *Time};
}

bool File_Rename(std::string_view From, std::string_view To) {
    const auto Old = Native_Path(From), New = Native_Path(To);
    if (!Old || !New || File_Exists(To)) return false;
    std::error_code Error;
    fs::rename(*Old, *New, Error);
    return !Error;
}
