// qt/control_widgets.h - the widget of each kind of control.
#pragma once

#include <QString>
#include <memory>

#include "ui/form/form.h"

class Form_Widget;
class QAction;
class QLabel;
class QWidget;

/// A control in the window. Widgets belong to Qt's tree.
class Control_Widget {
public:
    virtual ~Control_Widget() = default;
    /// Takes over what C shows now.
    virtual void Follow(const Control& C) = 0;
    /// One of several options by itself, for a layout that places each; null for other kinds.
    virtual QWidget* Part(Long) { return nullptr; }

    QWidget* Widget = nullptr;  // null for a menu item
    QAction* Action = nullptr;  // of a menu item
    QLabel* Label = nullptr;    // the caption of a field, beside it
};

/// What the place of a control changes about its widget.
enum class Place { Dialog, Tool_Bar, Read_Out };

/// Makes the widget of C as a child of Owner, and the label of its caption for a kind that has
/// its caption beside it.
std::unique_ptr<Control_Widget> Make_Control_Widget(Form_Widget& Owner, const Control& C,
                                                    Place Where = Place::Dialog);

/// What a person would call C: what is said for it, with what a label shows; else its caption, its
/// tip, or its name.
QString Readable_Name(const Control& C);

/// What all kinds share: enabled, visible, tip and accessible name.
void Follow_Common(Control_Widget& Shown, const Control& C);

/// The width of so many characters in the widget's font.
int Width_Of(const QWidget& Widget, int Columns);

// Kinds with a file of their own.
std::unique_ptr<Control_Widget> Make_Field(Form_Widget& Owner, const Control& C);
std::unique_ptr<Control_Widget> Make_List(Form_Widget& Owner, const Control& C);
std::unique_ptr<Control_Widget> Make_Combo(Form_Widget& Owner, const Control& C);
std::unique_ptr<Control_Widget> Make_Options(Form_Widget& Owner, const Control& C);
std::unique_ptr<Control_Widget> Make_Lamp(Form_Widget& Owner, const Control& C);
std::unique_ptr<Control_Widget> Make_Image(Form_Widget& Owner, const Control& C);
