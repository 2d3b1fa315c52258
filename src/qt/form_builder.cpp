// qt/form_builder.cpp - the layout of a form made into widgets.
#include "qt/form_builder.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QEvent>
#include <QFormLayout>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QScrollBar>
#include <QStyle>
#include <QTabWidget>
#include <algorithm>

#include "qt/canvas_widget.h"
#include "qt/read_out_row.h"
#include "qt/text.h"
#include "qt/tool_strip.h"
#include "ui/form/mnemonics.h"

namespace {

// What lies over the middle of the canvas: as large as what it holds, and gone with it.
class Over_Panel final : public QWidget {
public:
    explicit Over_Panel(QWidget* Canvas) : QWidget(Canvas) {
        setLayout(new QVBoxLayout);
        layout()->setContentsMargins(0, 0, 0, 0);
        Canvas->installEventFilter(this);
    }

protected:
    bool event(QEvent* E) override {
        const bool Done = QWidget::event(E);
        if (E->type() == QEvent::LayoutRequest) Centre();
        return Done;
    }
    bool eventFilter(QObject*, QEvent* E) override {
        if (E->type() == QEvent::Resize) Centre();
        return false;
    }

private:
    void Centre() {
        const QSize Room = parentWidget()->size();
        const QSize Wanted = sizeHint().boundedTo(Room);
        setGeometry(
            QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, Wanted, QRect(QPoint(), Room)));
    }
};

QDialogButtonBox::ButtonRole Role_Of(Button_Role Role) {
    switch (Role) {
        case Button_Role::Ok:
            return QDialogButtonBox::AcceptRole;
        case Button_Role::Cancel:
            return QDialogButtonBox::RejectRole;
        case Button_Role::Help:
            return QDialogButtonBox::HelpRole;
        case Button_Role::Plain:
            break;
    }
    return QDialogButtonBox::ActionRole;
}

class Menu_Widget final : public Control_Widget {
public:
    Menu_Widget(const Form& F, QMenu& Menu) : Form_(F), Menu_(&Menu) { Action = Menu.menuAction(); }
    void Follow(const Control& C) override {
        Menu_->setTitle(Caption_With_Mnemonic(C));
        Action->setEnabled(C.Enabled);
        Action->setVisible(C.Visible);
    }

private:
    QString Caption_With_Mnemonic(const Control& C) const {
        const auto Letters = Menu_Mnemonics(Form_);
        const auto Found = Letters.find(C.Name);
        if (Found == Letters.end()) return Literal_Caption(C.Caption);
        const std::string_view Caption = C.Caption;
        return Literal_Caption(Caption.substr(0, Found->second)) + QLatin1Char('&') +
               Literal_Caption(Caption.substr(Found->second));
    }

    const Form& Form_;
    QMenu* Menu_;
};

// The window of the program is filled to its edges; so is one that is no more than its field.
bool Fills_Window(const Form& F) {
    const Layouts& Parts = F.Root().Parts;
    const auto Is_Tool_Bar = [](const Layout& L) { return L.What == Layout::Kind::Tool_Bar; };
    return F.Frameless || std::ranges::any_of(Parts, Is_Tool_Bar);
}

}  // namespace

void Form_Builder::Build() {
    const Layout& Root = Into_.The_Form().Root();
    auto* Whole = new QVBoxLayout(&Into_);
    if (Fills_Window(Into_.The_Form())) {
        Whole->setContentsMargins(0, 0, 0, 0);
        Whole->setSpacing(0);
    }
    if (Root.What == Layout::Kind::Column)
        Add_Parts(*Whole, Root.Parts);
    else
        Add(*Whole, Root);
    Add_Over_Canvas();
}

Control_Widget& Form_Builder::Make(const std::string& Name, Place Where) {
    auto& Shown = Into_.Shown_[Name];
    Shown = Make_Control_Widget(Into_, Into_.The_Form()[Name], Where);
    return *Shown;
}

void Form_Builder::Add_Parts(QBoxLayout& To, const Layouts& Parts) {
    for (const Layout& Part : Parts) Add(To, Part);
}

