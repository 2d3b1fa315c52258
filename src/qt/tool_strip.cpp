// qt/tool_strip.cpp - the tool bar: groups of buttons, in as many lines as the width asks for.
#include "qt/tool_strip.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLayout>
#include <QStyle>
#include <algorithm>
#include <memory>
#include <vector>

namespace {

// Items side by side as long as there is room, then in the next line.
class Flow_Layout final : public QLayout {
public:
    using QLayout::QLayout;

    void addItem(QLayoutItem* Item) override { Items_.emplace_back(Item); }
    int count() const override { return static_cast<int>(Items_.size()); }
    QLayoutItem* itemAt(int I) const override {
        return 0 <= I && I < count() ? Items_[static_cast<std::size_t>(I)].get() : nullptr;
    }
    QLayoutItem* takeAt(int I) override {
        if (I < 0 || I >= count()) return nullptr;
        const auto At = Items_.begin() + I;
        QLayoutItem* Taken = At->release();
        Items_.erase(At);
        return Taken;
    }
    Qt::Orientations expandingDirections() const override { return {}; }
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int Width) const override { return Place(QRect(0, 0, Width, 0), false); }
    void setGeometry(const QRect& Room) override {
        QLayout::setGeometry(Room);
        Place(Room, true);
    }
    QSize sizeHint() const override {
        int Width = 0;
        for (const auto& Item : Items_) Width += Item->sizeHint().width();
        return QSize(Width, Tallest()).grownBy(contentsMargins());
    }
    QSize minimumSize() const override {
        int Width = 0;
        for (const auto& Item : Items_) Width = std::max(Width, Item->sizeHint().width());
        return QSize(Width, Tallest()).grownBy(contentsMargins());
    }

private:
    int Tallest() const {
        int Height = 0;
        for (const auto& Item : Items_) Height = std::max(Height, Item->sizeHint().height());
        return Height;
    }

    // The height that it takes.
    int Place(const QRect& Room, bool Moves) const {
        const QRect Inner = Room.marginsRemoved(contentsMargins());
        const int Line = Tallest();
        QPoint At = Inner.topLeft();
        for (const auto& Item : Items_) {
            const int Width = Item->sizeHint().width();
            if (At.x() > Inner.left() && At.x() + Width > Inner.left() + Inner.width())
                At = {Inner.left(), At.y() + Line};
            if (Moves) Item->setGeometry({At, QSize(Width, Line)});
            At.rx() += Width;
        }
        return At.y() + Line - Room.top() + contentsMargins().bottom();
    }

    std::vector<std::unique_ptr<QLayoutItem>> Items_;
};

}  // namespace

Tool_Strip::Tool_Strip(QWidget* Parent) : QWidget(Parent) {
    auto* Groups = new Flow_Layout(this);
    const int Margin = style()->pixelMetric(QStyle::PM_ToolBarItemMargin) +
                       style()->pixelMetric(QStyle::PM_ToolBarFrameWidth);
    Groups->setContentsMargins(Margin, Margin, Margin, Margin);
    Begin_Group();
}

void Tool_Strip::Begin_Group() {
    if (Group_ != nullptr) {
        auto* Line = new QFrame(Group_->parentWidget());
        Line->setFrameStyle(QFrame::VLine | QFrame::Sunken);
        Group_->addWidget(Line);
    }
    auto* Group = new QWidget(this);
    Group_ = new QHBoxLayout(Group);
    Group_->setContentsMargins(0, 0, 0, 0);
    Group_->setSpacing(style()->pixelMetric(QStyle::PM_ToolBarItemSpacing));
    layout()->addWidget(Group);
}

void Tool_Strip::Add(QWidget* Tool) {
    Group_->addWidget(Tool);
}
