// core/point_pool.cpp - Tab_Pt without the points that deletions have left behind.
#include "core/point_pool.h"

#include "core/model_changes.h"

namespace {

// 1 for each row that is on a chain.
std::vector<Long> Live_Rows() {
    std::vector<Long> Live(static_cast<std::size_t>(Nb_Pt) + 1);
    for (Long I = First_Obj; I <= Nb_Obj; ++I) {
        Long P = Tab_Obj[I].First_Pt;
        for (Long N = 1; N <= Tab_Obj[I].Nb_Pts; ++N, P = Tab_Pt[P].Next)
            Live[static_cast<std::size_t>(P)] = 1;
    }
    return Live;
}

}  // namespace

Long Nb_Dead_Pt() {
    Long Nb = Nb_Pt;
    for (Long I = First_Obj; I <= Nb_Obj; ++I) Nb -= Tab_Obj[I].Nb_Pts;
    return Nb;
}

std::vector<Long> Pt_Compact() {
    std::vector<Long> New_Row = Live_Rows();
    Long Nb = 0;
    for (Long& Row : New_Row) Row = Row == 0 ? 0 : ++Nb;
    const auto Moved = [&New_Row](Long& Row) { Row = New_Row[static_cast<std::size_t>(Row)]; };
    for (Long P = 1; P <= Nb_Pt; ++P) {
        const Long To = New_Row[static_cast<std::size_t>(P)];
        if (To == 0) continue;
        Pt Kept = Tab_Pt[P];
        Moved(Kept.Prev);
        Moved(Kept.Next);
        Tab_Pt.Edit(To) = Kept;
    }
    Tab_Pt.Truncate(Nb);
    for (Long I = First_Obj; I <= Nb_Obj; ++I) {
        Obj& O = Tab_Obj.Edit(I);
        if (O.Nb_Pts == 0) O.First_Pt = O.Last_Pt = 0;
        Moved(O.First_Pt);
        Moved(O.Last_Pt);
    }
    ++Model_Changes;
    return New_Row;
}
