// gen/generation_host.h - the host while a generation runs: it passes everything on to the one
// before it and keeps for the report what happens.
#pragma once

#include <set>
#include <string>

#include "core/host.h"
#include "gen/generation_report.h"

class Generation_Host final : public Host {
public:
    Generation_Host(Host& Behind, Tool_Choice Choice) : Behind_(Behind), Choice_(Choice) {}

    /// Questions and the numbered messages that a designer must read come as boxes, once each;
    /// the others are noted.
    Int Show_Box(const Box& B) override;
    void Note_Message(const Box& B) override;
    /// With sources only every tool is taken as run. Looks whether the work is to end.
    bool Run_Tool(std::string_view Cmd_Line, Int Show_Mode) override;
    void Note_File(File_Event Event, std::string_view Path) override;
    bool Is_Dry_Run() const override;
    bool Starts_Tools() const override;

    std::optional<std::string> Ask_File(const File_Question& Q) override {
        return Behind_.Ask_File(Q);
    }
    Form_End Run_Form(std::string_view Form) override { return Behind_.Run_Form(Form); }
    void Open_Form(std::string_view Form, Int Delay_Ms) override {
        Behind_.Open_Form(Form, Delay_Ms);
    }
    void Set_Caption(std::string_view Control, std::string_view Text) override {
        Behind_.Set_Caption(Control, Text);
    }
    void Set_Enabled(std::string_view Control, bool On) override {
        Behind_.Set_Enabled(Control, On);
    }
    void Set_Visible(std::string_view Control, bool On) override {
        Behind_.Set_Visible(Control, On);
    }
    void Set_Value(std::string_view Control, Long Value) override {
        Behind_.Set_Value(Control, Value);
    }
    void Set_Focus(std::string_view Control) override { Behind_.Set_Focus(Control); }
    void Set_Pointer(Pointer_Shape Shape) override { Behind_.Set_Pointer(Shape); }
    void Refresh() override { Behind_.Refresh(); }
    void Turn() override { Behind_.Turn(); }
    Display_Info Display() override { return Behind_.Display(); }
    bool End_Tool() override { return Behind_.End_Tool(); }
    bool Has_Tool(std::string_view Path) override { return Behind_.Has_Tool(Path); }
    void Show_Folder(std::string_view Dir) override { Behind_.Show_Folder(Dir); }
    void Show_Help() override { Behind_.Show_Help(); }
    void Copy_Text(std::string_view Text) override { Behind_.Copy_Text(Text); }

private:
    Host& Behind_;
    Tool_Choice Choice_;
    std::set<std::string> Shown_;  // boxes that the user has read
};

/// The file name of the tool that the generation waits for, "" when it waits for none.
const std::string& Tool_Running();
/// Ends it, if it has not ended by then. What it was to make counts as not made.
void Tool_End();
/// Whether the tool that ran last was ended so.
bool Tool_Was_Ended();
