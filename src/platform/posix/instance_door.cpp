// platform/posix/instance_door.cpp - a socket beside the lock, a path a message.
#include "platform/instance_door.h"

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <string>

#include "platform/posix/lock_place.h"

namespace {

constexpr std::size_t Longest_Path = 4096;

// Nothing where the system's addresses are too short for the path.
std::optional<sockaddr_un> Address() {
    const auto Lock = Lock_File();
    sockaddr_un At{};
    if (!Lock || Lock->native().size() + 6 > sizeof At.sun_path) return std::nullopt;
    At.sun_family = AF_UNIX;
    std::strcpy(At.sun_path, (Lock->native() + ".door").c_str());
    return At;
}

const sockaddr* As_Any(const sockaddr_un& At) {
    return reinterpret_cast<const sockaddr*>(&At);
}

// Others may write in the temporary directory.
bool Is_Own_Socket(const sockaddr_un& At) {
    struct stat Found {};
    return lstat(At.sun_path, &Found) == 0 && S_ISSOCK(Found.st_mode) && Found.st_uid == geteuid();
}

int Make_Socket() {
    return socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

}  // namespace

struct Instance_Door::Handle {
    explicit Handle(const sockaddr_un& At) : At(At), Fd(Make_Socket()) {
        if (Is_Own_Socket(At)) unlink(At.sun_path);  // a killed program's
        const mode_t Former = umask(0077);
        Is_Open = Fd >= 0 && bind(Fd, As_Any(At), sizeof At) == 0;
        umask(Former);
    }
    ~Handle() {
        if (Is_Open) unlink(At.sun_path);
        if (Fd >= 0) close(Fd);
    }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    sockaddr_un At;
    int Fd;
    bool Is_Open = false;
};

Instance_Door::Instance_Door() {
    if (const auto At = Address()) Handle_ = std::make_unique<Handle>(*At);
    if (Handle_ && !Handle_->Is_Open) Handle_.reset();
}

Instance_Door::~Instance_Door() = default;

std::optional<std::string> Instance_Door::Take() {
    if (!Handle_) return std::nullopt;
    std::string Path(Longest_Path, '\0');
    const ssize_t Size = recv(Handle_->Fd, Path.data(), Path.size(), 0);
    if (Size <= 0) return std::nullopt;
    Path.resize(static_cast<std::size_t>(Size));
    return Path;
}

std::intptr_t Instance_Door::Descriptor() const {
    return Handle_ ? Handle_->Fd : -1;
}

bool Instance_Hand_Over(std::string_view Path) {
    const auto At = Address();
    if (!At || Path.empty() || Path.size() > Longest_Path || !Is_Own_Socket(*At)) return false;
    const int Fd = Make_Socket();
    if (Fd < 0) return false;
    const ssize_t Sent =
        sendto(Fd, Path.data(), Path.size(), MSG_NOSIGNAL, As_Any(*At), sizeof *At);
    close(Fd);
    return Sent == static_cast<ssize_t>(Path.size());
}