void Form_Builder::Add(QBoxLayout& To, const Layout& L) {
    using Kind = Layout::Kind;
    switch (L.What) {
        case Kind::Control:
            return Add_Control(To, L.Name);
        case Kind::Option:
            return Add_Option(To, L);
        case Kind::Grid:
            return Add_Grid(To, L);
        case Kind::Column:
        case Kind::Row: {
            auto* Box = new QBoxLayout(L.What == Kind::Row ? QBoxLayout::LeftToRight
                                                           : QBoxLayout::TopToBottom);
            To.addLayout(Box, 1);
            return Add_Parts(*Box, L.Parts);
        }
        case Kind::Fields:
            return Add_Fields(To, L.Parts);
        case Kind::Frame:
            return Add_Frame(To, L);
        case Kind::Tabs:
            return Add_Tabs(To, L);
        case Kind::Buttons:
            return Add_Buttons(To, L.Parts);
        case Kind::Space:
            return To.addStretch(1);
        case Kind::Menu_Bar:
            return Add_Menu_Bar(L.Parts);
        case Kind::Tool_Bar:
            return Add_Tool_Bar(To, L.Parts);
        case Kind::Canvas:
            return Add_Canvas(To, L);
        case Kind::Read_Out:
            return Add_Read_Out(To, L.Parts);
        case Kind::Over_Canvas:
            return Over_Canvas_.push_back(&L);
        case Kind::Tab:
        case Kind::Menu:
        case Kind::Gap:
            break;  // parts of what stands round them
    }
}

