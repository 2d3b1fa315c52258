// qt/icons.cpp - the pictures of tool buttons, inked in the colours of the desktop's theme.
#include "qt/icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QSvgRenderer>

#include "qt/text.h"

namespace {

constexpr char Ink[] = "currentColor";  // what the drawings write for the text colour
constexpr char Accent[] = "#3a86d8";    // and for the one other colour they may have

class Ink_Engine final : public QIconEngine {
public:
    explicit Ink_Engine(QByteArray Drawing) : Drawing_(std::move(Drawing)) {}

    // What is out of reach because it is on already keeps its ink.
    void paint(QPainter* P, const QRect& At, QIcon::Mode Mode, QIcon::State State) override {
        const bool Off = Mode == QIcon::Disabled && State == QIcon::Off;
        const QColor Text = QGuiApplication::palette().color(
            Off ? QPalette::Disabled : QPalette::Active, QPalette::ButtonText);
        QByteArray Inked = Drawing_;
        if (Off) Inked.replace(Accent, Text.name().toLatin1());
        Inked.replace(Ink, Text.name().toLatin1());
        QSvgRenderer(Inked).render(P, At);
    }

    QPixmap pixmap(const QSize& Size, QIcon::Mode Mode, QIcon::State State) override {
        QPixmap Made(Size);
        Made.fill(Qt::transparent);
        QPainter P(&Made);
        paint(&P, QRect(QPoint(), Size), Mode, State);
        return Made;
    }

    QIconEngine* clone() const override { return new Ink_Engine(Drawing_); }

private:
    QByteArray Drawing_;
};

}  // namespace

QIcon Themed_Icon(std::string_view Name) {
    QFile File(QStringLiteral(":/icons/") + Qt_Text(Name) + QStringLiteral(".svg"));
    if (Name.empty() || !File.open(QIODevice::ReadOnly)) return {};
    return QIcon(new Ink_Engine(File.readAll()));
}

QIcon Program_Icon() {
    return QIcon(QStringLiteral(":/icons/terrafold.svg"));
}
