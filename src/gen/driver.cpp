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
#include "gen/emit_classes.h"
#include "gen/emit_excl.h"
#include "gen/emit_lwm_poly.h"
#include "gen/emit_night_lines.h"
#include "gen/emit_remesh.h"
#include "gen/emit_vtp2_poly.h"
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

// "_" and digits, as outputs have behind their stem: what else matches is another's.
bool Is_Numbered(std::string_view Path, std::size_t Stem_Size) {
    Path.remove_prefix(Stem_Size + 1);
    Path.remove_suffix(std::string_view(".bgl").size());
    return !Path.empty() && Path.find_first_not_of("0123456789") == std::string_view::npos;
}

void Delete_Older_Outputs() {
    if (!NameBglExcl.empty()) Bgl_Delete(NameBglExcl);
    const std::string Stem = Bgl_Stem();
    for (const std::string& Path : Files_Matching(Stem, "_*.bgl"))
        if (Is_Numbered(Path, Stem.size())) Bgl_Delete(Path);
}

void Show_Progress(bool On) {
    The_Host().Set_Visible("Fram_Compile", On);
    The_Host().Refresh();
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
    Mode_Leave();
    if (Poly_Out_Of_Tex == 1) return;
    if (!Special_Polygons_Are_Linked()) return;
    Call(The_View.View_Redraw);
    The_Host().Set_Caption("LCompileNom", "");
    Show_Progress(true);
    Outputs_Begin();
    Delete_Older_Outputs();
    for (const Emitter& E : The_Emitters)
        if (!E.FS_Only || FS_CFS == For_FS) E.Run();
    The_Host().Set_Pointer(Pointer_Shape::Normal);
    Show_Progress(false);
}

void Gen_Install() {
    The_View.Mode_Leave = Mode_Leave;
}
