// qt/program_window.h - the program with its window, from start to end.
#pragma once

#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "core/host.h"

class Form_Window;
class Window_Host;

/// The main form in its window, shown as soon as the program knows that it may run.
class Program_Window {
public:
    explicit Program_Window(Window_Host& Host);
    ~Program_Window();
    Program_Window(const Program_Window&) = delete;
    Program_Window& operator=(const Program_Window&) = delete;

    /// Starts the program. False when it must end at once.
    bool Start(std::string_view Command_Line, std::string_view App_Dir);
    Form_Window& Window() { return *Window_; }

private:
    struct Parts;
    Window_Host& Host_;
    std::unique_ptr<Parts> Parts_;
    Form_Window* Window_;
};

/// The whole run, with the words of the command line that name a project: 0, or 1 when it could not
/// start. Needs a QApplication.
int Program_Run(std::span<const std::string> Project);
