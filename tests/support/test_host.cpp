// tests/support/test_host.cpp - recording and answering.
#include "support/test_host.h"

namespace {

std::string On_One_Line(std::string Text) {
    for (std::size_t At; (At = Text.find("\r\n")) != std::string::npos;) Text.replace(At, 2, " ");
    return Text;
}

template <typename T>
T Take(std::deque<T>& Answers, T Otherwise) {
    if (Answers.empty()) return Otherwise;
    T Answer = std::move(Answers.front());
    Answers.pop_front();
    return Answer;
}

}  // namespace

Int Test_Host::Last_Message() const {
    return Boxes.empty() ? Int{-1} : Boxes.back().Num;
}

Int Test_Host::Show_Box(const Box& B) {
    Boxes.push_back(B);
    Events.push_back("message " + std::to_string(B.Num) + " " + On_One_Line(B.Text));
    return Take(Box_Answers, Silent_Host::Show_Box(B));
}

std::optional<std::string> Test_Host::Ask_File(const File_Question& Q) {
    Questions.push_back(Q);
    Events.push_back("ask " + Q.Title);
    return Take(File_Answers, std::optional<std::string>{});
}

Form_End Test_Host::Run_Form(std::string_view Form) {
    Events.push_back("form " + std::string(Form));
    const auto Found = Forms.find(Form);
    return Found == Forms.end() ? Form_End::Absent : Found->second();
}

void Test_Host::Set_Caption(std::string_view Control, std::string_view Text) {
    Caption[std::string(Control)] = Text;
    if (Control == "LCompileNom" || Control == "LCompile")
        Stages.push_back(std::string(Control) + "=" + std::string(Text));
}

void Test_Host::Set_Enabled(std::string_view Control, bool On) {
    Enabled[std::string(Control)] = On;
}

void Test_Host::Set_Visible(std::string_view Control, bool On) {
    Visible[std::string(Control)] = On;
}

void Test_Host::Set_Pointer(Pointer_Shape Shape) {
    Pointer = Shape;
}

Display_Info Test_Host::Display() {
    return Screen;
}

bool Test_Host::Run_Tool(std::string_view Cmd_Line, Int Show_Mode) {
    Events.push_back("run " + std::string(Cmd_Line));
    return Tool ? Tool(Cmd_Line) : Silent_Host::Run_Tool(Cmd_Line, Show_Mode);
}

void Test_Host::Note_File(File_Event Event, std::string_view Path) {
    Events.push_back(std::string(Event_Word(Event)) + " " + std::string(Path));
}
