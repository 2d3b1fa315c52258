// platform/posix/line_process.h - a program kept running, which answers a line with a line.
#pragma once

#include <sys/types.h>

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

class Line_Process {
public:
    Line_Process() = default;
    ~Line_Process() { Stop(); }
    Line_Process(const Line_Process&) = delete;
    Line_Process& operator=(const Line_Process&) = delete;

    /// Starts it as Process_Run does (process.h), without waiting for anything. A Windows program
    /// needs a Wine prefix that exists: making one would take minutes. False when it could not be
    /// started. One that runs already is stopped first.
    bool Start(std::string_view Cmd_Line);
    bool Is_Running() const { return Child_ > 0; }

    /// Hands it Line and gives back its next line, without its end. When that does not come within
    /// Limit, or the program has ended, it is stopped, and there is nothing.
    std::optional<std::string> Ask(std::string_view Line, std::chrono::milliseconds Limit);

    /// Ends its input, which is to end it; a moment later it is killed. No time at all is left to
    /// one that owes an answer.
    void Stop();

private:
    bool Write(std::string_view Text);
    std::optional<std::string> Read_Line(std::chrono::milliseconds Limit);
    bool Has_Ended();

    pid_t Child_ = 0;
    int To_Child_ = -1;
    int From_Child_ = -1;
    bool Owes_ = false;  // an answer is out
};
