// qt/window_host.h - the program's host with a window.
#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <atomic>

#include "core/host.h"
#include "ui/form/form_list.h"

class Form_Window;

class Window_Host : public Silent_Host, public Form_Host {
public:
    /// The window of the main form, above which boxes and dialogs come up; null before it is
    /// there.
    void Set_Window(Form_Window* Main);
    /// Whether boxes that ask nothing are told on standard error as well.
    void Tell_Error_Stream(bool On) { Tells_Error_Stream_ = On; }

    Int Show_Box(const Box& B) override;
    /// Nothing: what a generation notes is in its report.
    void Note_Message(const Box&) override {}
    std::optional<std::string> Ask_File(const File_Question& Q) override;
    Form_End Run_Form(std::string_view Form) override;
    void Open_Form(std::string_view Form, Int Delay_Ms) override;
    void Run_Modal(Form& F) override;
    void Show_Open(std::shared_ptr<Form> F) override;
    void Set_Caption(std::string_view Control, std::string_view Text) override;
    void Set_Enabled(std::string_view Control, bool On) override;
    void Set_Visible(std::string_view Control, bool On) override;
    void Set_Value(std::string_view Control, Long Value) override;
    void Set_Focus(std::string_view Control) override;
    void Set_Pointer(Pointer_Shape Shape) override;
    void Refresh() override;
    void Turn() override;
    Display_Info Display() override;
    /// The window goes on painting while the tool runs.
    bool Run_Tool(std::string_view Cmd_Line, Int Show_Mode) override;
    bool End_Tool() override;
    void Show_Folder(std::string_view Dir) override;
    void Show_Help() override { Run_Form("Frm_Help"); }
    void Copy_Text(std::string_view Text) override;

private:
    void Bring_Up_To_Date();

    QPointer<Form_Window> Main_;
    bool Tells_Error_Stream_ = false;
    QElapsedTimer Since_Refresh_;
    std::atomic<bool> Tool_Runs_ = false;
};
