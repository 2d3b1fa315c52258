// qt/form_widget.h - any form as widgets: its layout drawn, its changes followed, and what the
// user does handed to ui/form/form_events.h.
//
// A widget's object name is the control's name. The form decides who has the focus: Qt's focus
// follows it, and a field that is left by mouse or Tab is left in the form on the next turn of
// the event loop, unless the click that did it has told the form already.
#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>

#include "qt/input.h"
#include "ui/form/form.h"

class Canvas_Widget;
class Control_Widget;
class QKeyEvent;
class QMenuBar;

/// The property that names the control of a widget which does not lie inside the control's own.
inline constexpr char Control_Property[] = "control";

class Form_Widget final : public QWidget, public Form_View {
public:
    /// Draws F, which must live longer, and becomes its view.
    explicit Form_Widget(Form& F, QWidget* Parent = nullptr);
    ~Form_Widget() override;

    /// The form was closed; it has another title.
    std::function<void()> On_Closed = {};
    std::function<void()> On_Title = {};
    std::function<void(bool On)> On_Above_Main = {};

    /// Brings the widgets in line with all changes now; they follow on the next turn of the
    /// event loop otherwise.
    void Flush();
    /// Runs Act, which hands the form something that the user did, and flushes.
    void Do(const std::function<void(Form&)>& Act);
    /// Keys, focus and mouse of a widget that belongs to a control are seen here first.
    void Watch(QWidget& Widget);

    Form& The_Form() { return Form_; }
    /// The canvas of the form, or null.
    Canvas_Widget* Canvas() const { return Canvas_; }
    /// The widget of a control that is in the layout, or null.
    QWidget* Widget_Of(std::string_view Control) const;
    /// The control that a widget belongs to, "" when to none.
    std::string Control_Of(const QObject* Widget) const;
    /// Gives the control that has the form's focus, else the first that takes it, the window's.
    void Take_Focus();

    void Control_Changed(const Control& C) override;
    void Title_Changed(const Form& F) override;
    void Focus_Changed(const Control& C, bool Select_All) override;
    void Form_Closed(const Form& F) override;
    void Above_Main_Changed(const Form& F) override;
    Surface* Surface_Of(std::string_view Control) override;

protected:
    bool eventFilter(QObject* Watched, QEvent* E) override;

private:
    friend class Form_Builder;

    bool Key_Pressed(const QKeyEvent& E);
    bool Space_Pressed();
    bool Mouse_Used(const QWidget& On, const QEvent& E);
    void Hold_Space(bool Held);
    void Leave_Canvas();
    void Clicked(const QWidget& On, const Control& C, const QEvent& E);
    void Settle_Focus();
    void Put_Focus_Back();
    bool Open_Menu(char Letter);

    Form& Form_;
    std::map<std::string, std::unique_ptr<Control_Widget>, std::less<>> Shown_;
    std::set<std::string, std::less<>> Changed_;
    QPointer<QMenuBar> Menu_Bar_;
    Canvas_Widget* Canvas_ = nullptr;
    Wheel_Rest Wheel_Rest_;
    bool Space_Held_ = false;  // with the focus on the canvas
    int Acts_ = 0;             // that are running, one inside the other
    bool Flush_Is_Due_ = false;
    bool Settle_Is_Due_ = false;
};
