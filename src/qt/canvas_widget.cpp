// qt/canvas_widget.cpp - the canvas on the screen: a surface kept as an image, and the overlay.
#include "qt/canvas_widget.h"

#include <QEvent>
#include <QPaintEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "qt/raster.h"
#include "qt/text.h"

namespace {

constexpr int Label_Margin = 4;
constexpr QSize Least_Label(100, 17);

Raster Raster_Of(QImage& Image) {
    return {.Pixels = reinterpret_cast<std::uint32_t*>(Image.bits()),
            .Stride = Image.bytesPerLine() / static_cast<qsizetype>(sizeof(std::uint32_t)),
            .Width = Image.width(),
            .Height = Image.height(),
            .Scale = Image.devicePixelRatio()};
}

QColor Colour_Of(Long Rgb) {
    return QColor::fromRgb(static_cast<QRgb>(Rgb));
}

Qt::PenStyle Style_Of(Line_Style Style) {
    switch (Style) {
        case Line_Style::Dashed:
            return Qt::DashLine;
        case Line_Style::Dotted:
            return Qt::DotLine;
        case Line_Style::Solid:
            break;
    }
    return Qt::SolidLine;
}

Qt::CursorShape Cursor_Of(Pointer_Shape Shape) {
    switch (Shape) {
        case Pointer_Shape::Hourglass:
            return Qt::WaitCursor;
        case Pointer_Shape::Cross:
            return Qt::CrossCursor;
        case Pointer_Shape::Move:
            return Qt::SizeAllCursor;
        case Pointer_Shape::Vertical:
            return Qt::SizeVerCursor;
        case Pointer_Shape::Horizontal:
            return Qt::SizeHorCursor;
        case Pointer_Shape::NE_SW:
            return Qt::SizeBDiagCursor;
        case Pointer_Shape::NW_SE:
            return Qt::SizeFDiagCursor;
        case Pointer_Shape::Normal:
            break;
    }
    return Qt::ArrowCursor;
}

// Positions name canvas pixels, so what is drawn goes through their middle.
void Draw(QPainter& P, const Overlay_Line& L) {
    if (!L.Visible) return;
    P.setPen(QPen(Colour_Of(L.Colour), 1.0, Style_Of(L.Style)));
    P.drawLine(QLineF(L.At.X1 + 0.5, L.At.Y1 + 0.5, L.At.X2 + 0.5, L.At.Y2 + 0.5));
}

void Draw(QPainter& P, const Overlay_Circle& C) {
    if (!C.Visible) return;
    const double Half = (C.Diameter - 1) / 2.0;
    P.setPen(QPen(Colour_Of(C.Colour), 1.0));
    P.setBrush(Qt::NoBrush);
    P.drawEllipse(QPointF(C.X + 0.5, C.Y + 0.5), Half, Half);
}

Size_Px Size_Of(const Overlay_Label& L, const QFontMetrics& Font) {
    const QSize Text = Font.size(0, Qt_Text(L.Text));
    return {std::max(Text.width() + 2 * Label_Margin, Least_Label.width()),
            std::max(Text.height(), Least_Label.height())};
}

// Its colours tell something, so they are not the theme's.
void Draw(QPainter& P, const Overlay_Label& L) {
    if (!L.Visible) return;
    const Size_Px Size = Size_Of(L, P.fontMetrics());
    const QRect Box(L.X, L.Y, Size.W - 1, Size.H - 1);
    P.setPen(Qt::black);
    P.setBrush(Colour_Of(L.Back_Colour));
    P.drawRect(Box);
    P.drawText(Box, Qt::AlignCenter, Qt_Text(L.Text));
}

}  // namespace

Canvas_Widget::Canvas_Widget(QWidget* Parent) : QWidget(Parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setMinimumSize(200, 120);
}

void Canvas_Widget::Clear() {
    Image_.fill(palette().color(QPalette::Mid));
}

void Canvas_Widget::Fade(Int Percent) {
    Raster_Mix(Raster_Of(Image_), palette().color(QPalette::Mid).rgb(), Percent);
}

void Canvas_Widget::Stretch_Copy(const Picture& P, Box_Px Source, const Edges_Px& Dest) {
    Raster_Copy(Raster_Of(Image_), P, Source, Dest);
}

void Canvas_Widget::Lines(std::span<const Line_Px> Segments, const Pen& With) {
    Raster_Lines(Raster_Of(Image_), Segments, With);
}

void Canvas_Widget::Refresh() {
    update();
}

void Canvas_Widget::Set_Cursor(Pointer_Shape Shape) {
    Cursor_ = Cursor_Of(Shape);
    if (!Hand_) setCursor(Cursor_);
}

void Canvas_Widget::Show_Hand(bool On) {
    Hand_ = On;
    setCursor(On ? Qt::OpenHandCursor : Cursor_);
}

void Canvas_Widget::Overlay_Changed() {
    update();
}

void Canvas_Widget::Set_Overlay(const Overlay_Items& Items) {
    Overlay_ = &Items;
    update();
}

Size_Px Canvas_Widget::Label_Size(const Overlay_Label& L) {
    return Size_Of(L, fontMetrics());
}

// The window may have gone to a screen of another fineness.
void Canvas_Widget::paintEvent(QPaintEvent* E) {
    Fit();
    QPainter P(this);
    const double Scale = Image_.devicePixelRatio();
    const QRect At = E->rect();
    P.drawImage(At, Image_,
                QRectF(At.x() * Scale, At.y() * Scale, At.width() * Scale, At.height() * Scale));
    P.setRenderHint(QPainter::Antialiasing);
    const Overlay_Items& O = *Overlay_;
    for (const Overlay_Line* L : {&O.Ln1, &O.Ln2, &O.LnHIma1, &O.LnHIma2, &O.LnVIma1, &O.LnVIma2})
        Draw(P, *L);
    Draw(P, O.Cercle);
    P.setRenderHint(QPainter::Antialiasing, false);
    Draw(P, O.LPtGrid);
    for (const Overlay_Line* L : {&O.Croix1, &O.Croix2}) Draw(P, *L);
}

// The image follows the widget's size and the screen's fineness. What it held is painted anew
// by whoever is told of the size.
void Canvas_Widget::Fit() {
    const double Scale = devicePixelRatioF();
    const QSize Wanted(static_cast<int>(std::ceil(width() * Scale)),
                       static_cast<int>(std::ceil(height() * Scale)));
    if (Wanted == Image_.size() && Scale == Image_.devicePixelRatio()) return;
    Image_ = QImage(Wanted, QImage::Format_RGB32);
    Image_.setDevicePixelRatio(Scale);
    Clear();
    if (On_Resize) On_Resize(width(), height());
}

void Canvas_Widget::resizeEvent(QResizeEvent*) {
    Fit();
}

void Canvas_Widget::showEvent(QShowEvent*) {
    Fit();
}

void Canvas_Widget::changeEvent(QEvent* E) {
    QWidget::changeEvent(E);
    if (E->type() != QEvent::PaletteChange || Image_.isNull()) return;
    Clear();
    if (On_Resize) On_Resize(width(), height());
}
