// tests/faults/faults.cpp - a system that fails, for a program that it is preloaded into.
//
// The calls that change files or start programs are counted from 1. At the one that FAULT_AT
// names the program is killed, or the call fails: FAULT_HOW is "kill" or the number of an error.
// FAULT_COUNT names a file that tells how many there were. What the program starts is spared.
#include <dlfcn.h>
#include <fcntl.h>
#include <spawn.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace {

long Calls = 0;

long Number(const char* Name) {
    const char* Text = std::getenv(Name);
    return Text == nullptr ? 0 : std::atol(Text);
}

// Whether this call fails.
bool Fails() {
    static const long At = Number("FAULT_AT"), Error = Number("FAULT_HOW");
    if (++Calls != At) return false;
    if (Error == 0) kill(getpid(), SIGKILL);
    errno = static_cast<int>(Error);
    return true;
}

struct Whole_Run {
    Whole_Run() { unsetenv("LD_PRELOAD"); }
    ~Whole_Run() {
        const char* Path = std::getenv("FAULT_COUNT");
        std::FILE* Out = Path == nullptr ? nullptr : std::fopen(Path, "w");
        if (Out == nullptr) return;
        std::fprintf(Out, "%ld\n", Calls);
        std::fclose(Out);
    }
};
const Whole_Run The_Run;

template <typename F, typename... Values>
auto Call(const char* Name, F*, Values... V) {
    static F* const System = reinterpret_cast<F*>(dlsym(RTLD_NEXT, Name));
    return Fails() ? decltype(System(V...))(-1) : System(V...);
}

}  // namespace

extern "C" {
int open(const char* Path, int Flags, ...) {
    using Opening = int(const char*, int, unsigned);
    static Opening* const System = reinterpret_cast<Opening*>(dlsym(RTLD_NEXT, "open"));
    if ((Flags & O_ACCMODE) != O_RDONLY && Fails()) return -1;
    return System(Path, Flags, 0666);
}
ssize_t write(int File, const void* Bytes, size_t Size) {
    return Call("write", &write, File, Bytes, Size);
}
int fsync(int File) {
    return Call("fsync", &fsync, File);
}
int flock(int File, int How) noexcept {
    return Call("flock", &flock, File, How);
}
int fchmod(int File, mode_t Mode) noexcept {
    return Call("fchmod", &fchmod, File, Mode);
}
int rename(const char* From, const char* To) noexcept {
    return Call("rename", &rename, From, To);
}
int remove(const char* Path) noexcept {
    return Call("remove", &remove, Path);
}
int mkdir(const char* Path, mode_t Mode) noexcept {
    return Call("mkdir", &mkdir, Path, Mode);
}
int posix_spawn(pid_t* Child, const char* Path, const posix_spawn_file_actions_t* Files,
                const posix_spawnattr_t* Attributes, char* const* Words, char* const* Environment) {
    using Starting = decltype(posix_spawn);
    static auto* const System = reinterpret_cast<Starting*>(dlsym(RTLD_NEXT, "posix_spawn"));
    if (Fails()) return errno;
    return System(Child, Path, Files, Attributes, Words, Environment);
}
}