// A caption stands before what fits on a line, and above what is higher.
void Form_Builder::Add_Control(QBoxLayout& To, const std::string& Name) {
    const Control_Widget& Made = Make(Name);
    if (Made.Widget == nullptr) return;
    if (Made.Label == nullptr) return To.addWidget(Made.Widget);
    const Control_Kind Kind = Into_.The_Form()[Name].Kind;
    const bool Is_High = Kind == Control_Kind::List || Kind == Control_Kind::Image;
    auto* Both = new QBoxLayout(Is_High ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    To.addLayout(Both, Is_High ? 1 : 0);
    Both->addWidget(Made.Label);
    Both->addWidget(Made.Widget, 1);
}

void Form_Builder::Add_Fields(QBoxLayout& To, const Layouts& Parts) {
    auto* Rows = new QFormLayout;
    Rows->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    To.addLayout(Rows);
    for (const Layout& Part : Parts) {
        if (Part.What == Layout::Kind::Control) {
            const Control_Widget& Made = Make(Part.Name);
            if (Made.Label != nullptr)
                Rows->addRow(Made.Label, Made.Widget);
            else if (Into_.The_Form()[Part.Name].Kind == Control_Kind::Options)
                Rows->addRow(Made.Widget);
            else
                Rows->addRow(QString(), Made.Widget);
            continue;
        }
        auto* Row = new QHBoxLayout;
        const bool Leads = Part.What == Layout::Kind::Row && !Part.Parts.empty() &&
                           Part.Parts.front().What == Layout::Kind::Control;
        if (!Leads) {
            Add(*Row, Part);
            Rows->addRow(Row);
            continue;
        }
        // The caption of the first control is that of the row.
        const Control_Widget& First = Make(Part.Parts.front().Name);
        Row->addWidget(First.Widget, 1);
        for (std::size_t I = 1; I < Part.Parts.size(); ++I) Add(*Row, Part.Parts[I]);
        Rows->addRow(First.Label, Row);
    }
}

void Form_Builder::Add_Grid(QBoxLayout& To, const Layout& L) {
    auto* Cells = new QGridLayout;
    To.addLayout(Cells);
    const auto Columns = static_cast<std::size_t>(std::max<Long>(1, L.Nb));
    const std::size_t Rows = (L.Parts.size() + Columns - 1) / Columns;
    for (std::size_t I = 0; I < L.Parts.size(); ++I) {
        auto* Cell = new QHBoxLayout;
        Cells->addLayout(Cell, static_cast<int>(I % Rows), static_cast<int>(I / Rows));
        Add(*Cell, L.Parts[I]);
    }
}

void Form_Builder::Add_Option(QBoxLayout& To, const Layout& L) {
    const auto Found = Into_.Shown_.find(L.Name);
    Control_Widget& Group = Found == Into_.Shown_.end() ? Make(L.Name) : *Found->second;
    To.addWidget(Group.Part(L.Nb));
}

void Form_Builder::Add_Frame(QBoxLayout& To, const Layout& L) {
    QWidget* Box = Make(L.Name).Widget;
    To.addWidget(Box);
    Add_Parts(*new QVBoxLayout(Box), L.Parts);
}

void Form_Builder::Add_Tabs(QBoxLayout& To, const Layout& L) {
    auto* Pages = static_cast<QTabWidget*>(Make(L.Name).Widget);
    To.addWidget(Pages, 1);
    const QSignalBlocker Quiet(Pages);
    for (const Layout& Page : L.Parts) {
        QWidget* Made = Make(Page.Name).Widget;
        Pages->addTab(Made, QString());
        Add_Parts(*new QVBoxLayout(Made), Page.Parts);
    }
}

void Form_Builder::Add_Buttons(QBoxLayout& To, const Layouts& Parts) {
    auto* Box = new QDialogButtonBox(&Into_);
    To.addWidget(Box);
    for (const Layout& Part : Parts) {
        if (Part.What != Layout::Kind::Control) continue;
        auto* Button = qobject_cast<QPushButton*>(Make(Part.Name).Widget);
        if (Button != nullptr) Box->addButton(Button, Role_Of(Into_.The_Form()[Part.Name].Role));
    }
}

Control_Widget& Form_Builder::Make_Menu(const std::string& Name, QMenu& Menu) {
    auto& Shown = Into_.Shown_[Name];
    Shown = std::make_unique<Menu_Widget>(Into_.The_Form(), Menu);
    Menu.setObjectName(Qt_Text(Name));
    return *Shown;
}

void Form_Builder::Add_Menu_Bar(const Layouts& Menus) {
    auto* Bar = new QMenuBar(&Into_);
    Into_.layout()->setMenuBar(Bar);
    Into_.Menu_Bar_ = Bar;
    for (const Layout& L : Menus) {
        QMenu* Menu = Bar->addMenu(QString());
        Make_Menu(L.Name, *Menu);
        Add_Menu(*Menu, L.Parts);
    }
}

void Form_Builder::Add_Menu(QMenu& Menu, const Layouts& Parts) {
    for (const Layout& Part : Parts) {
        if (Part.What == Layout::Kind::Gap) {
            Menu.addSeparator();
        } else if (Part.What == Layout::Kind::Menu) {
            QMenu* Inner = Menu.addMenu(QString());
            Make_Menu(Part.Name, *Inner);
            Add_Menu(*Inner, Part.Parts);
        } else {
            Menu.addAction(Make(Part.Name).Action);
        }
    }
}

void Form_Builder::Add_Tool_Bar(QBoxLayout& To, const Layouts& Parts) {
    auto* Strip = new Tool_Strip(&Into_);
    To.addWidget(Strip);
    for (const Layout& Part : Parts) {
        if (Part.What == Layout::Kind::Gap)
            Strip->Begin_Group();
        else
            Strip->Add(Make(Part.Name, Place::Tool_Bar).Widget);
    }
}

void Form_Builder::Add_Canvas(QBoxLayout& To, const Layout& L) {
    auto* Cells = new QGridLayout;
    Cells->setSpacing(0);
    To.addLayout(Cells, 1);
    Into_.Canvas_ = static_cast<Canvas_Widget*>(Make(L.Name).Widget);
    Cells->addWidget(Into_.Canvas_, 0, 0);
    if (Into_.The_Form()[L.Name].Width > 0) Cells->setColumnStretch(2, 1);  // behind its bar
    for (std::size_t I = 0; I < L.Parts.size() && I < 2; ++I) {
        auto* Bar = static_cast<QScrollBar*>(Make(L.Parts[I].Name).Widget);
        Bar->setOrientation(I == 0 ? Qt::Vertical : Qt::Horizontal);
        Cells->addWidget(Bar, I == 0 ? 0 : 1, I == 0 ? 1 : 0);
    }
}

void Form_Builder::Add_Read_Out(QBoxLayout& To, const Layouts& Parts) {
    auto* Line = new Read_Out_Row(&Into_);
    To.addWidget(Line);
    for (const Layout& Part : Parts) {
        const Control& C = Into_.The_Form()[Part.Name];
        Line->Add(Make(Part.Name, Place::Read_Out).Widget, std::max<int>(C.Columns, 1),
                  C.Gives_Way);
    }
}

void Form_Builder::Add_Over_Canvas() {
    if (Into_.Canvas_ == nullptr) return;
    for (const Layout* L : Over_Canvas_) {
        auto* Panel = new Over_Panel(Into_.Canvas_);
        Add_Parts(static_cast<QBoxLayout&>(*Panel->layout()), L->Parts);
        for (QObject* Child : Panel->children())
            if (auto* Frame = qobject_cast<QWidget*>(Child)) Frame->setAutoFillBackground(true);
    }
}
