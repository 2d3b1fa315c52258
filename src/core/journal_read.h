// core/journal_read.h - a journal that was left behind.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/journal.h"

struct Journal_Entry {
    Step_Kind Kind{};
    Step_Flags Flags;
    std::string_view Time;
    std::string_view Bytes;
};

/// Views of the bytes that it was read from.
struct Journal {
    enum class State { Good, Newer, Other_Machine, None } What = State::None;
    std::string_view Path;  // of the project
    std::optional<Project_Mark> Mark;
    std::string_view Model;                 // empty when the project's file has it
    std::optional<std::uint64_t> Saved_As;  // the sum of the file that was to hold all steps
    std::vector<Journal_Entry> Steps;       // all that are whole, up to the first that is not
    std::size_t Nb_Acts() const;            // steps that stand for themselves
};

/// Anything may be given.
Journal Journal_Read(std::string_view Bytes);

/// What the steps of a journal change, a line each and one for each table.
std::vector<std::string> Journal_Report(const Journal& J);
