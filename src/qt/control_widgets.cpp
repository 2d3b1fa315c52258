// qt/control_widgets.cpp - labels, buttons, boxes, bars and menus.
#include "qt/control_widgets.h"

#include <QAction>
#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTabWidget>
#include <QToolButton>
#include <algorithm>

#include "core/program.h"
#include "qt/busy.h"
#include "qt/canvas_widget.h"
#include "qt/form_widget.h"
#include "qt/icons.h"
#include "qt/text.h"
#include "ui/form/form_events.h"
#include "ui/form/keys_told.h"

namespace {

constexpr int Icon_Size = 22;  // of a tool button, pixels

// The desktop's colours come back where C has none of its own.
void Paint_In(QLabel& Label, const Control& C) {
    QPalette Colours;
    if (C.Colour != Usual_Colour)
        Colours.setColor(QPalette::WindowText, QColor::fromRgb(static_cast<QRgb>(C.Colour)));
    if (C.Back_Colour != Usual_Colour)
        Colours.setColor(QPalette::Window, QColor::fromRgb(static_cast<QRgb>(C.Back_Colour)));
    Label.setPalette(Colours);
    Label.setAutoFillBackground(C.Back_Colour != Usual_Colour);
}

// Wants the width that it is given, whatever its text.
class Column_Label final : public QLabel {
public:
    using QLabel::QLabel;
    QSize sizeHint() const override { return {minimumWidth(), QLabel::sizeHint().height()}; }
    QSize minimumSizeHint() const override { return sizeHint(); }
};

// Goes on in further lines where it is narrow. Its height tells of its width alone: what lies above
// it must not move when its text changes.
class Wrapped_Label final : public QLabel {
public:
    Wrapped_Label(QWidget* Parent, int Columns) : QLabel(Parent), Columns_(Columns) {
        setWordWrap(true);
        setMinimumWidth(Width_Of(*this, Least_Columns));
    }
    QSize sizeHint() const override { return {Width_Of(*this, Columns_), Height_Of(1)}; }
    QSize minimumSizeHint() const override { return {minimumWidth(), Height_Of(1)}; }
    int heightForWidth(int Width) const override {
        return Height_Of((Width_Of(*this, Columns_) + Width - 1) / std::max(Width, 1));
    }

private:
    static constexpr int Least_Columns = 30;
    int Height_Of(int Lines) const { return Lines * fontMetrics().lineSpacing(); }

    int Columns_;
};

QLabel* Make_Label(Form_Widget& Owner, const Control& C) {
    if (C.Wraps) return new Wrapped_Label(&Owner, C.Columns);
    if (C.Columns == 0) return new QLabel(&Owner);
    auto* Made = new Column_Label(&Owner);
    Made->setMinimumWidth(Width_Of(*Made, C.Columns));
    Made->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    return Made;
}

class Label_Widget final : public Control_Widget {
public:
    Label_Widget(Form_Widget& Owner, const Control& C, Place Where)
        : Text_(Make_Label(Owner, C)), Where_(Where) {
        Widget = Text_;
        Text_->setTextFormat(Qt::PlainText);
    }
    void Follow(const Control& C) override {
        Follow_Common(*this, C);
        const QString Caption = Qt_Text(C.Caption);
        if (C.Columns == 0 || C.Wraps)
            Text_->setText(Caption);
        else if (Where_ == Place::Read_Out)
            Show_Whole(Caption);
        else
            Text_->setText(Text_->fontMetrics().elidedText(
                Caption, Qt::ElideMiddle, std::max(Text_->width(), Text_->minimumWidth())));
        Paint_In(*Text_, C);
    }

private:
    // The room once taken is kept, so that its neighbours stay where they are.
    void Show_Whole(const QString& Caption) {
        const int Wanted = Text_->fontMetrics().horizontalAdvance(Caption);
        if (Wanted > Text_->minimumWidth()) Text_->setMinimumWidth(Wanted);
        Text_->setText(Caption);
    }

    QLabel* Text_;
    Place Where_;
};

// Stays pressed as long as its Value is set; a click alone does not change that.
class Held_Button final : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    void nextCheckState() override {}
};

