// qt/form_window.cpp - the windows that forms are shown in.
#include "qt/form_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QEventLoop>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLayout>
#include <QMimeData>
#include <QScreen>
#include <QScrollArea>
#include <QStyle>
#include <QUrl>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>
#include <optional>

#include "core/settings.h"
#include "qt/busy.h"
#include "qt/canvas_widget.h"
#include "qt/form_widget.h"
#include "qt/icons.h"
#include "qt/text.h"
#include "ui/form/form_events.h"

namespace {

constexpr QSize Usual_Size(1280, 860);
constexpr QSize Frame_Size(16, 48);  // room for what the desktop puts round a window

std::optional<std::string> Dropped_File(const QMimeData& Data) {
    const QList<QUrl> Urls = Data.urls();
    if (Urls.size() != 1 || !Urls.front().isLocalFile()) return std::nullopt;
    const QString Path = Urls.front().toLocalFile();
    return QFileInfo(Path).isFile() ? Path_Of_System(Path) : std::nullopt;
}

// As far as the screen has room there.
void Move_To(QWidget& Window, QPoint Wanted) {
    const QScreen* Screen = QGuiApplication::screenAt(Wanted);
    const QRect Room = (Screen != nullptr ? Screen : Window.screen())->availableGeometry();
    const QPoint Last = Room.bottomRight() - QPoint(Window.width(), Window.height());
    Window.move(std::clamp(Wanted.x(), Room.left(), std::max(Room.left(), Last.x())),
                std::clamp(Wanted.y(), Room.top(), std::max(Room.top(), Last.y())));
}

// Along one axis of the canvas: behind the point, or before it where it would pass the edge.
int Beside(Long Point, int Size, int Room) {
    const int Behind = static_cast<int>(Point) + 5;
    return Behind + Size > Room ? static_cast<int>(Point) - (Size + 4) - 5 : Behind;
}

void Put(QWidget& Window, const Form_Place& Place, Form_Window* Main) {
    Window.adjustSize();
    if (Place.What == Form_Place::Kind::At)
        return Window.move(static_cast<int>(Place.X), static_cast<int>(Place.Y));
    if (Main == nullptr) return;
    if (Place.What == Form_Place::Kind::Below)
        if (const QWidget* Control = Main->Shown().Widget_Of(Place.Control))
            Move_To(Window, Control->mapToGlobal(QPoint(0, Control->height())));
    if (Place.What == Form_Place::Kind::Beside_Point)
        if (const QWidget* Canvas = Main->Shown().Canvas())
            Move_To(Window, Canvas->mapToGlobal(
                                QPoint(Beside(Place.X, Window.width(), Canvas->width()),
                                       Beside(Place.Y, Window.height(), Canvas->height()))));
}

// While it lives a press outside its window closes the form, and nothing else hears of it.
class Click_Elsewhere final : public QObject {
public:
    explicit Click_Elsewhere(Form_Window& Window) : Window_(Window) {
        QCoreApplication::instance()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* Watched, QEvent* E) override {
        const auto* Widget = qobject_cast<QWidget*>(Watched);
        if (Widget == nullptr || Widget->window() == &Window_ || Is_Below_A_Box()) return false;
        switch (E->type()) {
            case QEvent::MouseButtonPress:
                Window_.close();
                return true;
            case QEvent::MouseButtonRelease:
            case QEvent::MouseButtonDblClick:
            case QEvent::MouseMove:
            case QEvent::Wheel:
            case QEvent::Close:
                if (E->type() == QEvent::Close) E->ignore();
                return true;
            default:
                return false;
        }
    }

private:
    static bool Is_Below_A_Box() { return QApplication::activeModalWidget() != nullptr; }

    Form_Window& Window_;
};

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

void Form_Window::Fit_Screen() {
    const QWidget* Beside = parentWidget() != nullptr ? parentWidget() : this;
    const QSize Room = Beside->screen()->availableSize() - Frame_Size;
    const QSize Wanted = sizeHint();
    if (Wanted.boundedTo(Room) == Wanted) return;
    auto* Scrolled = new QScrollArea;
    Scrolled->setFrameShape(QFrame::NoFrame);
    Scrolled->setWidgetResizable(true);
    layout()->removeWidget(Shown_);
    Scrolled->setWidget(Shown_);
    layout()->addWidget(Scrolled);
    const int Bar = 2 * style()->pixelMetric(QStyle::PM_ScrollBarExtent);  // and what is round it
    resize((Wanted + QSize(Bar, Bar)).boundedTo(Room));
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
        this, [this, Path = *Path] { Take_File(Path); }, Qt::QueuedConnection);
}

void Form_Window::Take_File(const std::string& Path) {
    Shown_->Do([&](Form& F) {
        if (F.On_Drop) F.On_Drop(Path);
    });
}

Main_Window::Main_Window(Form& F)
    : Form_Window(F, nullptr,
                  Qt::Window | Qt::WindowMinMaxButtonsHint | Qt::WindowCloseButtonHint) {
    setObjectName(QStringLiteral("main_window"));
    setWindowIcon(Program_Icon());
    resize(Usual_Size.boundedTo(screen()->availableSize() - Frame_Size));
}

constexpr char Place_Key[] = "Window";

// Qt sees to it that the window lies on a screen that is there.
void Main_Window::Take_Place() {
    const std::string Kept = Setting_Get(Place_Key);
    if (!Kept.empty()) restoreGeometry(QByteArray::fromHex(QByteArray::fromStdString(Kept)));
}

void Main_Window::Keep_Place() const {
    const std::string Now = saveGeometry().toHex().toStdString();
    if (Now != Setting_Get(Place_Key)) Setting_Put(Place_Key, Now);
}

// A window without a frame is not modal to Qt, which would keep clicks elsewhere to itself.
void Run_Dialog(Form& F, QWidget* Parent, Form_Window* Main) {
    if (F.Is_Closed()) return;
    const bool Frameless = F.Frameless;
    Form_Window Window(F, Parent, Frameless ? Qt::Dialog | Qt::FramelessWindowHint : Qt::Dialog);
    std::optional<Click_Elsewhere> Elsewhere;
    if (Frameless)
        Elsewhere.emplace(Window);
    else
        Window.setWindowModality(Qt::ApplicationModal);
    QEventLoop Loop;
    Window.Shown().On_Closed = [&Loop] { Loop.quit(); };
    if (!Frameless) Window.Fit_Screen();
    Window.Shown().Take_Focus();
    if (F.Place.What != Form_Place::Kind::Centred) Put(Window, F.Place, Main);
    Window.show();
    if (Frameless) Window.activateWindow();
    if (!F.Is_Closed()) Loop.exec();
}

// What is called when the form is closed lives as long as its widgets, and keeps the form.
void Open_Dialog(std::shared_ptr<Form> F, Form_Window& Main) {
    auto* Window = new Form_Window(*F, &Main, Qt::Dialog);
    Form_Widget& Shown = Window->Shown();
    Shown.On_Closed = [Window, F] {
        Window->hide();
        Window->deleteLater();
    };
    Shown.On_Above_Main = [Window, &Main](bool On) {
        Window->windowHandle()->setTransientParent(On ? Main.windowHandle() : nullptr);
    };
    Window->Fit_Screen();
    Shown.Take_Focus();
    if (F->Place.What != Form_Place::Kind::Centred) Put(*Window, F->Place, &Main);
    Window->show();
    Shown.On_Above_Main(F->Is_Above_Main());
}
