// core/work.cpp - the work that is on.
#include "core/work.h"

#include <algorithm>

#include "core/host.h"
#include "core/number_text.h"
#include "core/resets.h"

namespace {

using Clock = std::chrono::steady_clock;

struct Work {
    const char* Bar = nullptr;  // null while no work is on
    Long Nb_Parts = 0, Part = 0;
    Double Share = 0.0;  // of the part
    Long Shown = 0;
    bool Cancelled = false;
    Clock::time_point Start;
};

Work The_Work;
const bool Is_Reset = At_Reset([] { The_Work = {}; });

// A host is told of what can be seen alone.
void Show() {
    const Long Now = Fix_Lng((The_Work.Part - 1 + The_Work.Share) * Work_Whole / The_Work.Nb_Parts);
    if (Now <= The_Work.Shown) return;
    The_Work.Shown = Now;
    The_Host().Set_Value(The_Work.Bar, Now);
    The_Host().Refresh();
}

}  // namespace

Work_Scope::Work_Scope(const char* Bar, Long Nb_Parts) {
    The_Work = {.Bar = Bar, .Nb_Parts = Nb_Parts, .Part = 1, .Start = Clock::now()};
    The_Host().Set_Value(Bar, 0);
}

Work_Scope::~Work_Scope() {
    The_Work = {};
}

bool Work_Is_On() {
    return The_Work.Bar != nullptr;
}

std::chrono::duration<Double> Work_Time() {
    return Work_Is_On() ? Clock::now() - The_Work.Start : std::chrono::duration<Double>{};
}

void Work_Next_Part() {
    if (!Work_Is_On()) return;
    ++The_Work.Part;
    The_Work.Share = 0.0;
    Show();
    Work_Look();
}

void Work_At(Double Share) {
    if (!Work_Is_On()) return;
    The_Work.Share = std::max(The_Work.Share, Share);
    Show();
    Work_Look();
}

void Work_Look() {
    if (The_Work.Cancelled) throw Work_Cancelled();
}

void Work_Cancel() {
    The_Work.Cancelled = Work_Is_On();
}

bool Work_Is_Cancelled() {
    return The_Work.Cancelled;
}