class Button_Widget final : public Control_Widget {
public:
    Button_Widget(Form_Widget& Owner, const Control& C) : Button_(new Held_Button(&Owner)) {
        Widget = Button_;
        Button_->setCheckable(true);
        Button_->setFocusPolicy(Qt::TabFocus);
        Button_->setAutoDefault(false);
        Button_->setDefault(C.Role == Button_Role::Ok);
        Button_->setIcon(Themed_Icon(C.Icon));
        if (C.In_Long_Work) Let_Through_Busy(*Button_);
        QObject::connect(Button_, &QPushButton::clicked, &Owner, [&Owner, Name = C.Name] {
            Owner.Do([&](Form& F) { Form_Click(F, Name); });
        });
    }
    void Follow(const Control& C) override {
        Follow_Common(*this, C);
        Button_->setText(Literal_Caption(C.Caption));
        Button_->setChecked(C.Value != 0);
    }

private:
    QPushButton* Button_;
};

// One that can be pressed is told as such; a click alone does not change whether it is.
class Held_Tool final : public QToolButton {
public:
    using QToolButton::QToolButton;

protected:
    void nextCheckState() override {}
};

class Tool_Widget final : public Control_Widget {
public:
    Tool_Widget(Form_Widget& Owner, const Control& C) : Button_(new Held_Tool(&Owner)) {
        Widget = Button_;
        Button_->setAutoRaise(true);
        Button_->setIconSize(QSize(Icon_Size, Icon_Size));
        Button_->setIcon(Themed_Icon(C.Icon));
        Button_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
        QObject::connect(Button_, &QToolButton::clicked, &Owner, [&Owner, Name = C.Name] {
            Owner.Do([&](Form& F) { Form_Click(F, Name); });
        });
    }
    void Follow(const Control& C) override {
        Follow_Common(*this, C);
        Button_->setText(Literal_Caption(C.Caption));
        Button_->setToolButtonStyle(C.Caption.empty() ? Qt::ToolButtonIconOnly
                                                      : Qt::ToolButtonTextBesideIcon);
        // Ends pressed before it can no longer be: Qt would not paint it anew otherwise.
        if (C.Value == 0) Button_->setChecked(false);
        Button_->setCheckable(C.Checkable || C.Value != 0);
        Button_->setChecked(C.Value != 0);
    }

private:
    QToolButton* Button_;
};

class Check_Widget final : public Control_Widget {
public:
    Check_Widget(Form_Widget& Owner, const Control& C) : Box_(new QCheckBox(&Owner)) {
        Widget = Box_;
        Box_->setFocusPolicy(Qt::TabFocus);
        QObject::connect(Box_, &QCheckBox::clicked, &Owner, [this, &Owner, Name = C.Name] {
            Owner.Do([&](Form& F) { Form_Click(F, Name); });
            Follow(Owner.The_Form()[Name]);
        });
    }
    void Follow(const Control& C) override {
        Follow_Common(*this, C);
        Box_->setText(Literal_Caption(C.Caption));
        Box_->setTristate(C.Value == Mixed_Check);
        Box_->setCheckState(C.Value == Mixed_Check ? Qt::PartiallyChecked
                            : C.Value != 0         ? Qt::Checked
                                                   : Qt::Unchecked);
    }

private:
    QCheckBox* Box_;
};

class Bar_Widget final : public Control_Widget {
public:
    Bar_Widget(Form_Widget& Owner, const Control& C) : Bar_(new QProgressBar(&Owner)) {
        Widget = Bar_;
        Bar_->setRange(0, C.Max);
    }
    void Follow(const Control& C) override {
        Follow_Common(*this, C);
        Bar_->setValue(C.Value);
    }

private:
    QProgressBar* Bar_;
};

class Frame_Widget final : public Control_Widget {
public:
    explicit Frame_Widget(Form_Widget& Owner) : Box_(new QGroupBox(&Owner)) { Widget = Box_; }
    void Follow(const Control& C) override {
        Follow_Common(*this, C);
        Box_->setTitle(Literal_Caption(C.Caption));
    }

private:
    QGroupBox* Box_;
};

