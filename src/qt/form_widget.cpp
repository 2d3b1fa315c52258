// qt/form_widget.cpp - any form as widgets.
#include "qt/form_widget.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QTimer>
#include <QVariant>

#include "qt/busy.h"
#include "qt/canvas_widget.h"
#include "qt/control_widgets.h"
#include "qt/form_builder.h"
#include "qt/input.h"
#include "qt/tab_order.h"
#include "qt/text.h"
#include "ui/form/form_events.h"

namespace {

// Coming back to a window or from a menu is no entry into a field.
bool Is_Entry(Qt::FocusReason Reason) {
    return Reason != Qt::ActiveWindowFocusReason && Reason != Qt::PopupFocusReason &&
           Reason != Qt::MenuBarFocusReason;
}

bool Is_Field(const Control& C) {
    return C.Kind == Control_Kind::Text || C.Kind == Control_Kind::Number;
}

bool Is_Clickable(const Control& C) {
    return C.Kind == Control_Kind::Label && C.On_Click;
}

bool Has_Mouse(const Control& C) {
    return C.Kind == Control_Kind::Canvas || C.Kind == Control_Kind::Image;
}

}  // namespace

Form_Widget::Form_Widget(Form& F, QWidget* Parent) : QWidget(Parent), Form_(F) {
    setObjectName(Qt_Text(F.Name()));
    Form_Builder(*this).Build();
    for (const auto& [Name, Shown] : Shown_) Shown->Follow(F[Name]);
    Set_Tab_Order(*this);
    if (Parent != nullptr) Parent->window()->installEventFilter(this);
    Form_.View = this;
    if (F.Tick_Ms <= 0) return;
    auto* Clock = new QTimer(this);
    Clock->callOnTimeout(this, [this] {
        if (!Busy::Is_On()) Do(Form_Tick);
    });
    Clock->start(F.Tick_Ms);
}

Form_Widget::~Form_Widget() {
    if (Form_.View == this) Form_.View = nullptr;
    for (QObject* Child : findChildren<QObject*>()) Child->blockSignals(true);
}

void Form_Widget::Watch(QWidget& Widget) {
    Widget.installEventFilter(this);
}

QWidget* Form_Widget::Widget_Of(std::string_view Control) const {
    const auto Found = Shown_.find(Control);
    return Found == Shown_.end() ? nullptr : Found->second->Widget;
}

std::string Form_Widget::Control_Of(const QObject* Widget) const {
    for (const QObject* At = Widget; At != nullptr && At != this; At = At->parent()) {
        const QVariant Told = At->property(Control_Property);
        if (Told.isValid()) return Program_Text(Told.toString());
        const std::string Name = Program_Text(At->objectName());
        if (const auto Found = Shown_.find(Name); Found != Shown_.end())
            if (Found->second->Widget == At) return Name;
    }
    return {};
}

void Form_Widget::Flush() {
    Flush_Is_Due_ = false;
    for (const std::string& Name : std::exchange(Changed_, {}))
        if (const auto Found = Shown_.find(Name); Found != Shown_.end())
            Found->second->Follow(Form_[Name]);
}

void Form_Widget::Do(const std::function<void(Form&)>& Act) {
    ++Acts_;
    Act(Form_);
    --Acts_;
    Flush();
    if (Acts_ > 0) return;
    Settle_Is_Due_ = false;
    Put_Focus_Back();
}

void Form_Widget::Control_Changed(const Control& C) {
    Changed_.insert(C.Name);
    if (std::exchange(Flush_Is_Due_, true)) return;
    QMetaObject::invokeMethod(
        this, [this] { Flush(); }, Qt::QueuedConnection);
}

void Form_Widget::Title_Changed(const Form&) {
    if (On_Title) On_Title();
}

void Form_Widget::Form_Closed(const Form&) {
    if (On_Closed) On_Closed();
}

void Form_Widget::Above_Main_Changed(const Form& F) {
    if (On_Above_Main) On_Above_Main(F.Is_Above_Main());
}

Surface* Form_Widget::Surface_Of(std::string_view Control) {
    return dynamic_cast<Canvas_Widget*>(Widget_Of(Control));
}

void Form_Widget::Focus_Changed(const Control& C, bool Select_All) {
    Flush();
    QWidget* Widget = Widget_Of(C.Name);
    if (Widget == nullptr) return;
    if (Control_Of(window()->focusWidget()) != C.Name) Widget->setFocus(Qt::OtherFocusReason);
    if (auto* Edit = qobject_cast<QLineEdit*>(Widget); Edit != nullptr && Select_All)
        Edit->selectAll();
}

void Form_Widget::Take_Focus() {
    if (!Form_.Focus().empty()) {
        Form_.Set_Focus(Form_.Focus());
        return Focus_Changed(Form_[Form_.Focus()], true);
    }
    const auto Takes = [this](const QWidget* W) {
        return (W->focusPolicy() & Qt::TabFocus) != 0 && W->isEnabled() && W->isVisibleTo(this);
    };
    std::string Name = Canvas_ != nullptr ? Control_Of(Canvas_) : std::string();
    for (QWidget* W = nextInFocusChain(); W != this && Name.empty(); W = W->nextInFocusChain())
        if (Takes(W)) Name = Control_Of(W);
    if (!Name.empty() && Form_Enter_Control(Form_, Name)) Focus_Changed(Form_[Name], true);
}

// The window's focus has gone to another control than the form's.
void Form_Widget::Settle_Focus() {
    if (!std::exchange(Settle_Is_Due_, false) || Acts_ > 0) return;
    const std::string Name = Control_Of(window()->focusWidget());
    if (Name.empty() || Name == Form_.Focus()) return;
    Do([&](Form& F) { Form_Enter_Control(F, Name); });
}

