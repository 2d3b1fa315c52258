// platform/posix/process.cpp - programs that run to their end while this one waits.
#include "platform/process.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

#include "platform/posix/spawn.h"

namespace {

// Our standard output is read by other programs, so what a tool prints goes to standard error.
void Set_Up(Child_Files& Files) {
    Files.Open(STDIN_FILENO, "/dev/null", O_RDONLY);
    if (fcntl(STDERR_FILENO, F_GETFD) != -1)
        Files.Copy(STDERR_FILENO, STDOUT_FILENO);
    else
        Files.Open(STDOUT_FILENO, "/dev/null", O_WRONLY);
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
    Child_Files Files;
    Set_Up(Files);
    const std::optional<pid_t> Child = Spawn(*S, Files);
    if (!Child) return false;
    Wait_For(*Child);
    return true;
}