class Tabs_Widget final : public Control_Widget {
public:
    Tabs_Widget(Form_Widget& Owner, const Control& C) : Pages_(new QTabWidget(&Owner)) {
        Widget = Pages_;
        QObject::connect(Pages_, &QTabWidget::tabBarClicked, &Owner,
                         [this, &Owner, Name = C.Name](int Page) { Chosen(Owner, Name, Page); });
        QObject::connect(Pages_, &QTabWidget::currentChanged, &Owner,
                         [this, &Owner, Name = C.Name](int Page) { Chosen(Owner, Name, Page); });
    }
    void Follow(const Control& C) override {
        Follow_Common(*this, C);
        const QSignalBlocker Quiet(Pages_);
        Pages_->setCurrentIndex(C.Value);
    }

private:
    void Chosen(Form_Widget& Owner, const std::string& Name, int Page) {
        if (Page < 0 || Page == Owner.The_Form()[Name].Value) return;
        Owner.Do([&](Form& F) { Form_Choose(F, Name, Page); });
        Follow(Owner.The_Form()[Name]);
    }

    QTabWidget* Pages_;
};

class Tab_Widget final : public Control_Widget {
public:
    explicit Tab_Widget(Form_Widget& Owner) { Widget = new QWidget(&Owner); }
    void Follow(const Control& C) override {
        Widget->setAccessibleName(Readable_Name(C));
        for (QWidget* Up = Widget->parentWidget(); Up != nullptr; Up = Up->parentWidget()) {
            auto* Pages = qobject_cast<QTabWidget*>(Up);
            if (Pages == nullptr) continue;
            const QSignalBlocker Quiet(Pages);
            const int Page = Pages->indexOf(Widget);
            Pages->setTabText(Page, Literal_Caption(C.Caption));
            Pages->setTabToolTip(Page, Qt_Text(C.Tip));
            const int In_Front = Pages->currentIndex();
            Pages->setTabEnabled(Page, C.Enabled);
            Pages->setTabVisible(Page, C.Visible);
            Pages->setCurrentIndex(In_Front);  // which page that is the form decides
            return;
        }
    }
};

class Scroll_Widget final : public Control_Widget {
public:
    Scroll_Widget(Form_Widget& Owner, const Control& C) : Bar_(new QScrollBar(&Owner)) {
        Widget = Bar_;
        QObject::connect(Bar_, &QScrollBar::valueChanged, &Owner,
                         [this, &Owner, Name = C.Name](int Value) {
                             Owner.Do([&](Form& F) { Form_Scroll(F, Name, Value); });
                             Follow(Owner.The_Form()[Name]);
                         });
    }
    void Follow(const Control& C) override {
        Follow_Common(*this, C);
        const QSignalBlocker Quiet(Bar_);
        Bar_->setRange(0, C.Max);
        Bar_->setSingleStep(C.Small_Step);
        Bar_->setPageStep(C.Large_Step);
        Bar_->setValue(C.Value);
    }

private:
    QScrollBar* Bar_;
};

// The keys stand in a column of their own, whoever binds them.
QString Caption_With_Keys(const Control& C) {
    const std::string Keys = Keys_Text(C, Language);
    const QString Caption = Literal_Caption(C.Caption);
    return Keys.empty() ? Caption : Caption + QLatin1Char('\t') + Qt_Text(Keys);
}

// An item without words is none: a free place of a list that changes.
class Menu_Item_Widget final : public Control_Widget {
public:
    Menu_Item_Widget(Form_Widget& Owner, const Control& C) {
        Action = new QAction(&Owner);
        Action->setObjectName(Qt_Text(C.Name));
        Action->setCheckable(C.Checkable);
        Action->setShortcut(QKeySequence(Qt_Text(C.Shortcut), QKeySequence::PortableText));
        QObject::connect(Action, &QAction::triggered, &Owner, [this, &Owner, Name = C.Name] {
            Owner.Do([&](Form& F) { Form_Click(F, Name); });
            Follow(Owner.The_Form()[Name]);  // the click alone has turned it
        });
    }
    void Follow(const Control& C) override {
        Action->setText(Caption_With_Keys(C));
        Action->setEnabled(C.Enabled);
        Action->setChecked(C.Value != 0);
        Action->setVisible(C.Visible && !C.Caption.empty());
    }
};

