// qt/program_window.cpp - the program with its window, from start to end.
#include "qt/program_window.h"

#include <QApplication>
#include <cstdio>
#include <string>

#include "core/lifecycle.h"
#include "core/program.h"
#include "core/view_calls.h"
#include "platform/arguments.h"
#include "platform/program_dir.h"
#include "qt/boxes.h"
#include "qt/busy.h"
#include "qt/canvas_widget.h"
#include "qt/form_widget.h"
#include "qt/form_window.h"
#include "qt/window_host.h"
#include "ui/dialogs/dialogs.h"
#include "ui/frm/frm.h"

struct Program_Window::Parts {
    explicit Parts(Form& F) : Window(F) {}

    Main_Window Window;
    Surface_Scope On_Canvas{*Window.Shown().Canvas()};
};

namespace {

// The window comes up when its tool bar is laid out: a second instance has ended by then, and
// the first dialog or project is still to come.
void Show_When_Laid_Out(Form_Window& Window) {
    The_View.Window_Show = [&Window] {
        Window.show();
        Window.Shown().Take_Focus();
        Process_Events_Busy();
    };
}

}  // namespace

Program_Window::Program_Window(Window_Host& Host) : Host_(Host) {
    Forms_Install();
    Frm_Install();
    Parts_ = std::make_unique<Parts>(Frm());
    Window_ = &Parts_->Window;
    Host.Set_Window(Window_);
    Window_->Shown().On_Closed = [] { QCoreApplication::quit(); };
}

Program_Window::~Program_Window() = default;

bool Program_Window::Start(std::string_view Command_Line, std::string_view App_Dir) {
    Show_When_Laid_Out(*Window_);
    Host_.Tell_Error_Stream(!Command_Line.empty());
    const bool Started = Program_Start(Command_Line, App_Dir);
    Host_.Tell_Error_Stream(false);
    return Started;
}

namespace {

// With the quotes that a shell has taken off.
std::string Command_Line(std::span<const std::string> Project) {
    const auto Path = Path_Of_Words(Project);
    if (Path) return '"' + *Path + '"';
    if (!Project.empty())
        std::fprintf(stderr,
                     "terrafold: the path %s has characters that the program cannot write\n",
                     Project.front().c_str());
    return {};
}

}  // namespace

int Program_Run(std::span<const std::string> Project) {
    Program_Reset();
    Window_Host Host;
    const Host_Scope Scope(Host);
    const auto App_Dir = Find_App_Dir();
    if (App_Dir && !App_Dir_Can_Serve(*App_Dir)) {
        Plain_Box("No home of the program can have a quotation mark in its path:\r\n" + *App_Dir);
        return 1;
    }
    if (!App_Dir || !Prepare_App_Dir(*App_Dir)) {
        Plain_Box("No directory for resources and sources can be written");
        return 1;
    }
    Program_Window Program(Host);
    if (!Program.Start(Command_Line(Project), *App_Dir)) return 1;
    return QCoreApplication::exec();
}
