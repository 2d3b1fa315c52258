// qt/entry_widgets.cpp - controls that take a text or a choice.
#include <QAction>
#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "qt/control_widgets.h"
#include "qt/form_widget.h"
#include "qt/icons.h"
#include "qt/text.h"
#include "ui/form/form_events.h"

namespace {

constexpr int Usual_Columns = 24;
constexpr int Usual_Rows = 8;
constexpr int Most_Side_By_Side = 4;  // options in a row
constexpr QSize Swatch(36, 18);

class Field_Widget final : public Control_Widget {
public:
    Field_Widget(Form_Widget& Owner, const Control& C) : Edit_(new QLineEdit(&Owner)) {
        Widget = Edit_;
        Edit_->setReadOnly(C.Read_Only);
        const int Columns = C.Columns != 0 ? C.Columns : Usual_Columns;
        Edit_->setMinimumWidth(Width_Of(*Edit_, Columns + 2));
        if (C.Columns != 0) Edit_->setMaximumWidth(Width_Of(*Edit_, Columns + 2));
        QObject::connect(Edit_, &QLineEdit::textEdited, &Owner,
                         [this, &Owner, Name = C.Name](const QString& Text) {
                             Owner.Do([&](Form& F) { Form_Type(F, Name, Program_Text(Text)); });
                             Follow(Owner.The_Form()[Name]);
                         });
        if (C.On_Choose) Add_Chooser(Owner, C.Name);
    }
    void Follow(const Control& C) override {
        Follow_Common(*this, C);
        const QString Text = Qt_Text(C.Text);
        if (Edit_->text() != Text) Edit_->setText(Text);
    }

private:
    // A small button at the end of the field.
    void Add_Chooser(Form_Widget& Owner, const std::string& Name) {
        QAction* Opens = Edit_->addAction(Themed_Icon("choose"), QLineEdit::TrailingPosition);
        Opens->setObjectName(Qt_Text(Name + ".choose"));
        Opens->setToolTip(QStringLiteral("F4"));
        QObject::connect(Opens, &QAction::triggered, &Owner, [&Owner, Name] {
            Owner.Do([&](Form& F) { Form_Open_Chooser(F, Name); });
        });
    }

    QLineEdit* Edit_;
};

QStringList Items_Of(const Control& C) {
    QStringList Items;
    Items.reserve(static_cast<qsizetype>(C.Items.size()));
    for (const std::string& Item : C.Items) Items.append(Qt_Text(Item));
    return Items;
}

// Tells of each row that is chosen, be it the one that was chosen before.
class Rows final : public QListWidget {
public:
    explicit Rows(QWidget* Parent) : QListWidget(Parent) {
        connect(this, &QListWidget::currentRowChanged, this, [this](int Row) { Tell(Row); });
    }
    std::function<void(int Row)> On_Chosen = {};

protected:
    void mousePressEvent(QMouseEvent* E) override {
        Told_ = false;
        QListWidget::mousePressEvent(E);
        const QListWidgetItem* At = itemAt(E->position().toPoint());
        if (!Told_ && At != nullptr && E->button() == Qt::LeftButton) Tell(row(At));
    }

    // Qt makes the first row the current one of a list without one that gets the focus.
    void focusInEvent(QFocusEvent* E) override {
        const int Row = currentRow();
        const QSignalBlocker Quiet(this);
        QListWidget::focusInEvent(E);
        if (currentRow() != Row) setCurrentRow(Row);
    }

private:
    void Tell(int Row) {
        Told_ = true;
        if (On_Chosen) On_Chosen(Row);
    }

