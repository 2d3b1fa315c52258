// tests/qt/test_icons.cpp - the pictures of the tool buttons, in the theme's colours.
#include "qt/icons.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QPalette>
#include <algorithm>

#include "qt/text.h"

namespace {

constexpr int Side = 20;  // pixels: as small as a tool bar shows them

QImage Drawn(const QIcon& Icon, QIcon::Mode Mode = QIcon::Normal) {
    return Icon.pixmap(QSize(Side, Side), Mode).toImage().convertToFormat(QImage::Format_ARGB32);
}

// The part of pixels whose ink differs.
double Differing(const QImage& A, const QImage& B) {
    int Nb = 0;
    for (int Y = 0; Y < Side; ++Y)
        for (int X = 0; X < Side; ++X)
            Nb += std::abs(qAlpha(A.pixel(X, Y)) - qAlpha(B.pixel(X, Y))) > 64 ||
                  std::abs(qBlue(A.pixel(X, Y)) - qBlue(B.pixel(X, Y))) > 64;
    return static_cast<double>(Nb) / (Side * Side);
}

QColor Plain_Ink(const QImage& Image) {
    QColor Found = Qt::transparent;
    for (int Y = 0; Y < Side; ++Y)
        for (int X = 0; X < Side; ++X)
            if (const QColor C = Image.pixelColor(X, Y); C.alpha() > 250 && C.hslSaturation() < 40)
                Found = C;
    return Found;
}

class Palette_Scope {
public:
    explicit Palette_Scope(const QColor& Text) {
        QPalette P = Old_;
        P.setColor(QPalette::Active, QPalette::ButtonText, Text);
        P.setColor(QPalette::Disabled, QPalette::ButtonText, Qt::gray);
        QApplication::setPalette(P);
    }
    ~Palette_Scope() { QApplication::setPalette(Old_); }
    Palette_Scope(const Palette_Scope&) = delete;
    Palette_Scope& operator=(const Palette_Scope&) = delete;

private:
    QPalette Old_ = QApplication::palette();
};

}  // namespace

TEST(Icons_Test, NoTwoLookAlikeInAToolBar) {
    const QStringList Names = QDir(QStringLiteral(":/icons")).entryList({QStringLiteral("*.svg")});
    ASSERT_GT(Names.size(), 20);
    std::vector<QImage> Seen;
    for (const QString& Name : Names) {
        const QIcon Icon = Themed_Icon(Program_Text(Name.chopped(4)));
        ASSERT_FALSE(Icon.isNull()) << Name.toStdString();
        Seen.push_back(Drawn(Icon));
        for (std::size_t I = 0; I + 1 < Seen.size(); ++I)
            EXPECT_GT(Differing(Seen[I], Seen.back()), 0.02)
                << Names[static_cast<qsizetype>(I)].toStdString() << " " << Name.toStdString();
    }
}

TEST(Icons_Test, InkFollowsTheThemeAndFadesWhenDisabled) {
    const QIcon Icon = Themed_Icon("grid");
    for (const QColor Text : {QColor(Qt::black), QColor(Qt::white)}) {
        const Palette_Scope Theme(Text);
        EXPECT_EQ(Plain_Ink(Drawn(Icon)), Text);
        EXPECT_EQ(Plain_Ink(Drawn(Icon, QIcon::Disabled)), QColor(Qt::gray));
    }
}

TEST(Icons_Test, WhatIsOnKeepsItsInkWhileOutOfReach) {
    const QIcon Icon = Themed_Icon("trtarea");
    const QSize Size(Side, Side);
    const QImage Usual = Icon.pixmap(Size).toImage();
    EXPECT_EQ(Icon.pixmap(Size, QIcon::Disabled, QIcon::On).toImage(), Usual);
    EXPECT_NE(Icon.pixmap(Size, QIcon::Disabled, QIcon::Off).toImage(), Usual);
}

TEST(Icons_Test, AnUnknownNameIsNoIcon) {
    EXPECT_TRUE(Themed_Icon("nothing").isNull());
    EXPECT_TRUE(Themed_Icon("").isNull());
    EXPECT_FALSE(Program_Icon().isNull());
}
