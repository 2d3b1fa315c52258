// qt/image_widget.cpp - pictures and lamps in a form.
#include <QImage>
#include <QPainter>
#include <QWidget>

#include "qt/control_widgets.h"
#include "qt/form_widget.h"
#include "qt/raster.h"

namespace {

class Picture_Widget final : public QWidget {
public:
    // Without a size of its own it takes that of its picture.
    Picture_Widget(QWidget* Parent, QSize Fixed, bool Stretched)
        : QWidget(Parent), Fixed_(Fixed), Stretched_(Stretched) {
        setFixedSize(Fixed_);
    }

    void Show(const Picture* P) {
        const std::uint64_t Id = P != nullptr ? P->Id : 0;
        if (Id == Id_) return;
        Id_ = Id;
        const QSize Natural = P != nullptr ? QSize(P->Width, P->Height) : QSize(0, 0);
        const QSize Size = Stretched_ && P != nullptr ? Fixed_ : Natural;
        Image_ = Size.isEmpty() ? QImage() : QImage(Size, QImage::Format_RGB32);
        if (!Image_.isNull()) Paint_Into_Image(*P);
        if (Fixed_.isEmpty()) setFixedSize(Natural);
        update();
    }

protected:
    // An empty one of fixed size shows where the picture will be.
    void paintEvent(QPaintEvent*) override {
        QPainter P(this);
        if (!Fixed_.isEmpty()) P.fillRect(rect(), palette().color(QPalette::Mid));
        P.drawImage(0, 0, Image_);
    }

private:
    void Paint_Into_Image(const Picture& P) {
        const Raster R{.Pixels = reinterpret_cast<std::uint32_t*>(Image_.bits()),
                       .Stride = Image_.bytesPerLine() / 4,
                       .Width = Image_.width(),
                       .Height = Image_.height()};
        Raster_Copy(R, P, {0, 0, P.Width, P.Height}, Edges_Of({0, 0, R.Width, R.Height}));
    }

    QSize Fixed_;
    bool Stretched_;
    QImage Image_;
    std::uint64_t Id_ = 0;
};

class Image_Control final : public Control_Widget {
public:
    Image_Control(Form_Widget& Owner, const Control& C)
        : Shown_(new Picture_Widget(&Owner, QSize(C.Width, C.Height),
                                    C.Stretched && C.Width > 0 && C.Height > 0)) {
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

class Lamp_Spot final : public QWidget {
public:
    explicit Lamp_Spot(QWidget* Parent) : QWidget(Parent) { setFixedSize(Lamp_Size); }
    void Light(Long Rgb) {
        Rgb_ = Rgb;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter P(this);
        P.setRenderHint(QPainter::Antialiasing);
        P.setPen(palette().color(QPalette::WindowText));
        P.setBrush(Rgb_ == Usual_Colour ? palette().color(QPalette::Mid)
                                        : QColor::fromRgb(static_cast<QRgb>(Rgb_)));
        P.drawEllipse(QRectF(rect()).adjusted(1, 1, -1, -1));
    }

private:
    static constexpr QSize Lamp_Size{20, 20};
    Long Rgb_ = Usual_Colour;
};

class Lamp_Control final : public Control_Widget {
public:
    explicit Lamp_Control(Form_Widget& Owner) : Spot_(new Lamp_Spot(&Owner)) { Widget = Spot_; }
    void Follow(const Control& C) override {
        Follow_Common(*this, C);
        Spot_->Light(C.Colour);
    }

private:
    Lamp_Spot* Spot_;
};

}  // namespace

std::unique_ptr<Control_Widget> Make_Image(Form_Widget& Owner, const Control& C) {
    return std::make_unique<Image_Control>(Owner, C);
}

std::unique_ptr<Control_Widget> Make_Lamp(Form_Widget& Owner, const Control&) {
    return std::make_unique<Lamp_Control>(Owner);
}
