// platform/posix/spawn.cpp - what a child is and how it begins.
#include "platform/posix/spawn.h"

#include <algorithm>
#include <csignal>
#include <fstream>
#include <system_error>

#include "platform/paths.h"
#include "platform/posix/user_dirs.h"
#include "platform/text1252.h"

extern char** environ;

namespace fs = std::filesystem;

namespace {

bool Starts_At_Root(std::string_view Path) {
    return Path.starts_with('\\');
}

bool Starts_At_Drive(std::string_view Path) {
    return Begins_With_Drive(Path) && Path.substr(2).starts_with('\\');
}

// An argument as a program of this system understands it.
std::string Native_Argument(const std::string& Arg) {
    if (Starts_At_Root(Arg) || Starts_At_Drive(Arg))
        if (const auto Native = Native_Path(Arg)) return Native->native();
    return To_Utf8(Arg);
}

// An argument as a program under wine understands it: there the root of this system is "Z:".
std::string Wine_Argument(const std::string& Arg) {
    const bool Share = Arg.starts_with("\\\\");
    return To_Utf8(Starts_At_Root(Arg) && !Share ? "Z:" + Arg : Arg);
}

std::string Wine_Program(const Command& C) {
    if (Starts_At_Drive(C.Name)) return Wine_Argument(C.Name);
    std::error_code Error;
    std::string Path = "Z:" + fs::absolute(C.Program, Error).native();
    std::replace(Path.begin(), Path.end(), '/', '\\');
    return Path;
}

// A signal that is ignored here stays ignored in a child, and a tool that waits for children of
// its own relies on SIGCHLD.
class Child_Attributes {
public:
    explicit Child_Attributes(bool Own_Group) {
        posix_spawnattr_init(&Attributes);
        sigset_t Normal, Blocked;
        sigemptyset(&Blocked);
        sigemptyset(&Normal);
        sigaddset(&Normal, SIGCHLD);
        sigaddset(&Normal, SIGPIPE);
        posix_spawnattr_setsigdefault(&Attributes, &Normal);
        posix_spawnattr_setsigmask(&Attributes, &Blocked);
        int Flags = POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK;
        if (Own_Group) Flags |= POSIX_SPAWN_SETPGROUP;
        posix_spawnattr_setflags(&Attributes, static_cast<short>(Flags));
    }
    ~Child_Attributes() { posix_spawnattr_destroy(&Attributes); }
    Child_Attributes(const Child_Attributes&) = delete;
    Child_Attributes& operator=(const Child_Attributes&) = delete;

    posix_spawnattr_t Attributes;
};

}  // namespace

bool Needs_Wine(const Command& C) {
    std::ifstream In(C.Program, std::ios::binary);
    char Magic[2] = {};
    return In.read(Magic, 2) && Magic[0] == 'M' && Magic[1] == 'Z';
}

std::optional<Start> Start_Of(const Command& C) {
    if (!Needs_Wine(C)) {
        Start S{C.Program, {C.Program.native()}};
        for (const std::string& Arg : C.Args) S.Words.push_back(Native_Argument(Arg));
        return S;
    }
    std::optional<fs::path> Wine = Find_In_Path("wine");
    if (!Wine) Wine = Find_In_Path("wine64");
    if (!Wine) return std::nullopt;
    Start S{*Wine, {Wine->native(), Wine_Program(C)}};
    for (const std::string& Arg : C.Args) S.Words.push_back(Wine_Argument(Arg));
    return S;
}

std::optional<pid_t> Spawn(Start& S, const Child_Files& Files, bool Own_Group) {
    std::vector<char*> Words;
    Words.reserve(S.Words.size() + 1);
    for (std::string& Word : S.Words) Words.push_back(Word.data());
    Words.push_back(nullptr);
    const Child_Attributes Setup(Own_Group);
    pid_t Child = 0;
    const int Error = posix_spawn(&Child, S.File.c_str(), &Files.Actions(), &Setup.Attributes,
                                  Words.data(), environ);
    if (Error != 0) return std::nullopt;
    return Child;
}
