// platform/posix/raw_file.cpp - files as descriptors.
#include "platform/raw_file.h"

#include <fcntl.h>
#include <pthread.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <system_error>

namespace fs = std::filesystem;

namespace {

// A write beyond the limit of file sizes ends the program by a signal before it can report
// anything. While one of these lives the signal is held back, so write() fails with EFBIG; the
// signal that this left pending is taken away at the end.
class Size_Signal_Held {
public:
    Size_Signal_Held() {
        sigemptyset(&Signals_);
        sigaddset(&Signals_, SIGXFSZ);
        Held_ = !Pending() && pthread_sigmask(SIG_BLOCK, &Signals_, &Former_) == 0;
    }
    ~Size_Signal_Held() {
        if (!Held_) return;
        int Taken = 0;
        if (Pending()) sigwait(&Signals_, &Taken);
        pthread_sigmask(SIG_SETMASK, &Former_, nullptr);
    }
    Size_Signal_Held(const Size_Signal_Held&) = delete;
    Size_Signal_Held& operator=(const Size_Signal_Held&) = delete;

private:
    static bool Pending() {
        sigset_t Now;
        return sigpending(&Now) == 0 && sigismember(&Now, SIGXFSZ) == 1;
    }

    sigset_t Signals_{}, Former_{};
    bool Held_ = false;
};

}  // namespace

bool Raw_File::Create(const fs::path& Path) {
    Close();
    int Fd = -1;
    do {
        Fd = open(Path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    } while (Fd < 0 && errno == EINTR);
    Handle_ = Fd < 0 ? None : Fd;
    return Is_Open();
}

bool Raw_File::Open(const fs::path& Path) {
    Close();
    int Fd = -1;
    do {
        Fd = open(Path.c_str(), O_WRONLY | O_APPEND | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK);
    } while (Fd < 0 && errno == EINTR);
    Handle_ = Fd < 0 ? None : Fd;
    return Is_Open();
}

bool Raw_File::Lock() {
    int Result = 0;
    do {
        Result = flock(static_cast<int>(Handle_), LOCK_EX | LOCK_NB);
    } while (Result != 0 && errno == EINTR);
    return Result == 0;
}

bool Raw_File::Is_At(const fs::path& Path) const {
    struct stat Own {
    }, Found{};
    return fstat(static_cast<int>(Handle_), &Own) == 0 && lstat(Path.c_str(), &Found) == 0 &&
           Own.st_ino == Found.st_ino && Own.st_dev == Found.st_dev;
}

void Raw_File::Take_Rights_Of(const fs::path& Other) {
    struct stat Old {};
    const int Fd = static_cast<int>(Handle_);
    if (stat(Other.c_str(), &Old) != 0) return;
    // Often only the group may be changed. What the old group was allowed is not for another.
    const bool Same_Group = fchown(Fd, Old.st_uid, Old.st_gid) == 0 ||
                            fchown(Fd, static_cast<uid_t>(-1), Old.st_gid) == 0;
    fchmod(Fd, Old.st_mode & (Same_Group ? 0777 : 0707));
}

bool Raw_File::Write(std::string_view Bytes) {
    const Size_Signal_Held Held;
    while (!Bytes.empty()) {
        const ssize_t Done = write(static_cast<int>(Handle_), Bytes.data(), Bytes.size());
        if (Done < 0 && errno == EINTR) continue;
        if (Done <= 0) return false;
        Bytes.remove_prefix(static_cast<std::size_t>(Done));
    }
    return true;
}

bool Raw_File::Sync() {
    int Result = 0;
    do {
        Result = fsync(static_cast<int>(Handle_));
    } while (Result != 0 && errno == EINTR);
    return Result == 0 || errno == EINVAL || errno == ENOTSUP;  // what can't be synced is not lost
}

// It is locked until it has its name.
bool Raw_File::Replace(const fs::path& From, const fs::path& To) {
    const bool Is_Named = std::rename(From.c_str(), To.c_str()) == 0;
    Close();
    return Is_Named;
}

// While it is locked, so that nobody else can have it.
void Raw_File::Delete(const fs::path& Path) {
    if (Is_At(Path)) unlink(Path.c_str());
    Close();
}

bool Raw_File::Close() {
    if (!Is_Open()) return true;
    const int Fd = static_cast<int>(Handle_);
    Handle_ = None;
    return close(Fd) == 0 || errno == EINTR;  // closed by an interrupted call as well
}

bool File_Replaceable(const fs::path& Path) {
    struct stat Old {};
    if (stat(Path.c_str(), &Old) != 0) return errno == ENOENT;
    return S_ISREG(Old.st_mode) && faccessat(AT_FDCWD, Path.c_str(), W_OK, AT_EACCESS) == 0;
}

void Dir_Sync(const fs::path& Dir) {
    const int Fd = open(Dir.empty() ? "." : Dir.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (Fd < 0) return;
    fsync(Fd);
    close(Fd);
}

std::optional<std::int64_t> File_Changed_At(const fs::path& Path) {
    std::error_code Error;
    const auto Time = fs::last_write_time(Path, Error);
    if (Error) return std::nullopt;
    return static_cast<std::int64_t>(Time.time_since_epoch().count());
}
