// ui/form/events.h - keys and mouse events as the program sees them.
#pragma once

#include "core/numbers.h"

/// Modifier keys held, as a sum. The space bar counts as one for the mouse.
inline constexpr Int Shift_Key = 1;
inline constexpr Int Ctrl_Key = 2;
inline constexpr Int Alt_Key = 4;
inline constexpr Int Space_Key = 8;

/// Letters and digits are their capital ASCII character; other keys have the names below.
using Key_Code = Int;
inline constexpr Key_Code Key_Tab = 9;
inline constexpr Key_Code Key_Enter = 13;
inline constexpr Key_Code Key_Escape = 27;
inline constexpr Key_Code Key_Page_Up = 33;
inline constexpr Key_Code Key_Page_Down = 34;
inline constexpr Key_Code Key_Home = 36;
inline constexpr Key_Code Key_Left = 37;
inline constexpr Key_Code Key_Up = 38;
inline constexpr Key_Code Key_Right = 39;
inline constexpr Key_Code Key_Down = 40;
inline constexpr Key_Code Key_Delete = 46;
inline constexpr Key_Code Key_Pad_Plus = 107;  // of the numeric pad
inline constexpr Key_Code Key_Pad_Minus = 109;
inline constexpr Key_Code Key_F1 = 112;
inline constexpr Key_Code Key_F4 = 115;
inline constexpr Key_Code Key_Plus = 187;  // beside the letters
inline constexpr Key_Code Key_Minus = 189;

struct Key_Event {
    Key_Code Code = 0;
    Int Shift = 0;
};

inline constexpr Int Mouse_Left = 1;
inline constexpr Int Mouse_Right = 2;
inline constexpr Int Mouse_Middle = 4;

/// A double click comes as press, release, double click, release: its second press is not
/// reported as a press. Away: the user has gone to another window, and what the mouse was doing
/// ends without a release.
struct Mouse_Event {
    enum class Kind { Press, Move, Release, Double_Click, Wheel, Away };
    Kind What = Kind::Move;
    Int Button = 0;  // the one pressed or released; of a move, the sum of those held
    Int Shift = 0;
    Double X = 0.0;  // canvas pixels, Y down
    Double Y = 0.0;
    Int Steps = 0;  // of the wheel, away from the user or, with Shift, to the left positive
};
