// qt/canvas_widget.h - the canvas on the screen: a surface kept as an image, and the overlay.
#pragma once

#include <QImage>
#include <QWidget>
#include <functional>

#include "ui/canvas/surface.h"

class Canvas_Widget final : public QWidget, public Surface {
public:
    explicit Canvas_Widget(QWidget* Parent = nullptr);

    /// Told of the room there is, in canvas pixels, once the image has that size.
    std::function<void(Long Width, Long Height)> On_Resize = {};

    void Clear() override;
    void Fade(Int Percent) override;
    void Stretch_Copy(const Picture& P, Box_Px Source, const Edges_Px& Dest) override;
    void Lines(std::span<const Line_Px> Segments, const Pen& With) override;
    void Refresh() override;
    void Set_Cursor(Pointer_Shape Shape) override;
    void Overlay_Changed() override;
    void Set_Overlay(const Overlay_Items& Items) override;
    Size_Px Label_Size(const Overlay_Label& L) override;

    /// The pointer is a hand as long as the user may drag the map, whatever Set_Cursor has said.
    void Show_Hand(bool On);

    /// What was painted, without the overlay, in pixels of the screen.
    const QImage& Image() const { return Image_; }

protected:
    void paintEvent(QPaintEvent* E) override;
    void resizeEvent(QResizeEvent* E) override;
    void changeEvent(QEvent* E) override;
    void showEvent(QShowEvent* E) override;

private:
    void Fit();

    QImage Image_;
    Qt::CursorShape Cursor_ = Qt::ArrowCursor;
    bool Hand_ = false;
    const Overlay_Items* Overlay_ = &The_Overlay;
};
