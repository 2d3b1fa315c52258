// ui/canvas/own_canvas.cpp - one canvas in the place of another for a while.
#include "ui/canvas/own_canvas.h"

#include <utility>

#include "ui/form/form.h"

namespace {

Surface& Surface_Of(const Form& F, std::string_view Control) {
    static Null_Surface Nowhere;
    Surface* Drawn = F.View != nullptr ? F.View->Surface_Of(Control) : nullptr;
    return Drawn != nullptr ? *Drawn : Nowhere;
}

}  // namespace

Canvas_Scope::Canvas_Scope(const Form& F, std::string_view Control, Own_Canvas& Of)
    : On_(Surface_Of(F, Control)), Of_(Of) {
    The_Surface().Set_Overlay(Of_.Overlay);
    std::swap(The_View_State, Of_.View);
}

Canvas_Scope::~Canvas_Scope() {
    std::swap(The_View_State, Of_.View);
}
