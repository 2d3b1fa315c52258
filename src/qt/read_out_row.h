// qt/read_out_row.h - a line of read-outs, each whole or not there.
#pragma once

#include <QWidget>
#include <vector>

class QBoxLayout;

class Read_Out_Row final : public QWidget {
public:
    explicit Read_Out_Row(QWidget* Parent);

    /// Where not all have the width that they want those of the highest Gives_Way go first; those
    /// of 0 always stay.
    void Add(QWidget* Shown, int Stretch, int Gives_Way);

    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* E) override;

private:
    struct Place {
        QWidget* Holder;
        int Gives_Way;
    };
    int Width_Up_To(int Gives_Way) const;
    void Choose();

    std::vector<Place> Places_;
    QBoxLayout* Line_;
};