void Form_Widget::Put_Focus_Back() {
    const std::string& Wanted = Form_.Focus();
    if (Wanted.empty() || Form_.Is_Closed() || !Form_.Is_Visible(Wanted)) return;
    if (Control_Of(window()->focusWidget()) != Wanted) Focus_Changed(Form_[Wanted], true);
}

bool Form_Widget::Open_Menu(char Letter) {
    if (Menu_Bar_ == nullptr) return false;
    for (QAction* Menu : Menu_Bar_->actions()) {
        const QKeySequence Mnemonic = QKeySequence::mnemonic(Menu->text());
        if (Mnemonic != QKeySequence(Qt::ALT | Qt::Key(Letter)) || !Menu->isEnabled()) continue;
        Menu_Bar_->setActiveAction(Menu);
        return true;
    }
    return false;
}

bool Form_Widget::Key_Pressed(const QKeyEvent& E) {
    const Key_Event K = Key_Of(E);
    Settle_Focus();
    if (E.key() == Qt::Key_Space && K.Shift == 0) {
        if (Canvas_ != nullptr && window()->focusWidget() == Canvas_) Hold_Space(true);
        return Space_Held_ || Space_Pressed();
    }
    if (K.Code == 0) return false;
    bool Used = false;
    Do([&](Form& F) { Used = Form_Key(F, K); });
    if (!Used && K.Shift == Alt_Key && K.Code >= 'A' && K.Code <= 'Z')
        Used = Open_Menu(static_cast<char>(K.Code));
    return Used;
}

// A field that is filled by a click can be clicked without a mouse.
bool Form_Widget::Space_Pressed() {
    const std::string Name = Form_.Focus();
    if (Name.empty() || !Is_Field(Form_[Name]) || !Form_[Name].Read_Only) return false;
    Do([&](Form& F) { Form_Click(F, Name); });
    return true;
}

// A picture or canvas takes each mouse event; a field a click or double click, which it still
// sees itself.
bool Form_Widget::Mouse_Used(const QWidget& On, const QEvent& E) {
    const std::string Name = Control_Of(&On);
    if (Name.empty()) return false;
    const Control& C = Form_[Name];
    if (!Has_Mouse(C) && !Is_Field(C) && !Is_Clickable(C)) return false;
    if (Has_Mouse(C)) {
        auto Event = Mouse_Of(E, Wheel_Rest_);
        if (!Event) return true;
        if (Space_Held_) Event->Shift = static_cast<Int>(Event->Shift | Space_Key);
        Settle_Focus();
        Do([&](Form& F) { Form_Mouse(F, Name, *Event); });
    }
    if (C.Kind != Control_Kind::Canvas) Clicked(On, C, E);
    return Has_Mouse(C);
}

void Form_Widget::Hold_Space(bool Held) {
    if (std::exchange(Space_Held_, Held) != Held) Canvas_->Show_Hand(Held);
}

// Another window is in front: a button that is let go there is let go unseen, and so is a key.
void Form_Widget::Leave_Canvas() {
    Hold_Space(false);
    const QPoint At = Canvas_->mapFromGlobal(QCursor::pos());
    const Mouse_Event Away{
        .What = Mouse_Event::Kind::Away, .X = double(At.x()), .Y = double(At.y())};
    Do([&](Form& F) { Form_Mouse(F, Control_Of(Canvas_), Away); });
}

void Form_Widget::Clicked(const QWidget& On, const Control& C, const QEvent& E) {
    const bool Double = E.type() == QEvent::MouseButtonDblClick;
    if (!Double && E.type() != QEvent::MouseButtonRelease) return;
    const auto& Mouse = static_cast<const QMouseEvent&>(E);
    if (Mouse.button() != Qt::LeftButton || !On.rect().contains(Mouse.pos())) return;
    if (Double)
        Do([&](Form& F) { Form_Double_Click(F, C.Name); });
    else if (Has_Mouse(C) || C.Read_Only || Is_Clickable(C))
        Do([&](Form& F) { Form_Click(F, C.Name); });
}

bool Form_Widget::eventFilter(QObject* Watched, QEvent* E) {
    const auto& Widget = static_cast<const QWidget&>(*Watched);
    switch (E->type()) {
        case QEvent::ShortcutOverride: {
            // The form sees a letter with Alt before the menus do.
            const auto& Key = static_cast<const QKeyEvent&>(*E);
            if (Key_Of(Key).Shift != Alt_Key || Key_Of(Key).Code == 0) return false;
            E->accept();
            return true;
        }
        case QEvent::KeyPress: {
            QWidget* Focus = window()->focusWidget();
            const bool Has_It = Focus != nullptr ? Focus == Watched : Watched == window();
            return Has_It && Key_Pressed(static_cast<const QKeyEvent&>(*E));
        }
        case QEvent::KeyRelease: {
            const auto& Key = static_cast<const QKeyEvent&>(*E);
            if (Key.key() == Qt::Key_Space && !Key.isAutoRepeat() && Space_Held_) Hold_Space(false);
            return false;
        }
        case QEvent::FocusIn:
            if (!Is_Entry(static_cast<const QFocusEvent&>(*E).reason())) return false;
            if (!std::exchange(Settle_Is_Due_, true))
                QMetaObject::invokeMethod(
                    this, [this] { Settle_Focus(); }, Qt::QueuedConnection);
            return false;
        case QEvent::MouseButtonPress:
        case QEvent::MouseMove:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
        case QEvent::Wheel:
            return Mouse_Used(Widget, *E);
        case QEvent::WindowDeactivate:
            if (Watched == Canvas_) Leave_Canvas();
            return false;
        default:
            return false;
    }
}
