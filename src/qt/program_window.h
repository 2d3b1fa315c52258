// qt/program_window.h - the program with its window, from start to end.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "core/host.h"
#include "core/lifecycle.h"

class Form_Window;
class Window_Host;

/// The main form in its window, shown as soon as the program knows that it may run.
class Program_Window {
public:
    explicit Program_Window(Window_Host& Host);
    ~Program_Window();
    Program_Window(const Program_Window&) = delete;
    Program_Window& operator=(const Program_Window&) = delete;

    /// Starts the program, which must end at once unless it has started.
    Start_Outcome Start(std::string_view Command_Line, std::string_view App_Dir);
    /// Keeps where the window is for the next start.
    void Keep_Place() const;
    Form_Window& Window() { return *Window_; }

private:
    struct Parts;
    Window_Host& Host_;
    std::unique_ptr<Parts> Parts_;
    Form_Window* Window_;
};

/// The whole run, with the words of the command line that name a project: 0, 1 when it could not
/// start, or what tells of the signal that has ended it. Needs a QApplication.
int Program_Run(std::span<const std::string> Project);
