// gen/driver.cpp - the checks, the deletions and the order of a generation.
#include "gen/driver.h"

#include <algorithm>
#include <array>
#include <unordered_map>

#include "core/attr_kinds.h"
#include "core/host.h"
#include "core/messages.h"
#include "core/model.h"
#include "core/view_calls.h"
#include "core/within_memory.h"
#include "gen/emit_classes.h"
#include "gen/emit_excl.h"
#include "gen/emit_lwm_poly.h"
#include "gen/emit_night_lines.h"
#include "gen/emit_remesh.h"
#include "gen/emit_vtp2_poly.h"
#include "gen/home_turn.h"
#include "gen/kept_outputs.h"
#include "gen/outputs.h"
#include "gen/source_frame.h"
#include "gen/texture_bounds.h"

namespace {

struct Emitter {
    void (*Run)();
    bool FS_Only;  // CFS2 does not know this kind of output
};

constexpr std::array The_Emitters{
    Emitter{Emit_Excl, false},
    Emitter{Emit_Remesh, true},
    Emitter{Emit_LWM_Poly, false},
    Emitter{LC_Generate, false},
    Emitter{WC_Generate, false},
    Emitter{Emit_VTP2_Poly, true},
    Emitter{Night_Lines_Generate, false},
};

// Textures are looked up by their number, since both tables may be long.
bool Any_Polygon_Outside() {
    std::unordered_map<Int, Texture_Bounds> By_Num;
    for (const Ima& M : Tab_Ima.Rows()) By_Num[M.Num].Take(M);
    for (Long I = First_Obj; I <= Nb_Obj; ++I) {
        const Obj& O = Tab_Obj[I];
        if (Is_Open_Line(O.Attr) || O.Attr.Link_Ima == 0) continue;
        const auto Found = By_Num.find(O.Attr.Link_Ima);
        if (Found != By_Num.end() && Found->second.Misses(O)) return true;
    }
    return false;
}

bool Is_Unlinked_Special(const Obj& O) {
    return Is_Special_Vtp1(O.Attr) && O.Attr.Link_Ima == 0;
}

bool Special_Polygons_Are_Linked() {
    for (Long I = First_Obj; I <= Nb_Obj; ++I) {
        if (!Is_Unlinked_Special(Tab_Obj[I])) continue;
        Msg_Show(131);
        return false;
    }
    return true;
}

void Show_Progress(bool On) {
    The_Host().Set_Visible("Fram_Compile", On);
    The_Host().Refresh();
}

// What the emitters had taken is free by the time the box is made.
void Make_All() {
    const bool Fits = Within_Memory([] {
        Delete_Older_Outputs();
        for (const Emitter& E : The_Emitters)
            if (!E.FS_Only || FS_CFS == For_FS) E.Run();
    });
    if (!Fits) Box_No_Memory("The generation", "La g\xE9n\xE9ration");
    if (!The_Host().Is_Dry_Run()) Kept_Close();
}

}  // namespace

void Tex_Link_Check() {
    Poly_Out_Of_Tex = 0;
    if (Nb_Ima != 0 && Nb_Obj >= First_Obj && Any_Polygon_Outside()) {
        Msg_Show(130);
        Poly_Out_Of_Tex = 1;
        return;
    }
    Call(The_View.Ima_Clear);
    The_Host().Set_Pointer(Pointer_Shape::Cross);
}

void Mode_Leave() {
    Call(The_View.Route_Leave);
    Tex_Link_Check();
    The_Host().Set_Visible("LPtGrid", false);
}

void Cmd_API() {
    const Home_Turn Turn;
    if (!Turn.Is_Taken()) return;
    Mode_Leave();
    if (Poly_Out_Of_Tex == 1) return;
    if (!Special_Polygons_Are_Linked()) return;
    Call(The_View.View_Redraw);
    The_Host().Set_Caption("LCompileNom", "");
    Show_Progress(true);
    Outputs_Begin();
    Make_All();
    The_Host().Set_Pointer(Pointer_Shape::Normal);
    Show_Progress(false);
}

void Gen_Install() {
    The_View.Mode_Leave = Mode_Leave;
}
