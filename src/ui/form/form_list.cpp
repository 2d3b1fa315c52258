// ui/form/form_list.cpp - the register of dialogs.
#include "ui/form/form_list.h"

#include <map>

#include "ui/form/form_events.h"

namespace {

std::map<std::string, Form_Maker, std::less<>>& Register() {
    static std::map<std::string, Form_Maker, std::less<>> List;
    return List;
}

std::vector<std::shared_ptr<Form>> Opened;  // some may be closed

}  // namespace

void Form_Register(std::string Name, Form_Maker Make) {
    Register().insert_or_assign(std::move(Name), std::move(Make));
}

std::vector<std::string> Form_Names() {
    std::vector<std::string> Names;
    for (const auto& [Name, Make] : Register()) Names.push_back(Name);
    return Names;
}

std::unique_ptr<Form> Form_Make(std::string_view Name) {
    const auto Found = Register().find(Name);
    return Found == Register().end() ? nullptr : Found->second();
}

Form_End Form_Run(std::string_view Name, Form_Host& Host) {
    const std::unique_ptr<Form> F = Form_Make(Name);
    if (!F) return Form_End::Absent;
    F->Modal = true;
    Form_Load(*F);
    if (!F->Is_Closed()) Host.Run_Modal(*F);
    return F->End();
}

std::vector<std::shared_ptr<Form>> Forms_Open() {
    std::erase_if(Opened, [](const auto& F) { return F->Is_Closed(); });
    return Opened;
}

bool Form_Open(std::string_view Name, Form_Host& Host) {
    for (const auto& F : Forms_Open())
        if (F->Name() == Name) return true;
    std::shared_ptr<Form> F = Form_Make(Name);
    if (!F) return false;
    Opened.push_back(F);
    Form_Load(*F);
    if (!F->Is_Closed()) Host.Show_Open(F);
    return true;
}

void Forms_Close() {
    for (const auto& F : Forms_Open()) F->Close(Form_End::Closed);
    Opened.clear();
}

void Forms_Forget() {
    Opened.clear();
}
