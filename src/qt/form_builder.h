// qt/form_builder.h - the layout of a form made into widgets.
#pragma once

#include <vector>

#include "qt/control_widgets.h"
#include "qt/form_widget.h"

class QBoxLayout;
class QMenu;

/// Builds the widgets of one Form_Widget; used once.
class Form_Builder {
public:
    explicit Form_Builder(Form_Widget& Into) : Into_(Into) {}
    void Build();

private:
    void Add(QBoxLayout& To, const Layout& L);
    void Add_Parts(QBoxLayout& To, const Layouts& Parts);
    void Add_Control(QBoxLayout& To, const std::string& Name);
    void Add_Fields(QBoxLayout& To, const Layouts& Parts);
    void Add_Grid(QBoxLayout& To, const Layout& L);
    void Add_Option(QBoxLayout& To, const Layout& L);
    void Add_Frame(QBoxLayout& To, const Layout& L);
    void Add_Tabs(QBoxLayout& To, const Layout& L);
    void Add_Buttons(QBoxLayout& To, const Layouts& Parts);
    void Add_Menu_Bar(const Layouts& Menus);
    void Add_Menu(QMenu& Menu, const Layouts& Parts);
    void Add_Tool_Bar(QBoxLayout& To, const Layouts& Parts);
    void Add_Canvas(QBoxLayout& To, const Layout& L);
    void Add_Read_Out(QBoxLayout& To, const Layouts& Parts);
    void Add_Over_Canvas();

    Control_Widget& Make(const std::string& Name, Place Where = Place::Dialog);
    Control_Widget& Make_Menu(const std::string& Name, QMenu& Menu);

    Form_Widget& Into_;
    std::vector<const Layout*> Over_Canvas_;  // until the canvas is made
};
