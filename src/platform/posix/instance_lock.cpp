// platform/posix/instance_lock.cpp - a lock on a file of the user's own.
#include "platform/instance_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <filesystem>
#include <optional>
#include <string>
#include <system_error>

#include "platform/posix/lock_place.h"
#include "platform/system.h"

namespace fs = std::filesystem;

std::optional<fs::path> Lock_File() {
    if (const auto Own = Env_Text("TERRAFOLD_LOCK")) return fs::path(*Own);
    std::error_code Error;
    const auto Runtime = Env_Text("XDG_RUNTIME_DIR");
    if (Runtime && Runtime->front() == '/' && fs::is_directory(*Runtime, Error))
        return fs::path(*Runtime) / "terrafold.lock";
    const fs::path Shared = fs::temp_directory_path(Error);
    if (Error) return std::nullopt;
    return Shared / ("terrafold-" + std::to_string(geteuid()) + ".lock");
}

namespace {

// -1 when there can be no such file. Others may write in the temporary directory, so a link or
// a file of another user is not taken.
int Open_Lock_File() {
    const std::optional<fs::path> Path = Lock_File();
    if (!Path) return -1;
    const int Fd =
        open(Path->c_str(), O_RDWR | O_CREAT | O_NOFOLLOW | O_CLOEXEC | O_NONBLOCK, 0600);
    if (Fd < 0) return -1;
    struct stat Found {};
    if (fstat(Fd, &Found) == 0 && S_ISREG(Found.st_mode) && Found.st_uid == geteuid()) return Fd;
    close(Fd);
    return -1;
}

}  // namespace

struct Instance_Lock::Handle {
    explicit Handle(int Fd) : Fd(Fd) {}
    ~Handle() { close(Fd); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    int Fd;
};

Instance_Lock::Instance_Lock() = default;
Instance_Lock::~Instance_Lock() = default;

bool Instance_Lock::Take() {
    if (Handle_) return true;
    const int Fd = Open_Lock_File();
    if (Fd < 0) return true;
    auto Opened = std::make_unique<Handle>(Fd);
    int Result = 0;
    do {
        Result = flock(Fd, LOCK_EX | LOCK_NB);
    } while (Result != 0 && errno == EINTR);
    if (Result != 0) return errno != EWOULDBLOCK;
    Handle_ = std::move(Opened);
    return true;
}
