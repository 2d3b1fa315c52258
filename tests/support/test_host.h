// tests/support/test_host.h - a host that records what the program tells it and answers from a
// script.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "core/host.h"

class Test_Host : public Silent_Host {
public:
    // What happened, in order, a line each: "message NUM TEXT" (CR LF as a blank), "form NAME",
    // "delete PATH", "write PATH", "missing PATH", "run COMMAND LINE", "ask TITLE".
    std::vector<std::string> Events;
    std::vector<Box> Boxes;
    std::vector<File_Question> Questions;

    // Answers, used from the front. Without one a box gets what Silent_Host answers, and a
    // file question is cancelled.
    std::deque<Int> Box_Answers;
    std::deque<std::optional<std::string>> File_Answers;
    // What a form does when it runs; a form that is not here is absent.
    std::map<std::string, std::function<Form_End()>, std::less<>> Forms;

    // The main form's state as the program last set it.
    std::map<std::string, std::string, std::less<>> Caption;
    std::map<std::string, bool, std::less<>> Enabled;
    std::map<std::string, bool, std::less<>> Visible;
    std::vector<std::string> Stages;  // every caption of LCompileNom and LCompile, "NAME=TEXT"
    Pointer_Shape Pointer = Pointer_Shape::Normal;
    Display_Info Screen;

    // Starts outside tools: for real when empty.
    std::function<bool(std::string_view)> Tool;

    /// The number of the message shown last, -1 when none was.
    Int Last_Message() const;

    Int Show_Box(const Box& B) override;
    std::optional<std::string> Ask_File(const File_Question& Q) override;
    Form_End Run_Form(std::string_view Form) override;
    void Set_Caption(std::string_view Control, std::string_view Text) override;
    void Set_Enabled(std::string_view Control, bool On) override;
    void Set_Visible(std::string_view Control, bool On) override;
    void Set_Pointer(Pointer_Shape Shape) override;
    Display_Info Display() override;
    bool Run_Tool(std::string_view Cmd_Line, Int Show_Mode) override;
    bool Starts_Tools() const override { return !Tool; }
    void Note_File(File_Event Event, std::string_view Path) override;
};
