// qt/tab_order.cpp - the order in which Tab leads through a form.
#include "qt/tab_order.h"

#include <QLayout>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <vector>

namespace {

class Reader {
public:
    void Read(QWidget& W) {
        if (auto* Pages = qobject_cast<QTabWidget*>(&W)) {
            Read(*Pages->tabBar());
            for (int I = 0; I < Pages->count(); ++I) Read(*Pages->widget(I));
        } else if ((W.focusPolicy() & Qt::TabFocus) != 0 || qobject_cast<QRadioButton*>(&W)) {
            // of several options Tab stops at the chosen one, which may become another
            Found.push_back(&W);
        } else if (const QLayout* L = W.layout()) {
            Read(*L);
        }
    }
    std::vector<QWidget*> Found;

private:
    void Read(const QLayout& L) {
        for (int I = 0; I < L.count(); ++I) {
            if (const QLayout* Inner = L.itemAt(I)->layout()) Read(*Inner);
            if (QWidget* W = L.itemAt(I)->widget()) Read(*W);
        }
    }
};

}  // namespace

void Set_Tab_Order(QWidget& Root) {
    Reader All;
    All.Read(Root);
    for (std::size_t I = 1; I < All.Found.size(); ++I)
        QWidget::setTabOrder(All.Found[I - 1], All.Found[I]);
}
