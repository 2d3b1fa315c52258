// ui/canvas/own_canvas.h - a canvas beside that of the main form, as dialogs have one.
//
//     Own_Canvas Map;                             // a member of the dialog
//     const Canvas_Scope On(*this, "Pic", Map);   // in each handler that paints or converts
//     The_Surface().Clear();
//     Zoom *= 2.0;                                // of the dialog; so is Pic_To_Map
#pragma once

#include <string_view>

#include "ui/canvas/surface.h"
#include "ui/canvas/view.h"

class Form;

/// What such a canvas shows: its part of the map, and the items above it.
struct Own_Canvas {
    View_State View;
    Overlay_Items Overlay;
};

/// For the life of this object the canvas of F named Control is the one that is painted on and
/// asked: it is The_Surface, and The_View_State is that of Of. Afterwards the former one is. Where
/// nobody draws F, what is painted goes nowhere. No form is run meanwhile.
class Canvas_Scope {
public:
    Canvas_Scope(const Form& F, std::string_view Control, Own_Canvas& Of);
    ~Canvas_Scope();
    Canvas_Scope(const Canvas_Scope&) = delete;
    Canvas_Scope& operator=(const Canvas_Scope&) = delete;

private:
    Surface_Scope On_;
    Own_Canvas& Of_;
};
