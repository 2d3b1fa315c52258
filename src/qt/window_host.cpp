// qt/window_host.cpp - the program's host with a window.
#include "qt/window_host.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QEventLoop>
#include <QScreen>
#include <QTimer>
#include <QUrl>
#include <atomic>
#include <cstdio>
#include <string>
#include <thread>

#include "core/program.h"
#include "core/settings.h"
#include "platform/paths.h"
#include "platform/text1252.h"
#include "qt/boxes.h"
#include "qt/busy.h"
#include "qt/form_widget.h"
#include "qt/form_window.h"
#include "qt/text.h"
#include "ui/frm/frm.h"
#include "ui/frm/generate.h"

namespace {

// Often enough to look alive, seldom enough to cost nothing.
constexpr int Refresh_Ms = 30;
constexpr int Clock_Ms = 250;

constexpr char Last_Dir_Key[] = "LastDir";

// What is in front: a dialog, or else the main window.
QWidget* Front(Form_Window* Main) {
    QWidget* Modal = QApplication::activeModalWidget();
    return Modal != nullptr ? Modal : Main;
}

// The hourglass would stay above a box that waits for the user.
class Plain_Pointer {
public:
    Plain_Pointer() : Was_Busy_(QApplication::overrideCursor() != nullptr) {
        if (Was_Busy_) QApplication::setOverrideCursor(Qt::ArrowCursor);
    }
    ~Plain_Pointer() {
        if (Was_Busy_) QApplication::restoreOverrideCursor();
    }
    Plain_Pointer(const Plain_Pointer&) = delete;
    Plain_Pointer& operator=(const Plain_Pointer&) = delete;

private:
    bool Was_Busy_;
};

}  // namespace

void Window_Host::Set_Window(Form_Window* Main) {
    Main_ = Main;
    Since_Refresh_.start();
}

void Window_Host::Bring_Up_To_Date() {
    if (Main_ == nullptr) return;
    Generate_Clock();
    Main_->Shown().Flush();
}

Int Window_Host::Show_Box(const Box& B) {
    if (Tells_Error_Stream_ && B.Style % 16 == Box_Ok)
        std::fprintf(stderr, "terrafold: %s\n", To_Utf8(As_One_Line(B.Text)).c_str());
    Bring_Up_To_Date();
    const Plain_Pointer Pointer;
    const Busy_Pause Answered;
    return Show_Message_Box(B, Front(Main_));
}

std::optional<std::string> Window_Host::Ask_File(const File_Question& Q) {
    Bring_Up_To_Date();
    const Plain_Pointer Pointer;
    const bool Anywhere = Q.Start_Dir.empty() || Q.Start_Dir == App_Path;
    const bool In_Home = !Anywhere && Q.Start_Dir.starts_with(App_Path + "\\");
    const std::string Last = Setting_Get(Last_Dir_Key);
    File_Question Asked = Q;
    if (Anywhere && !Last.empty()) Asked.Start_Dir = Last;
    auto Path = Ask_For_File(Asked, Front(Main_));
    if (Path && !In_Home && Path_Dir(*Path) != Last) Setting_Put(Last_Dir_Key, Path_Dir(*Path));
    return Path;
}

Form_End Window_Host::Run_Form(std::string_view Form) {
    return Form_Run(Form, *this);
}

// Later still while the program works.
void Window_Host::Open_Form(std::string_view Form, Int Delay_Ms) {
    if (Main_ == nullptr) return;
    QTimer::singleShot(Delay_Ms, Main_, [this, Name = std::string(Form)] {
        if (Busy::Is_On())
            Open_Form(Name, Refresh_Ms);
        else
            Form_Open(Name, *this);
    });
}

void Window_Host::Run_Modal(Form& F) {
    Bring_Up_To_Date();
    const Plain_Pointer Pointer;
    Run_Dialog(F, Front(Main_), Main_);
}

void Window_Host::Show_Open(std::shared_ptr<Form> F) {
    if (Main_ != nullptr) Open_Dialog(std::move(F), *Main_);
}

void Window_Host::Set_Caption(std::string_view Control, std::string_view Text) {
    Frm_Set_Caption(Control, Text);
}

void Window_Host::Set_Enabled(std::string_view Control, bool On) {
    Frm_Set_Enabled(Control, On);
}

void Window_Host::Set_Visible(std::string_view Control, bool On) {
    Frm_Set_Visible(Control, On);
}

void Window_Host::Set_Value(std::string_view Control, Long Value) {
    Frm_Set_Value(Control, Value);
}

void Window_Host::Set_Focus(std::string_view Control) {
    Frm_Set_Focus(Control);
}

// The canvas keeps its own shape under the hourglass, which is everywhere.
void Window_Host::Set_Pointer(Pointer_Shape Shape) {
    const bool Busy_Shape = Shape == Pointer_Shape::Hourglass;
    const bool Shows_It = QApplication::overrideCursor() != nullptr;
    if (Busy_Shape && !Shows_It) QApplication::setOverrideCursor(Qt::WaitCursor);
    if (!Busy_Shape && Shows_It) QApplication::restoreOverrideCursor();
}

void Window_Host::Refresh() {
    if (Main_ == nullptr || Since_Refresh_.elapsed() < Refresh_Ms) return;
    Bring_Up_To_Date();
    Process_Events_Busy();
    Since_Refresh_.restart();
}

void Window_Host::Turn() {
    if (Main_ == nullptr) return;
    Bring_Up_To_Date();
    Process_Events_Busy();
}

Display_Info Window_Host::Display() {
    const QScreen* Screen = QApplication::primaryScreen();
    const Int Bits = Screen != nullptr ? static_cast<Int>(Screen->depth()) : Int{0};
    return {.Bits_Per_Pixel = Bits, .Has_Raster = true};
}

bool Window_Host::Run_Tool(std::string_view Cmd_Line, Int Show_Mode) {
    Bring_Up_To_Date();
    const Busy Now;
    QEventLoop Loop;
    QTimer Clock;
    Clock.callOnTimeout([this] { Bring_Up_To_Date(); });
    Clock.start(Clock_Ms);
    bool Started = false;
    Tool_Runs_ = true;
    std::thread Worker([&, Line = std::string(Cmd_Line)] {
        Started = Silent_Host::Run_Tool(Line, Show_Mode);
        Tool_Runs_ = false;
        QMetaObject::invokeMethod(&Loop, &QEventLoop::quit, Qt::QueuedConnection);
    });
    Loop.exec();
    Worker.join();
    return Started;
}

bool Window_Host::End_Tool() {
    return Tool_Runs_ && Silent_Host::End_Tool();
}

void Window_Host::Show_Folder(std::string_view Dir) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(System_Path(Dir)));
}

void Window_Host::Copy_Text(std::string_view Text) {
    QApplication::clipboard()->setText(
        Qt_Text(Text).replace(QLatin1String("\r\n"), QLatin1String("\n")));
}
