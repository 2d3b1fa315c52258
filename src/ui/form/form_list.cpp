// ui/form/form_list.cpp - the register of dialogs.
#include "ui/form/form_list.h"

#include <map>

#include "ui/form/form_events.h"

namespace {

std::map<std::string, Form_Maker, std::less<>>& Register() {
    static std::map<std::string, Form_Maker, std::less<>> List;
    return List;
}

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
    Form_Load(*F);
    if (!F->Is_Closed()) Host.Run_Modal(*F);
    return F->End();
}
