// qt/tool_strip.h - the tool bar: groups of buttons, in as many lines as the width asks for.
#pragma once

#include <QWidget>

class QBoxLayout;

class Tool_Strip final : public QWidget {
public:
    explicit Tool_Strip(QWidget* Parent);

    /// Begins another group, parted from the former one by a line. A group stays in one line.
    void Begin_Group();
    void Add(QWidget* Tool);

private:
    QBoxLayout* Group_ = nullptr;
};
