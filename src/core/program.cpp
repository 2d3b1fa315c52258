// core/program.cpp - everything back to the state of a start.
#include "core/program.h"

#include "core/lifecycle.h"
#include "core/line_reader.h"
#include "core/messages.h"
#include "core/model_ops.h"
#include "core/project_file.h"
#include "core/view_calls.h"
#include "platform/files.h"

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
    Cur_Line = Cur_Token = {};
    Cur_Len = Cur_Pos = 0;
    Reader_Open({});
    On_Save_Step = nullptr;
}
