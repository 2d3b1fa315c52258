// qt/program_window.cpp - the program with its window, from start to end.
#include "qt/program_window.h"

#include <QApplication>
#include <QSocketNotifier>
#include <QTimer>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>

#include "core/lifecycle.h"
#include "core/program.h"
#include "core/view_calls.h"
#include "platform/arguments.h"
#include "platform/end_signal.h"
#include "platform/program_dir.h"
#include "platform/text1252.h"
#include "qt/boxes.h"
#include "qt/busy.h"
#include "qt/canvas_widget.h"
#include "qt/form_widget.h"
#include "qt/form_window.h"
#include "qt/qt_words.h"
#include "qt/window_host.h"
#include "ui/dialogs/dialogs.h"
#include "ui/frm/frm.h"

struct Program_Window::Parts {
    explicit Parts(Form& F) : Window(F) {}

    Qt_Words Words;
    Main_Window Window;
    Surface_Scope On_Canvas{*Window.Shown().Canvas()};
};

namespace {

// The window comes up when its tool bar is laid out: a second instance has ended by then, and
// the first dialog or project is still to come.
void Show_When_Laid_Out(Main_Window& Window) {
    The_View.Window_Show = [&Window] {
        Window.Take_Place();
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
    QCoreApplication::installTranslator(&Parts_->Words);
    Host.Set_Window(Window_);
    Window_->Shown().On_Closed = [this] {
        Keep_Place();
        QCoreApplication::quit();
    };
}

Program_Window::~Program_Window() = default;

void Program_Window::Keep_Place() const {
    Parts_->Window.Keep_Place();
}

Start_Outcome Program_Window::Start(std::string_view Command_Line, std::string_view App_Dir) {
    Show_When_Laid_Out(Parts_->Window);
    Host_.Tell_Error_Stream(!Command_Line.empty());
    const Start_Outcome Outcome = Program_Start(Command_Line, App_Dir);
    Host_.Tell_Error_Stream(false);
    return Outcome;
}

namespace {

// What is under way does not come to its end: dialogs are open, or the program works. So what it
// holds is tidied and nothing returns to it.
std::unique_ptr<QSocketNotifier> End_On_Signal(const Program_Window& Program) {
    const std::intptr_t Descriptor = End_Signals_Catch();
    if (Descriptor < 0) return nullptr;
    auto Coming = std::make_unique<QSocketNotifier>(Descriptor, QSocketNotifier::Read);
    QObject::connect(Coming.get(), &QSocketNotifier::activated, [&Program] {
        Program.Keep_Place();
        Program_End_Unasked();
        std::_Exit(End_Signal_Status());
    });
    return Coming;
}

// Projects that second starts hand over: the window comes to the front at once, and opens them
// when no dialog is up and no work is under way.
class Second_Starts {
public:
    explicit Second_Starts(Form_Window& Window) : Window_(Window) {
        const std::intptr_t Descriptor = Handed_Over_Descriptor();
        Later_.setInterval(Later_Ms);
        QObject::connect(&Later_, &QTimer::timeout, [this] { Look(); });
        if (Descriptor < 0) Later_.start();
        if (Descriptor < 0) return;
        Coming_ = std::make_unique<QSocketNotifier>(Descriptor, QSocketNotifier::Read);
        QObject::connect(Coming_.get(), &QSocketNotifier::activated, [this] { Look(); });
    }

private:
    static constexpr int Later_Ms = 300;

    void Look() {
        while (auto Path = Handed_Over_Project()) {
            Waiting_ = std::move(*Path);
            Raise();
        }
        const bool Waits =
            !Waiting_.empty() && (Busy::Is_On() || QApplication::activeModalWidget() != nullptr);
        if (Coming_) Waits ? Later_.start() : Later_.stop();
        if (!Waits && !Waiting_.empty()) Window_.Take_File(std::exchange(Waiting_, {}));
    }
    void Raise() {
        if (Window_.isMinimized()) Window_.showNormal();
        Window_.raise();
        Window_.activateWindow();
        QApplication::alert(&Window_);
    }

    Form_Window& Window_;
    std::string Waiting_;
    std::unique_ptr<QSocketNotifier> Coming_;
    QTimer Later_;
};

// With the quotes that a shell has taken off.
std::string Command_Line(std::span<const std::string> Project) {
    const auto Path = Path_Of_Words(Project);
    if (Path) return '"' + *Path + '"';
    if (!Project.empty())
        std::fprintf(stderr,
                     "terrafold: the path %s has characters that the program cannot write\n",
                     To_Utf8(As_One_Line(From_Utf8_Loose(Project.front()))).c_str());
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
    const auto Ending = End_On_Signal(Program);
    const Start_Outcome Outcome = Program.Start(Command_Line(Project), *App_Dir);
    if (Outcome != Start_Outcome::Started) return Outcome == Start_Outcome::Handed_Over ? 0 : 1;
    const Second_Starts Following(Program.Window());
    return QCoreApplication::exec();
}
