// ui/form/layout.h - where the controls of a form stand, without a pixel in it.
//
// A layout is a tree. Its leaves name controls of the form; what is not in the layout is not
// shown. Whoever draws a form decides on distances, sizes and the order of buttons.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "core/numbers.h"

struct Layout {
    enum class Kind {
        Control,     // the control Name
        Option,      // item Nb of the Options Name by itself; the others stand elsewhere
        Column,      // Parts one below the other
        Row,         // Parts side by side, sharing the width
        Fields,      // Parts one below the other, their labels in a column of their own
        Grid,        // Parts in Nb columns of equal length, read downwards
        Frame,       // a box round Parts (a column) with the caption of control Name
        Tabs,        // the tab control Name: each part is a Tab
        Tab,         // a column; its caption is that of control Name, of kind Tab
        Buttons,     // the buttons that end a dialog, in the order of the desktop
        Space,       // takes the room that is left
        Menu_Bar,    // Parts are Menus
        Menu,        // the menu Name; Parts are controls of kind Menu_Item, Menus and Gaps
        Gap,         // a line between menu items or groups of the tool bar
        Tool_Bar,    // Parts are controls and Gaps
        Canvas,      // the canvas Name with the scroll bars Parts: the upright one, then the flat
        Read_Out,    // a row of labels that keep their places when their texts change
        Over_Canvas  // Parts lie over the middle of the canvas while they are visible
    };
    Kind What = Kind::Column;
    std::string Name;
    std::vector<Layout> Parts = {};
    Long Nb = 0;

    Layout() = default;
    /// A control by its name, so that lists of names read as they are.
    Layout(const char* Control) : What(Kind::Control), Name(Control) {}
    Layout(std::string Control) : What(Kind::Control), Name(std::move(Control)) {}
    Layout(Kind K, std::string N, std::vector<Layout> P, Long Number = 0)
        : What(K), Name(std::move(N)), Parts(std::move(P)), Nb(Number) {}
};

using Layouts = std::vector<Layout>;

inline Layout Column(Layouts Parts) {
    return {Layout::Kind::Column, {}, std::move(Parts)};
}
inline Layout Row(Layouts Parts) {
    return {Layout::Kind::Row, {}, std::move(Parts)};
}
inline Layout Fields(Layouts Parts) {
    return {Layout::Kind::Fields, {}, std::move(Parts)};
}
inline Layout Grid(Long Columns, Layouts Parts) {
    return {Layout::Kind::Grid, {}, std::move(Parts), Columns};
}
/// So that other controls can stand beside each option: every item of the Options must have its
/// place somewhere.
inline Layout Option(std::string Name, Long I) {
    return {Layout::Kind::Option, std::move(Name), {}, I};
}
inline Layout Frame(std::string Name, Layouts Parts) {
    return {Layout::Kind::Frame, std::move(Name), std::move(Parts)};
}
inline Layout Tabs(std::string Name, Layouts Parts) {
    return {Layout::Kind::Tabs, std::move(Name), std::move(Parts)};
}
inline Layout Tab(std::string Name, Layouts Parts) {
    return {Layout::Kind::Tab, std::move(Name), std::move(Parts)};
}
inline Layout Buttons(Layouts Parts) {
    return {Layout::Kind::Buttons, {}, std::move(Parts)};
}
inline Layout Space() {
    return {Layout::Kind::Space, {}, {}};
}
inline Layout Menu_Bar(Layouts Menus) {
    return {Layout::Kind::Menu_Bar, {}, std::move(Menus)};
}
inline Layout Menu(std::string Name, Layouts Items) {
    return {Layout::Kind::Menu, std::move(Name), std::move(Items)};
}
inline Layout Gap() {
    return {Layout::Kind::Gap, {}, {}};
}
inline Layout Tool_Bar(Layouts Parts) {
    return {Layout::Kind::Tool_Bar, {}, std::move(Parts)};
}
inline Layout Canvas(std::string Name, Layouts Bars) {
    return {Layout::Kind::Canvas, std::move(Name), std::move(Bars)};
}
inline Layout Read_Out(Layouts Labels) {
    return {Layout::Kind::Read_Out, {}, std::move(Labels)};
}
inline Layout Over_Canvas(Layouts Frames) {
    return {Layout::Kind::Over_Canvas, {}, std::move(Frames)};
}
