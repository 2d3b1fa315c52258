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
#include "core/work.h"
#include "gen/class_raster.h"
#include "gen/emit_classes.h"
#include "gen/emit_excl.h"
#include "gen/emit_lwm_poly.h"
#include "gen/emit_night_lines.h"
#include "gen/emit_remesh.h"
#include "gen/emit_vtp2_poly.h"
#include "gen/emitter.h"
#include "gen/generation_host.h"
#include "gen/home_turn.h"
#include "gen/kept_outputs.h"
#include "gen/makers.h"
#include "gen/outputs.h"
#include "gen/source_frame.h"
#include "gen/texture_bounds.h"

namespace {

template <typename Is_Wanted>
bool Any_Object(Is_Wanted Wanted) {
    for (Long I = First_Obj; I <= Nb_Obj; ++I)
        if (Wanted(Tab_Obj[I].Attr)) return true;
    return false;
}

// Whether the project has anything for an emitter; what it makes of it shows when it runs.
bool Has_Exclusions() {
    return Nb_Excl != 0;
}

bool Has_Altitudes() {
    return std::ranges::any_of(Tab_PtGrid.Rows(), [](const PtGrid& P) { return P.Active == 1; });
}

bool Has_Mask_Or_Lines() {
    return Nb_Area != 0 || Nb_Lod8 != 0 || Any_Polygon(Technique_LWM) ||
           Any_Object(
               [](const Attr& A) { return Is_Coast(A) || (Has_Line(A) && A.Vtp1_Line != 1); });
}

bool Has_Textured() {
    return Any_Polygon(Technique_VTP2);
}

bool Has_Lights() {
    return Any_Object([](const Attr& A) { return Has_Line(A) && A.Line_Night != 0; });
}

template <const auto& Tab>
bool Has_Classes() {
    return std::ranges::any_of(Tab.Rows(), [](const auto& R) { return R.Num != No_Class; });
}

struct Emitter {
    void (*Run)();
    bool FS_Only;  // CFS2 does not know this kind of output
    Maker By;
    bool (*Is_Needed)();

    bool Runs() const { return !FS_Only || FS_CFS == For_FS; }
};

constexpr std::array The_Emitters{
    Emitter{Emit_Excl, false, Maker::Assembler, Has_Exclusions},
    Emitter{Emit_Remesh, true, Maker::Assembler, Has_Altitudes},
    Emitter{Emit_LWM_Poly, false, Maker::Assembler, Has_Mask_Or_Lines},
    Emitter{LC_Generate, false, Maker::Class_Builder, Has_Classes<Tab_LC>},
    Emitter{WC_Generate, false, Maker::Class_Builder, Has_Classes<Tab_WC>},
    Emitter{Emit_VTP2_Poly, true, Maker::Assembler, Has_Textured},
    Emitter{Night_Lines_Generate, false, Maker::Night_Lights, Has_Lights},
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

bool Is_Left_Out(Maker M) {
    return The_Report.Choice == Tool_Choice::Without_Missing && !Missing_Tools(M).empty();
}

void Run_Emitters() {
    Delete_Older_Outputs(Is_Left_Out);
    for (const Emitter& E : The_Emitters) {
        if (E.Runs() && !Is_Left_Out(E.By)) E.Run();
        Work_Next_Part();
    }
}

// What the emitters had taken is free by the time the box is made.
void Make_All() {
    const bool Fits = Within_Memory([] {
        try {
            Run_Emitters();
        } catch (const Work_Cancelled&) {
            The_Report.Was_Cancelled = true;
        }
    });
    Outputs_End();
    if (!Fits) Box_No_Memory("The generation", "La g\xE9n\xE9ration");
    if (!The_Host().Is_Dry_Run()) Kept_Close();
}

std::vector<std::string> Tools_Lacking() {
    std::vector<std::string> Lacking;
    for (const Emitter& E : The_Emitters) {
        if (!E.Runs() || !E.Is_Needed()) continue;
        for (std::string& Path : Missing_Tools(E.By))
            if (std::ranges::count(Lacking, Path) == 0) Lacking.push_back(std::move(Path));
    }
    return Lacking;
}

// What there is to be told of files, now that they are done.
void Report_Files() {
    if (The_Report.Choice != Tool_Choice::Sources_Only)
        for (const Output_Fact& F : Output_Facts())
            The_Report.Outputs.push_back({{.Path = F.Path, .Found = File_Look(F.Path)}, F.State});
    const auto Is_Output = [](const Report_File& F) {
        return std::ranges::count(The_Report.Outputs, F.Path, &Report_File::Path) != 0;
    };
    std::erase_if(The_Report.Sources, Is_Output);
    for (Report_File& F : The_Report.Sources) F.Found = File_Look(F.Path);
}

void Generate_Watched() {
    Generation_Host Watching(The_Host(), The_Report.Choice);
    const Host_Scope Watched(Watching);
    const Work_Scope Work("Bar_Compile", static_cast<Long>(The_Emitters.size()));
    Outputs_Begin();
    Make_All();
    The_Report.Seconds = Work_Time().count();
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

bool Generation_Run(const Generation_Plan& Plan) {
    const Home_Turn Turn;
    if (!Turn.Is_Taken()) return false;
    Mode_Leave();
    if (Poly_Out_Of_Tex == 1 || !Special_Polygons_Are_Linked()) return false;
    The_Report = {.Choice = Plan.Choice};
    if (Plan.On_Missing) The_Report.Missing_Tools = Tools_Lacking();
    if (!The_Report.Missing_Tools.empty())
        The_Report.Choice = Plan.On_Missing(The_Report.Missing_Tools);
    if (The_Report.Choice == Tool_Choice::Stop) return false;
    Call(The_View.View_Redraw);
    The_Host().Set_Caption("LCompileNom", "");
    Show_Progress(true);
    Generate_Watched();
    Report_Files();
    The_Host().Set_Pointer(Pointer_Shape::Normal);
    Show_Progress(false);
    return true;
}

void Cmd_API() {
    Generation_Run({});
}

void Gen_Install() {
    The_View.Mode_Leave = Mode_Leave;
}
