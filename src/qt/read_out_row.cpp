// qt/read_out_row.cpp - a line of read-outs, each whole or not there.
#include "qt/read_out_row.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QStyle>
#include <algorithm>

Read_Out_Row::Read_Out_Row(QWidget* Parent) : QWidget(Parent), Line_(new QHBoxLayout(this)) {
    const int Margin = style()->pixelMetric(QStyle::PM_LayoutLeftMargin);
    Line_->setContentsMargins(Margin, Margin / 3, Margin, Margin / 3);
    Line_->setSpacing(Margin);
}

// The form shows and hides what is in the holder, the row the holder.
void Read_Out_Row::Add(QWidget* Shown, int Stretch, int Gives_Way) {
    auto* Holder = new QWidget(this);
    auto* Inside = new QHBoxLayout(Holder);
    Inside->setContentsMargins(0, 0, 0, 0);
    Inside->addWidget(Shown);
    Line_->addWidget(Holder, Stretch);
    Places_.push_back({Holder, Gives_Way});
}

int Read_Out_Row::Width_Up_To(int Gives_Way) const {
    const QMargins Round = Line_->contentsMargins();
    int Width = Round.left() + Round.right() - Line_->spacing();
    for (const Place& P : Places_)
        if (P.Gives_Way <= Gives_Way)
            Width += P.Holder->layout()->totalMinimumSize().width() + Line_->spacing();
    return Width;
}

QSize Read_Out_Row::minimumSizeHint() const {
    return {Width_Up_To(0), QWidget::minimumSizeHint().height()};
}

void Read_Out_Row::Choose() {
    int Stays = 0;
    for (const Place& P : Places_) Stays = std::max(Stays, P.Gives_Way);
    while (Stays > 0 && Width_Up_To(Stays) > width()) --Stays;
    for (const Place& P : Places_) P.Holder->setVisible(P.Gives_Way <= Stays);
}

bool Read_Out_Row::event(QEvent* E) {
    if (E->type() == QEvent::Resize || E->type() == QEvent::LayoutRequest) Choose();
    return QWidget::event(E);
}
