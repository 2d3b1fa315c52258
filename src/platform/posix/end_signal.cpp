// platform/posix/end_signal.cpp - SIGTERM, SIGINT and SIGHUP through a pipe.
#include "platform/end_signal.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>

namespace {

std::array<int, 2> Pipe{-1, -1};
volatile std::sig_atomic_t Came = 0;

void Note(int Signal) {
    const int Kept = errno;
    Came = Signal;
    const char Byte = 0;
    [[maybe_unused]] const ssize_t Written = write(Pipe[1], &Byte, 1);
    errno = Kept;
}

}  // namespace

std::intptr_t End_Signals_Catch() {
    if (Pipe[0] < 0 && pipe2(Pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) return -1;
    struct sigaction Way {};
    Way.sa_handler = Note;
    Way.sa_flags = SA_RESTART;
    sigemptyset(&Way.sa_mask);
    for (const int Signal : {SIGTERM, SIGINT, SIGHUP}) {
        struct sigaction Former {};
        // What a parent has the program ignore stays ignored.
        if (sigaction(Signal, nullptr, &Former) == 0 && Former.sa_handler != SIG_IGN)
            sigaction(Signal, &Way, nullptr);
    }
    return Pipe[0];
}

int End_Signal_Status() {
    return Came == 0 ? 0 : 128 + Came;
}
