// gen/emitter.cpp - what emitters ask before they begin, and how they end.
#include "gen/emitter.h"

#include "core/attr_kinds.h"
#include "core/messages.h"
#include "core/model.h"
#include "gen/outputs.h"
#include "gen/source_frame.h"
#include "geo/calibration.h"

bool Any_Polygon(Int Technique) {
    for (Long I = First_Obj; I <= Nb_Obj; ++I) {
        const Obj& O = Tab_Obj[I];
        if (Is_Polygon(O.Attr) && O.Attr.LWM_VTP2 == Technique && O.Nb_Pts >= 2) return true;
    }
    return false;
}

bool Can_Convert() {
    if (Calibration_Can_Serve()) return true;
    Msg_Show(7);
    return false;
}

std::string Bgl_Path(std::string_view Suffix) {
    return Bgl_Stem() + std::string(Suffix) + ".bgl";
}

std::string Mask_000(Long Num) {
    const std::string Digits = std::to_string(Num);
    return std::string(Digits.size() < 3 ? 3 - Digits.size() : 0, '0') + Digits;
}

bool Compile_Source(std::string_view Source, std::string_view Bgl, std::string_view Failure) {
    if (!Bgl_Stem().empty()) Bgl_Delete(Bgl);
    if (!Bgl_May_Be_Made(Bgl)) return true;
    const bool Has_Run = Run_BGLC(Source, Bgl);
    Bgl_Ended(Bgl, Has_Run);
    if (!Has_Run) Plain_Box(Failure);
    return Has_Run;
}
