// play/play.h - the whole program, without a screen, as a script of acts tells a user.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/numbers.h"
#include "play/script.h"

class Form;

struct Play_Options {
    std::string App_Dir;             // prepared; the program's form
    std::string Language = {};       // for this run; empty for that of the settings
    Long Width = 801, Height = 601;  // of the canvas
    /// Called when the program has started, before anything is played.
    std::function<void()> At_Start = {};
    /// Called when all acts of the script are played: one more to the form in front, or nothing.
    std::function<std::optional<Act>(const Form& Front)> Next_Act = {};
    /// Called when all was played, before the program ends; tests look at it there.
    std::function<void()> At_End = {};
};

/// How a play ended: 0 all was played, 2 the script makes no sense, 4 an act that no user could
/// do, with its line and the reason (code page 1252).
struct Play_End {
    int Status = 0;
    Long Line = 0;
    std::string Reason = {};
};

/// Starts the program, plays S and ends the program. Each line that is printed goes to Print,
/// code page 1252, without a line end.
Play_End Play(const Script& S, const Play_Options& Options,
              const std::function<void(std::string_view Line)>& Print);
