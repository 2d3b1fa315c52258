// ui/edit/route_hint.cpp - a line of help for each state of the tools.
#include "ui/edit/route_hint.h"

#include "core/model.h"
#include "ui/canvas/edit_state.h"

namespace {

constexpr Wording Starts{"Click where the object starts; Esc ends",
                         "Cliquer l\xE0 o\xF9 l'objet commence ; Echap termine"};
constexpr Wording Selects{"Double-click selects the nearest object",
                          "Double-clic : s\xE9lectionne l'objet le plus proche"};
constexpr Wording Takes_End{"Double-click takes the nearer end of the object; Esc ends",
                            "Double-clic : prend l'extr\xE9mit\xE9 la plus proche ; Echap termine"};
constexpr Wording Lays{"Click lays a point; Esc ends", "Clic : pose un point ; Echap termine"};
constexpr Wording Takes_Segment{"Double-click takes the nearest segment; Esc ends",
                                "Double-clic : prend le segment le plus proche ; Echap termine"};
constexpr Wording Inserts{"Click inserts a point; Esc lets go of the segment",
                          "Clic : ins\xE8re un point ; Echap l\xE2"
                          "che le segment"};
constexpr Wording Takes_Point{"Double-click takes the nearest point; Esc ends",
                              "Double-clic : prend le point le plus proche ; Echap termine"};
constexpr Wording Grabs{"Click grabs the point; Delete removes it; Esc ends",
                        "Clic : saisit le point ; Suppr l'efface ; Echap termine"};
constexpr Wording Drops{"Click drops the point; Esc leaves it where it was",
                        "Clic : d\xE9pose le point ; Echap le laisse en place"};
constexpr Wording Selected{
    "Choose a tool; right click: attributes; Shift or Ctrl with an arrow key moves the object",
    "Choisir un outil ; clic droit : attributs ; Maj ou Ctrl et une fl\xE8"
    "che d\xE9placent l'objet"};
constexpr Wording Nothing{"Choose New object or Object selection",
                          "Choisir Nouvel objet ou S\xE9lectionner un objet"};

}  // namespace

Wording Route_Hint() {
    if (Pending_New != 0) return Starts;
    if (Pending_Select != 0) return Selects;
    if (Obj_Selected == 0) return Nothing;
    if (Tool_Extend != 0) return Tool_Armed != 0 ? Takes_End : Lays;
    if (Tool_Insert != 0) return Tool_Armed != 0 ? Takes_Segment : Inserts;
    if (Tool_Sel_Point == 0) return Selected;
    if (Tool_Armed != 0) return Takes_Point;
    return Pt_Fresh != 0 ? Grabs : Drops;
}
