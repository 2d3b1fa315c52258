// core/model_sound.cpp - the chains, numbers and squares of a model.
#include "core/model_sound.h"

#include <algorithm>
#include <cmath>
#include <concepts>
#include <vector>

#include "core/project_fields.h"
#include "core/step.h"

namespace {

// One mark for each point: two objects may not share one, and no chain runs in a circle.
bool Chain_Is_Sound(const Obj& O, std::vector<bool>& Seen) {
    Long Before = 0, P = O.First_Pt;
    if (O.Nb_Pts < 0) return false;
    for (Long N = 0; N < O.Nb_Pts; ++N, P = Tab_Pt[P].Next) {
        if (P < 1 || P > Nb_Pt || Seen[static_cast<std::size_t>(P)]) return false;
        if (Tab_Pt[P].Prev != Before) return false;
        Seen[static_cast<std::size_t>(P)] = true;
        Before = P;
    }
    return O.Nb_Pts == 0 || (P == 0 && O.Last_Pt == Before);
}

bool Chains_Are_Sound() {
    const auto Is_Row = [](Long P) { return 0 <= P && P <= Nb_Pt; };
    for (const Pt& P : Tab_Pt.Rows())
        if (!Is_Row(P.Prev) || !Is_Row(P.Next)) return false;
    std::vector<bool> Seen(static_cast<std::size_t>(Nb_Pt) + 1);
    return Nb_Obj >= 1 && std::ranges::all_of(Tab_Obj.Rows(), [&](const Obj& O) {
               return Chain_Is_Sound(O, Seen);
           });
}

template <typename T>
bool Numbers_Are_Finite(const T& Record) {
    bool Good = true;
    Record_Fields::Visit<T>(Record, [&](const auto& X) {
        if constexpr (std::floating_point<std::remove_cvref_t<decltype(X)>>)
            Good = Good && std::isfinite(X);
    });
    return Good;
}

template <typename R>
bool Square_Is_There(const R& S) {
    const auto Inside = [](Int X, Int Limit) { return 0 <= X && X < Limit; };
    if (!Inside(S.AreaLon, Nb_AreaLon) || !Inside(S.AreaLat, Nb_AreaLat)) return false;
    if constexpr (std::derived_from<R, Cell_Pos>)
        return Inside(S.CellLon, Nb_Cell_In_Area) && Inside(S.CellLat, Nb_Cell_In_Area);
    return true;
}

template <typename T>
bool Row_Is_Sound(const T& Record) {
    if constexpr (std::derived_from<T, Cell_Pos> || std::same_as<T, Lod8>)
        if (!Square_Is_There(Record)) return false;
    return Numbers_Are_Finite(Record);
}

bool Head_Is_Sound() {
    bool Good = Numbers_Are_Finite(The_Head) && Numbers_Are_Finite(The_Calibration);
    const auto Below = [&Good](Long Limit) {
        return [&Good, Limit](Int& X) { Good = Good && 0 <= X && X < Limit; };
    };
    project_fields::Line_0040(The_Calibration, Below(Nb_AreaLat), Below(Nb_AreaLon),
                              Below(Nb_Cell_In_Area));
    return Good;
}

}  // namespace

bool Model_Is_Sound() {
    bool Good = Head_Is_Sound();
    Each_Table([&]<typename T>(Table_Of, const Project_Table<T>& Tab) {
        Good = Good && std::ranges::all_of(Tab.Rows(), Row_Is_Sound<T>);
    });
    return Good && Chains_Are_Sound();
}