    bool Told_ = false;
};

class List_Widget final : public Control_Widget {
public:
    List_Widget(Form_Widget& Owner, const Control& C) : List_(new Rows(&Owner)) {
        Widget = List_;
        List_->setUniformItemSizes(true);
        List_->setMinimumWidth(Width_Of(*List_, C.Columns != 0 ? C.Columns : Usual_Columns));
        List_->setMinimumHeight(Usual_Rows * List_->fontMetrics().lineSpacing());
        List_->On_Chosen = [this, &Owner, Name = C.Name](int Row) {
            Owner.Do([&](Form& F) { Form_Choose(F, Name, Row); });
            Follow(Owner.The_Form()[Name]);
        };
        QObject::connect(List_, &QListWidget::itemDoubleClicked, &Owner, [&Owner, Name = C.Name] {
            Owner.Do([&](Form& F) { Form_Double_Click(F, Name); });
        });
    }
    void Follow(const Control& C) override {
        Follow_Common(*this, C);
        const QSignalBlocker Quiet(List_);
        if (Items_ != C.Items) {
            Items_ = C.Items;
            List_->clear();
            List_->addItems(Items_Of(C));
        }
        List_->setCurrentRow(C.Value);
    }

private:
    Rows* List_;
    std::vector<std::string> Items_;
};

class Combo_Widget final : public Control_Widget {
public:
    Combo_Widget(Form_Widget& Owner, const Control& C) : Combo_(new QComboBox(&Owner)) {
        Widget = Combo_;
        Combo_->setFocusPolicy(Qt::TabFocus);
        if (C.Columns != 0) Combo_->setMinimumWidth(Width_Of(*Combo_, C.Columns + 4));
        QObject::connect(Combo_, &QComboBox::activated, &Owner,
                         [this, &Owner, Name = C.Name](int Row) {
                             Owner.Do([&](Form& F) { Form_Choose(F, Name, Row); });
                             Follow(Owner.The_Form()[Name]);
                         });
    }
    void Follow(const Control& C) override {
        Follow_Common(*this, C);
        const QSignalBlocker Quiet(Combo_);
        if (Items_ != C.Items) {
            Items_ = C.Items;
            Combo_->clear();
            Combo_->addItems(Items_Of(C));
        }
        Combo_->setCurrentIndex(C.Value);
    }

private:
    QComboBox* Combo_;
    std::vector<std::string> Items_;
};

QIcon Swatch_Of(Long Rgb) {
    QPixmap Painted(Swatch);
    Painted.fill(QColor::fromRgb(static_cast<QRgb>(Rgb)));
    QPainter P(&Painted);
    P.setPen(Qt::gray);
    P.drawRect(0, 0, Swatch.width() - 1, Swatch.height() - 1);
    return QIcon(Painted);
}

// One of several: radio buttons in a box with the caption, or without one in the bare.
class Options_Widget final : public Control_Widget {
public:
    Options_Widget(Form_Widget& Owner, const Control& C)
        : Owner_(Owner), Name_(C.Name), Group_(new QButtonGroup(&Owner)) {
        const bool Has_Box = C.Words.Is_Set() || !C.Caption.empty();
        Box_ = Has_Box ? new QGroupBox(&Owner) : nullptr;
        Widget = Has_Box ? Box_ : new QWidget(&Owner);
        auto* In_Row = new QBoxLayout(C.Items.size() <= Most_Side_By_Side && !C.Upright
                                          ? QBoxLayout::LeftToRight
                                          : QBoxLayout::TopToBottom,
                                      Widget);
        In_Row->addStretch(1);
        if (!Has_Box) In_Row->setContentsMargins(0, 0, 0, 0);
        QObject::connect(Group_, &QButtonGroup::idClicked, &Owner, [this](int I) {
            Owner_.Do([&](Form& F) { Form_Choose(F, Name_, I); });
            Follow(Owner_.The_Form()[Name_]);
        });
    }
    void Follow(const Control& C) override {
        Follow_Common(*this, C);
        if (Box_ != nullptr) Box_->setTitle(Literal_Caption(C.Caption));
        const auto Wanted = static_cast<int>(std::max(C.Items.size(), C.Colours.size()));
        while (Group_->buttons().size() > Wanted && !In_Parts_) delete Group_->button(Nb() - 1);
        while (Group_->buttons().size() < Wanted && !In_Parts_) Add(Nb());
        for (QAbstractButton* Option : Group_->buttons()) {
            Word(*Option, C, static_cast<std::size_t>(Group_->id(Option)));
            if (In_Parts_) Option->setEnabled(C.Enabled);
            if (In_Parts_) Option->setVisible(C.Visible);
        }
        if (QAbstractButton* Chosen = Group_->button(C.Value)) {
            Chosen->setChecked(true);
            Widget->setFocusProxy(Chosen);
        }
    }

    QWidget* Part(Long I) override {
        In_Parts_ = true;
        Widget->setFixedSize(0, 0);
        return Make(I, &Owner_);
    }

private:
    int Nb() const { return static_cast<int>(Group_->buttons().size()); }

    void Add(int I) {  // before the room that is left
        QRadioButton* Made = Make(I, Widget);
        static_cast<QBoxLayout*>(Widget->layout())->insertWidget(I, Made);
        if (I > 0) QWidget::setTabOrder(Group_->button(I - 1), Made);
    }

    QRadioButton* Make(int I, QWidget* Parent) {
        auto* Option = new QRadioButton(Parent);
        Option->setProperty(Control_Property, Qt_Text(Name_));
        Option->setObjectName(Qt_Text(Name_ + "(" + std::to_string(I) + ")"));
        Option->setFocusPolicy(Qt::TabFocus);
        Group_->addButton(Option, I);
        Owner_.Watch(*Option);
        return Option;
    }

    static void Word(QAbstractButton& Option, const Control& C, std::size_t I) {
        if (I < C.Items.size()) Option.setText(Literal_Caption(C.Items[I]));
        if (I >= C.Colours.size()) return;
        Option.setIconSize(Swatch);
        Option.setIcon(Swatch_Of(C.Colours[I]));
        if (Option.text().isEmpty())
            Option.setAccessibleName(QColor::fromRgb(static_cast<QRgb>(C.Colours[I])).name());
    }

    Form_Widget& Owner_;
    std::string Name_;
    QButtonGroup* Group_;
    QGroupBox* Box_ = nullptr;
    bool In_Parts_ = false;  // each option stands where the layout has put it
};

}  // namespace

std::unique_ptr<Control_Widget> Make_Field(Form_Widget& Owner, const Control& C) {
    return std::make_unique<Field_Widget>(Owner, C);
}

std::unique_ptr<Control_Widget> Make_List(Form_Widget& Owner, const Control& C) {
    return std::make_unique<List_Widget>(Owner, C);
}

std::unique_ptr<Control_Widget> Make_Combo(Form_Widget& Owner, const Control& C) {
    return std::make_unique<Combo_Widget>(Owner, C);
}

std::unique_ptr<Control_Widget> Make_Options(Form_Widget& Owner, const Control& C) {
    return std::make_unique<Options_Widget>(Owner, C);
}
