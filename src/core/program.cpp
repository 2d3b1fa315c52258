// core/program.cpp - everything back to the state of a start, here and in the folders above.
#include "core/program.h"

#include <vector>

#include "core/lifecycle.h"
#include "core/line_reader.h"
#include "core/messages.h"
#include "core/model_ops.h"
#include "core/project_file.h"
#include "core/reference_file.h"
#include "core/resets.h"
#include "core/view_calls.h"
#include "platform/files.h"

namespace {

// A function's own, since other files register while globals are being made.
std::vector<void (*)()>& Resets() {
    static std::vector<void (*)()> List;
    return List;
}

}  // namespace

bool At_Reset(void (*Reset)()) {
    Resets().push_back(Reset);
    return true;
}

void Program_Reset() {
    Instance_Release();
    Model_Reset();
    The_Program = {};
    The_View = {};
    Msg_Result = Msg_Icon = Msg_Buttons = 0;
    Msg_Text.clear();
    Load_Failed = 0;
    The_V24 = {};
    V24_Upgrade = 0;
    The_References = {};
    Cur_Line = Cur_Token = {};
    Cur_Len = Cur_Pos = 0;
    Reader_Open({});
    On_Save_Step = nullptr;
    for (const auto Reset : Resets()) Reset();
}
