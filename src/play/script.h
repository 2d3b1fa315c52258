// play/script.h - scripts of acts: what a user does, one act a line, and what is to be told of it.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/numbers.h"
#include "ui/form/events.h"

enum class Verb {
    // Forms.
    Click,
    Choose,
    Type,
    Focus,
    Double_Click,  // of a control or at a place of the canvas
    Key,
    Close,
    Drop,
    Tick,
    // The canvas.
    Move,
    Press,
    Release,
    Wheel,
    // Answers to what the program asks.
    Answer,
    File,
    Aircraft,
    Reports,  // of a generation, shown or not
    // Reports.
    Show,
    Items,
    State,
    Write,
    Say
};

struct Act {
    Long Line = 0;  // of the script, from 1
    Verb What = Verb::Say;
    std::vector<std::string> Words = {};  // behind the verb, code page 1252, of the right form
};

/// A script, or what is wrong with it: Error tells of line Bad_Line, and there are no acts.
struct Script {
    std::vector<Act> Acts = {};
    Long Bad_Line = 0;
    std::string Error = {};
};

/// Reads a script in UTF-8.
Script Script_Read(std::string_view Utf8);

/// The number that Word is, a finite one without an exponent; false when it is none.
bool Script_Number(std::string_view Word, Double& Value);
/// The same for a whole number.
bool Script_Whole(std::string_view Word, Long& Value);
/// The key that Word names, as "Ctrl+Shift+S" or "Pad+"; false when it names none.
bool Script_Key(std::string_view Word, Key_Event& Key);
