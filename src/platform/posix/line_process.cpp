// platform/posix/line_process.cpp - two pipes, and patience with a limit.
#include "platform/posix/line_process.h"

#include <fcntl.h>
#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <thread>
#include <utility>

#include "platform/posix/spawn.h"
#include "platform/posix/user_dirs.h"

namespace {

using Clock = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr std::size_t Longest_Line = 4096;
constexpr milliseconds Moment{100};  // for its end, once its input has ended

// A pipe whose ends no other child gets.
class Pipe {
public:
    Pipe() {
        if (pipe2(End_.data(), O_CLOEXEC) != 0) End_ = {-1, -1};
    }
    ~Pipe() {
        for (const int E : End_)
            if (E >= 0) close(E);
    }
    Pipe(const Pipe&) = delete;
    Pipe& operator=(const Pipe&) = delete;

    bool Is_Open() const { return End_[0] >= 0; }
    int Reading() const { return End_[0]; }
    int Writing() const { return End_[1]; }
    int Take_Reading() { return std::exchange(End_[0], -1); }
    int Take_Writing() { return std::exchange(End_[1], -1); }

private:
    std::array<int, 2> End_{-1, -1};
};

// Writing to a program that has ended must be a failure, not the end of this one.
class No_Sigpipe {
public:
    No_Sigpipe() {
        sigemptyset(&Pipe_);
        sigaddset(&Pipe_, SIGPIPE);
        pthread_sigmask(SIG_BLOCK, &Pipe_, &Former_);
    }
    ~No_Sigpipe() {
        constexpr timespec At_Once{};
        if (sigismember(&Former_, SIGPIPE) == 0) sigtimedwait(&Pipe_, nullptr, &At_Once);
        pthread_sigmask(SIG_SETMASK, &Former_, nullptr);
    }
    No_Sigpipe(const No_Sigpipe&) = delete;
    No_Sigpipe& operator=(const No_Sigpipe&) = delete;

private:
    sigset_t Pipe_;
    sigset_t Former_;
};

// Whether something can be read within what is left of the time.
bool Readable(int File, Clock::time_point End) {
    for (;;) {
        const auto Left = std::chrono::ceil<milliseconds>(End - Clock::now());
        pollfd Wanted{.fd = File, .events = POLLIN, .revents = 0};
        const int Nb = poll(&Wanted, 1, static_cast<int>(std::max<long long>(Left.count(), 0)));
        if (Nb >= 0 || errno != EINTR) return Nb > 0;
    }
}

}  // namespace

bool Line_Process::Start(std::string_view Cmd_Line) {
    Stop();
    const std::optional<Command> C = Parse_Command(Cmd_Line);
    if (!C || (Needs_Wine(*C) && !Wine_Drive('c'))) return false;
    std::optional<::Start> S = Start_Of(*C);
    Pipe In, Out;
    if (!S || !In.Is_Open() || !Out.Is_Open()) return false;
    Child_Files Files;
    Files.Copy(In.Reading(), STDIN_FILENO);
    Files.Copy(Out.Writing(), STDOUT_FILENO);
    Files.Open(STDERR_FILENO, "/dev/null", O_WRONLY);
    const std::optional<pid_t> Child = Spawn(*S, Files, true);
    if (!Child) return false;
    Child_ = *Child;
    To_Child_ = In.Take_Writing();
    From_Child_ = Out.Take_Reading();
    fcntl(To_Child_, F_SETFL, O_NONBLOCK);  // one that does not read must not stop us
    return true;
}

bool Line_Process::Write(std::string_view Text) {
    const No_Sigpipe Guard;
    ssize_t Nb = 0;
    do Nb = write(To_Child_, Text.data(), Text.size());
    while (Nb < 0 && errno == EINTR);
    return Nb == static_cast<ssize_t>(Text.size());
}

std::optional<std::string> Line_Process::Read_Line(milliseconds Limit) {
    const auto End = Clock::now() + Limit;
    std::string Line;
    while (Line.size() < Longest_Line && Readable(From_Child_, End)) {
        std::array<char, 512> Bytes;
        const ssize_t Nb = read(From_Child_, Bytes.data(), Bytes.size());
        if (Nb < 0 && errno == EINTR) continue;
        if (Nb <= 0) return {};
        Line.append(Bytes.data(), static_cast<std::size_t>(Nb));
        // It answers one line at a time, so nothing stands behind the end of one.
        if (!Line.ends_with('\n')) continue;
        Line.pop_back();
        if (Line.ends_with('\r')) Line.pop_back();
        return Line;
    }
    return {};
}

std::optional<std::string> Line_Process::Ask(std::string_view Line, milliseconds Limit) {
    if (!Is_Running()) return {};
    Owes_ = true;
    std::optional<std::string> Answer;
    if (Write(std::string(Line) + '\n')) Answer = Read_Line(Limit);
    if (Answer)
        Owes_ = false;
    else
        Stop();
    return Answer;
}

bool Line_Process::Has_Ended() {
    siginfo_t Info{};
    const int Error = waitid(P_PID, static_cast<id_t>(Child_), &Info, WEXITED | WNOHANG | WNOWAIT);
    return Error != 0 ? errno != EINTR : Info.si_pid == Child_;
}

void Line_Process::Stop() {
    if (!Is_Running()) return;
    close(To_Child_);
    close(From_Child_);
    const auto End = Clock::now() + (Owes_ ? milliseconds(0) : Moment);
    while (!Has_Ended() && Clock::now() < End) std::this_thread::sleep_for(milliseconds(2));
    kill(-Child_, SIGKILL);  // what it may have started goes with it
    int Status = 0;
    while (waitpid(Child_, &Status, 0) < 0 && errno == EINTR) continue;
    Child_ = 0;
    Owes_ = false;
}
