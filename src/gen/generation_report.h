// gen/generation_report.h - what became of the last generation.
#pragma once

#include <string>
#include <vector>

#include "core/host.h"
#include "core/numbers.h"
#include "gen/outputs.h"
#include "platform/file_facts.h"

/// What is made where tools are missing.
enum class Tool_Choice {
    All,              // everything; a tool that can't be started is a message
    Sources_Only,     // no output is touched and no tool is started
    Without_Missing,  // what needs a missing tool is left out, its older output stays
    Stop              // nothing
};

struct Report_File {
    std::string Path;
    std::optional<File_Facts> Found = {};  // nothing when it is not there
};

struct Report_Output : Report_File {
    Output_State State = Output_State::Made;
};

struct Generation_Report {
    Tool_Choice Choice = Tool_Choice::All;
    bool Was_Cancelled = false;
    Double Seconds = 0.0;
    std::vector<std::string> Missing_Tools = {};  // that the project needs; looked for when asked
    std::vector<Report_Output> Outputs = {};
    std::vector<Report_File> Sources = {};  // and other files that were written
    std::vector<Box> Messages = {};
};

inline Generation_Report The_Report;

/// Size and time of a file, or what became of it, in Language.
std::string Output_Text(const Report_Output& O);
std::string Source_Text(const Report_File& F);
/// A message on one line.
std::string Message_Text(const Box& B);
/// How the generation ended and how long it took.
std::string Summary_Text();
/// The whole report; lines end in CR LF.
std::string Report_Text();
