// cli/cli_host.h - the host of the command line: it prints, and answers by fixed rules.
#pragma once

#include <cstdio>
#include <string>

#include "core/host.h"

/// Prints a line for each event, in UTF-8. A message box with a choice gets the answer that
/// changes nothing; the upgrade dialog of old projects is accepted as it opens.
class Cli_Host : public Silent_Host {
public:
    /// Events go to Out. A dry run starts no outside tool and says that all have run.
    Cli_Host(std::FILE* Out, bool Dry_Run);
    ~Cli_Host() override;

    /// Whether a message was shown, or an output is missing.
    bool Any_Message() const { return Any_Message_; }
    /// The text of the message shown last, on one line.
    const std::string& Last_Message() const { return Last_Message_; }

    Int Show_Box(const Box& B) override;
    Form_End Run_Form(std::string_view Form) override;
    void Set_Caption(std::string_view Control, std::string_view Text) override;
    void Refresh() override;
    bool Run_Tool(std::string_view Cmd_Line, Int Show_Mode) override;
    bool Is_Dry_Run() const override { return Dry_Run_; }
    void Note_File(File_Event Event, std::string_view Path) override;

protected:
    /// A message; another event by its word and what it is about.
    virtual void Tell_Message(const Box& B);
    virtual void Tell(std::string_view Event, std::string_view What);
    /// Prints a line that has its end.
    void Print_Utf8(std::string_view Line);

private:
    void Print(std::string_view Line);
    void Clear_Progress();

    std::FILE* Out_;
    bool Dry_Run_;
    bool Shows_Progress_;
    bool Progress_Is_Up_ = false;
    bool Any_Message_ = false;
    std::string Last_Message_;
    std::string Name_;   // what is being made
    std::string Stage_;  // how far it is
};
