// core/host.cpp - the host in use, and the silent one.
#include "core/host.h"

#include "platform/process.h"

namespace {

Silent_Host& The_Silent_Host() {
    static Silent_Host Silent;
    return Silent;
}

Host* Current_Host = nullptr;

}  // namespace

Host& The_Host() {
    return Current_Host != nullptr ? *Current_Host : The_Silent_Host();
}

Host_Scope::Host_Scope(Host& H) : Former_(Current_Host) {
    Current_Host = &H;
}

Host_Scope::~Host_Scope() {
    Current_Host = Former_;
}

Int Silent_Host::Show_Box(const Box& B) {
    switch (B.Style % 16) {
        case Box_Ok_Cancel:
        case Box_Yes_No_Cancel:
            return Button_Cancel;
        case Box_Yes_No:
            return Button_No;
        default:
            return Button_Ok;
    }
}

std::optional<std::string> Silent_Host::Ask_File(const File_Question&) {
    return std::nullopt;
}

Form_End Silent_Host::Run_Form(std::string_view) {
    return Form_End::Absent;
}

void Silent_Host::Set_Caption(std::string_view, std::string_view) {}
void Silent_Host::Set_Enabled(std::string_view, bool) {}
void Silent_Host::Set_Visible(std::string_view, bool) {}
void Silent_Host::Set_Focus(std::string_view) {}
void Silent_Host::Open_Form(std::string_view, Int) {}

void Silent_Host::Set_Value(std::string_view, Long) {}

void Silent_Host::Set_Pointer(Pointer_Shape) {}
void Silent_Host::Refresh() {}
void Silent_Host::Turn() {}

Display_Info Silent_Host::Display() {
    return {};
}

void Silent_Host::Copy_Text(std::string_view) {}

bool Silent_Host::Run_Tool(std::string_view Cmd_Line, Int Show_Mode) {
    return Process_Run(Cmd_Line, Show_Mode == 0);
}

bool Silent_Host::End_Tool() {
    Process_End_Running();
    return true;
}

bool Silent_Host::Has_Tool(std::string_view Path) {
    return Process_Can_Start(Path);
}

void Silent_Host::Note_File(File_Event, std::string_view) {}
void Silent_Host::Show_Folder(std::string_view) {}

const char* Event_Word(File_Event Event) {
    switch (Event) {
        case File_Event::Deleted:
            return "delete";
        case File_Event::Written:
            return "write";
        case File_Event::Missing:
            return "missing";
        default:
            return "would delete";
    }
}

void Plain_Box(std::string_view Text) {
    The_Host().Show_Box({.Text = std::string(Text)});
}
