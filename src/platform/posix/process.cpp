// platform/posix/process.cpp - programs that run to their end while this one waits.
#include "platform/process.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>

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

// The head of the group of processes that is running, or 0. A handler of signals reads it.
std::atomic<pid_t> Running{0};
static_assert(std::atomic<pid_t>::is_always_lock_free);

constexpr std::array Ending_Signals{SIGTERM, SIGINT, SIGHUP};
std::array<struct sigaction, Ending_Signals.size()> Former_Actions;

// Then the signal does what it did before.
void End_With_Program(int Signal) {
    const int Error = errno;
    Process_End_Running();
    for (std::size_t I = 0; I < Ending_Signals.size(); ++I)
        if (Ending_Signals[I] == Signal) sigaction(Signal, &Former_Actions[I], nullptr);
    raise(Signal);  // comes when this handler has returned
    errno = Error;
}

// While one of these lives a signal that ends the program ends its child, too. One that is
// ignored stays so. They are held back from the start of the child until its number is known.
class Signals_Passed_On {
public:
    Signals_Passed_On() {
        sigset_t Signals;
        sigemptyset(&Signals);
        for (const int S : Ending_Signals) sigaddset(&Signals, S);
        pthread_sigmask(SIG_BLOCK, &Signals, &Former_Mask_);
        struct sigaction Passing {};
        Passing.sa_handler = End_With_Program;
        sigfillset(&Passing.sa_mask);
        for (std::size_t I = 0; I < Ending_Signals.size(); ++I) {
            sigaction(Ending_Signals[I], nullptr, &Former_Actions[I]);
            if (Former_Actions[I].sa_handler != SIG_IGN)
                sigaction(Ending_Signals[I], &Passing, nullptr);
        }
    }
    ~Signals_Passed_On() {
        for (std::size_t I = 0; I < Ending_Signals.size(); ++I)
            sigaction(Ending_Signals[I], &Former_Actions[I], nullptr);
        Let_In();
    }
    Signals_Passed_On(const Signals_Passed_On&) = delete;
    Signals_Passed_On& operator=(const Signals_Passed_On&) = delete;

    void Let_In() const { pthread_sigmask(SIG_SETMASK, &Former_Mask_, nullptr); }

private:
    sigset_t Former_Mask_{};
};

// Where SIGCHLD is ignored, or somebody else takes the child's status, waiting fails in the end,
// but not before the child has ended. Its number is its own until its status is taken.
void Wait_For(pid_t Child) {
    siginfo_t Info{};
    while (waitid(P_PID, static_cast<id_t>(Child), &Info, WEXITED | WNOWAIT) < 0 && errno == EINTR)
        continue;
    Running = 0;
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
    const Signals_Passed_On Passed_On;
    const std::optional<pid_t> Child = Spawn(*S, Files, true);
    if (!Child) return false;
    Running = *Child;
    Passed_On.Let_In();
    Wait_For(*Child);
    return true;
}

bool Process_Can_Start(std::string_view Program) {
    const std::optional<Command> C = Parse_Command("\"" + std::string(Program) + "\"");
    const std::optional<Start> S = C ? Start_Of(*C) : std::nullopt;
    return S && access(S->File.c_str(), X_OK) == 0;
}

void Process_End_Running() {
    if (const pid_t Child = Running; Child > 0) kill(-Child, SIGKILL);
}
