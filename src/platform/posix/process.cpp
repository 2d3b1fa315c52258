// platform/posix/process.cpp - programs of this system, and Windows programs through wine.
#include "platform/process.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <fstream>
#include <string>
#include <system_error>
#include <vector>

#include "platform/paths.h"
#include "platform/posix/command_line.h"
#include "platform/posix/user_dirs.h"
#include "platform/text1252.h"

extern char** environ;

namespace fs = std::filesystem;

namespace {

bool Is_Windows_Program(const fs::path& Program) {
    std::ifstream In(Program, std::ios::binary);
    char Magic[2] = {};
    return In.read(Magic, 2) && Magic[0] == 'M' && Magic[1] == 'Z';
}

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

// The words of a start: the file that runs, then what it gets.
struct Start {
    fs::path File;
    std::vector<std::string> Words;
};

std::optional<Start> Start_Of(const Command& C) {
    if (!Is_Windows_Program(C.Program)) {
        Start S{C.Program, {C.Program.native()}};
        for (const std::string& Arg : C.Args) S.Words.push_back(Native_Argument(Arg));
        return S;
    }
    const std::optional<fs::path> Wine = Find_In_Path("wine");
    if (!Wine) return std::nullopt;
    Start S{*Wine, {Wine->native(), Wine_Program(C)}};
    for (const std::string& Arg : C.Args) S.Words.push_back(Wine_Argument(Arg));
    return S;
}

// What a child finds open, and its signals. Our standard output is read by other programs, so
// what a tool prints goes to standard error. A signal that is ignored here stays ignored in a
// child, and a tool that waits for children of its own relies on SIGCHLD.
class Child_Setup {
public:
    Child_Setup() {
        posix_spawn_file_actions_init(&Files);
        posix_spawnattr_init(&Attributes);
        posix_spawn_file_actions_addopen(&Files, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
        if (fcntl(STDERR_FILENO, F_GETFD) != -1)
            posix_spawn_file_actions_adddup2(&Files, STDERR_FILENO, STDOUT_FILENO);
        else
            posix_spawn_file_actions_addopen(&Files, STDOUT_FILENO, "/dev/null", O_WRONLY, 0);
        sigset_t Normal, Blocked;
        sigemptyset(&Blocked);
        sigemptyset(&Normal);
        sigaddset(&Normal, SIGCHLD);
        sigaddset(&Normal, SIGPIPE);
        posix_spawnattr_setsigdefault(&Attributes, &Normal);
        posix_spawnattr_setsigmask(&Attributes, &Blocked);
        posix_spawnattr_setflags(&Attributes, POSIX_SPAWN_SETSIGDEF | POSIX_SPAWN_SETSIGMASK);
    }
    ~Child_Setup() {
        posix_spawnattr_destroy(&Attributes);
        posix_spawn_file_actions_destroy(&Files);
    }
    Child_Setup(const Child_Setup&) = delete;
    Child_Setup& operator=(const Child_Setup&) = delete;

    posix_spawn_file_actions_t Files;
    posix_spawnattr_t Attributes;
};

std::optional<pid_t> Spawn(Start& S) {
    std::vector<char*> Words;
    Words.reserve(S.Words.size() + 1);
    for (std::string& Word : S.Words) Words.push_back(Word.data());
    Words.push_back(nullptr);
    const Child_Setup Setup;
    pid_t Child = 0;
    const int Error =
        posix_spawn(&Child, S.File.c_str(), &Setup.Files, &Setup.Attributes, Words.data(), environ);
    if (Error != 0) return std::nullopt;
    return Child;
}

// Where SIGCHLD is ignored, or somebody else takes the child's status, waitpid fails in the end,
// but not before the child has ended.
void Wait_For(pid_t Child) {
    int Status = 0;
    while (waitpid(Child, &Status, 0) < 0 && errno == EINTR) continue;
}

}  // namespace

bool Process_Run(std::string_view Cmd_Line, bool) {
    const std::optional<Command> C = Parse_Command(Cmd_Line);
    if (!C) return false;
    std::optional<Start> S = Start_Of(*C);
    if (!S) return false;
    const std::optional<pid_t> Child = Spawn(*S);
    if (!Child) return false;
    Wait_For(*Child);
    return true;
}
