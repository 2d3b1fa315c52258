// qt/form_window.cpp - the windows that forms are shown in.
#include "qt/form_window.h"

#include <QCloseEvent>
#include <QDropEvent>
#include <QEventLoop>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLayout>
#include <QMimeData>
#include <QScreen>
#include <QUrl>
#include <QVBoxLayout>
#include <algorithm>

#include "qt/busy.h"
#include "qt/form_widget.h"
#include "qt/icons.h"
#include "qt/text.h"
#include "ui/form/form_events.h"

namespace {

constexpr QSize Usual_Size(1280, 860);

std::optional<std::string> Dropped_File(const QMimeData& Data) {
    const QList<QUrl> Urls = Data.urls();
    if (Urls.size() != 1 || !Urls.front().isLocalFile()) return std::nullopt;
    const QString Path = Urls.front().toLocalFile();
    return QFileInfo(Path).isFile() ? Path_Of_System(Path) : std::nullopt;
}

// Below the control, as far as the screen has room there.
void Put_Beside(QWidget& Window, const QWidget& Control) {
    Window.adjustSize();
    const QRect Screen = Control.screen()->availableGeometry();
    const QPoint Below = Control.mapToGlobal(QPoint(0, Control.height()));
    const QPoint Last = Screen.bottomRight() - QPoint(Window.width(), Window.height());
    Window.move(std::clamp(Below.x(), Screen.left(), std::max(Screen.left(), Last.x())),
                std::clamp(Below.y(), Screen.top(), std::max(Screen.top(), Last.y())));
}

}  // namespace

Form_Window::Form_Window(Form& F, QWidget* Parent, Qt::WindowFlags Flags)
    : QDialog(Parent, Flags), Shown_(new Form_Widget(F, this)) {
    auto* Whole = new QVBoxLayout(this);
    Whole->setContentsMargins(0, 0, 0, 0);
    Whole->addWidget(Shown_);
    setAcceptDrops(static_cast<bool>(F.On_Drop));
    Shown_->On_Title = [this, &F] { setWindowTitle(Qt_Text(F.Title())); };
    Shown_->On_Title();
}

void Form_Window::closeEvent(QCloseEvent* E) {
    Form& F = Shown_->The_Form();
    if (!F.Is_Closed()) Shown_->Do([](Form& G) { Form_User_Close(G); });
    E->setAccepted(F.Is_Closed());
}

// Enter and Escape have been seen by the form.
void Form_Window::keyPressEvent(QKeyEvent* E) {
    E->ignore();
}

void Form_Window::reject() {
    close();
}

void Form_Window::dragEnterEvent(QDragEnterEvent* E) {
    if (Dropped_File(*E->mimeData())) E->acceptProposedAction();
}

// Taken once the other program has been told that the drop is done: it waits for that.
void Form_Window::dropEvent(QDropEvent* E) {
    const auto Path = Dropped_File(*E->mimeData());
    if (!Path) return;
    E->acceptProposedAction();
    QMetaObject::invokeMethod(
        this,
        [this, Path = *Path] {
            Shown_->Do([&](Form& F) {
                if (F.On_Drop) F.On_Drop(Path);
            });
        },
        Qt::QueuedConnection);
}

Main_Window::Main_Window(Form& F)
    : Form_Window(F, nullptr,
                  Qt::Window | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint) {
    setObjectName(QStringLiteral("main_window"));
    setWindowIcon(Program_Icon());
    resize(Usual_Size.boundedTo(screen()->availableSize()));
}

void Run_Dialog(Form& F, QWidget* Parent) {
    if (F.Is_Closed()) return;
    Form_Window Window(F, Parent, Qt::Dialog);
    Window.setWindowModality(Qt::ApplicationModal);
    QEventLoop Loop;
    Window.Shown().On_Closed = [&Loop] { Loop.quit(); };
    Window.Shown().Take_Focus();
    const QString Beside = Qt_Text(F.Place.Control);
    if (const auto* Control = Parent ? Parent->findChild<QWidget*>(Beside) : nullptr;
        Control != nullptr && !Beside.isEmpty())
        Put_Beside(Window, *Control);
    Window.show();
    if (!F.Is_Closed()) Loop.exec();
}
