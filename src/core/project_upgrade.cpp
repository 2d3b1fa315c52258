// core/project_upgrade.cpp - what has changed since version 4.0.
#include "core/project_upgrade.h"

#include "core/attr_kinds.h"
#include "core/project_file.h"

namespace {

// The layer of a line by its kind.
Byte Layer_Of_Kind(Int LineType) {
    if (LineType >= 1024 && LineType <= 1025) return 22;
    if (LineType >= 1026 && LineType <= 1133) return 21;
    if (LineType >= 1134 && LineType <= 1181) return 23;
    return 24;
}

}  // namespace

void Upgrade_Obj(Attr& A) {
    if (!Is_Open_Line(A) && The_V24.Chk_Change_Layer_Poly) A.Layer_Vtp2 = 17;
    if (The_V24.Chk_Adapt_lines) {
        A.Effil_Deb = 0;
        A.Effil_Fin = 0;
    }
    if (The_V24.Chk_Change_layer_Line && Has_Line(A)) A.Layer = Layer_Of_Kind(A.LineType);
}

void Upgrade_Excl(Excl& E) {
    auto& Flag = E.Chk_Excl;
    if (Flag[4] == 1) {
        Flag[4] = 0;
        Flag[7] = 1;
    }
    if (Flag[16] == 1) {
        Flag[16] = 0;
        Flag[4] = 1;
    }
    if (Flag[31] == 1 || Flag[32] == 1) {
        Flag[31] = 0;
        Flag[32] = 0;
        Flag[6] = 1;
    }
}