class Canvas_Control final : public Control_Widget {
public:
    Canvas_Control(Form_Widget& Owner, const Control& C) : Canvas_(new Canvas_Widget(&Owner)) {
        Widget = Canvas_;
        if (C.Width > 0 && C.Height > 0) Canvas_->setFixedSize(C.Width, C.Height);
        Canvas_->On_Resize = [&Owner, Name = C.Name](Long Width, Long Height) {
            const auto& Tell = Owner.The_Form()[Name].On_Resize;
            if (Tell) Tell(Width, Height);
        };
    }
    void Follow(const Control& C) override { Follow_Common(*this, C); }

private:
    Canvas_Widget* Canvas_;
};

std::unique_ptr<Control_Widget> Make_Kind(Form_Widget& Owner, const Control& C, Place Where) {
    switch (C.Kind) {
        case Control_Kind::Button:
            if (Where == Place::Tool_Bar) return std::make_unique<Tool_Widget>(Owner, C);
            return std::make_unique<Button_Widget>(Owner, C);
        case Control_Kind::Check:
            return std::make_unique<Check_Widget>(Owner, C);
        case Control_Kind::Options:
            return Make_Options(Owner, C);
        case Control_Kind::Text:
        case Control_Kind::Number:
            return Make_Field(Owner, C);
        case Control_Kind::List:
            return Make_List(Owner, C);
        case Control_Kind::Combo:
            return Make_Combo(Owner, C);
        case Control_Kind::Image:
            return Make_Image(Owner, C);
        case Control_Kind::Frame:
            return std::make_unique<Frame_Widget>(Owner);
        case Control_Kind::Tabs:
            return std::make_unique<Tabs_Widget>(Owner, C);
        case Control_Kind::Tab:
            return std::make_unique<Tab_Widget>(Owner);
        case Control_Kind::Scroll_Bar:
            return std::make_unique<Scroll_Widget>(Owner, C);
        case Control_Kind::Menu:
        case Control_Kind::Menu_Item:
            return std::make_unique<Menu_Item_Widget>(Owner, C);
        case Control_Kind::Canvas:
            return std::make_unique<Canvas_Control>(Owner, C);
        case Control_Kind::Lamp:
            return Make_Lamp(Owner, C);
        case Control_Kind::Bar:
            return std::make_unique<Bar_Widget>(Owner, C);
        case Control_Kind::Label:
            break;
    }
    return std::make_unique<Label_Widget>(Owner, C, Where);
}

bool Has_Label_Beside(Control_Kind Kind) {
    return Kind == Control_Kind::Text || Kind == Control_Kind::Number ||
           Kind == Control_Kind::List || Kind == Control_Kind::Combo || Kind == Control_Kind::Image;
}

}  // namespace

QString Readable_Name(const Control& C) {
    if (!C.Said.empty()) return Qt_Text(C.Caption.empty() ? C.Said : C.Said + ": " + C.Caption);
    const std::string& Said = !C.Caption.empty() ? C.Caption : !C.Tip.empty() ? C.Tip : C.Name;
    return Qt_Text(Said);
}

int Width_Of(const QWidget& Widget, int Columns) {
    return Columns * Widget.fontMetrics().averageCharWidth();
}

void Follow_Common(Control_Widget& Shown, const Control& C) {
    Shown.Widget->setEnabled(C.Enabled);
    Shown.Widget->setVisible(C.Visible);
    Shown.Widget->setToolTip(Qt_Text(Tip_With_Keys(C, Language)));
    Shown.Widget->setAccessibleName(Readable_Name(C));
    if (Shown.Label == nullptr) return;
    Shown.Label->setText(Literal_Caption(C.Caption));
    Shown.Label->setEnabled(C.Enabled);
    Shown.Label->setVisible(C.Visible && !C.Caption.empty());
}

std::unique_ptr<Control_Widget> Make_Control_Widget(Form_Widget& Owner, const Control& C,
                                                    Place Where) {
    auto Made = Make_Kind(Owner, C, Where);
    if (Made->Widget != nullptr) {
        Made->Widget->setObjectName(Qt_Text(C.Name));
        Owner.Watch(*Made->Widget);
        if (Has_Label_Beside(C.Kind)) {
            Made->Label = new QLabel(&Owner);
            Made->Label->setBuddy(Made->Widget);
        }
    }
    return Made;
}
