// qt/image_widget.cpp - a picture in a form, at its own size.
#include <QImage>
#include <QPainter>
#include <QWidget>

#include "qt/control_widgets.h"
#include "qt/form_widget.h"
#include "qt/raster.h"

namespace {

class Picture_Widget final : public QWidget {
public:
    using QWidget::QWidget;

    void Show(const Picture* P) {
        const std::uint64_t Id = P != nullptr ? P->Id : 0;
        if (Id == Id_) return;
        Id_ = Id;
        Image_ = P != nullptr ? QImage(P->Width, P->Height, QImage::Format_RGB32) : QImage();
        if (!Image_.isNull()) Paint_Into_Image(*P);
        setFixedSize(Image_.isNull() ? QSize(0, 0) : Image_.size());
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override { QPainter(this).drawImage(0, 0, Image_); }

private:
    void Paint_Into_Image(const Picture& P) {
        const Raster R{.Pixels = reinterpret_cast<std::uint32_t*>(Image_.bits()),
                       .Stride = Image_.bytesPerLine() / 4,
                       .Width = P.Width,
                       .Height = P.Height};
        const Box_Px All{0, 0, P.Width, P.Height};
        Raster_Copy(R, P, All, All);
    }

    QImage Image_;
    std::uint64_t Id_ = 0;
};

class Image_Control final : public Control_Widget {
public:
    explicit Image_Control(Form_Widget& Owner) : Shown_(new Picture_Widget(&Owner)) {
        Widget = Shown_;
        Shown_->setMouseTracking(true);
    }
    void Follow(const Control& C) override {
        Follow_Common(*this, C);
        Shown_->Show(C.Shown);
    }

private:
    Picture_Widget* Shown_;
};

}  // namespace

std::unique_ptr<Control_Widget> Make_Image(Form_Widget& Owner, const Control&) {
    return std::make_unique<Image_Control>(Owner);
}
