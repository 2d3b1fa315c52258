// core/messages.h - the numbered messages of the program.
//
// The code knows numbers; words, icon and buttons stand in the catalogue Msg_File, an INI file
// with the section [ERR]. The value of a message is "II BB text": icon and buttons as parts of
// a box style (host.h). Message n stands under n in French and n + 500 in English, written
// with five digits. A key that is missing gives "48 00 ????", so a lost message is a warning.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "core/host.h"
#include "core/numbers.h"

/// The button pressed in the message shown last: 1 Ok, 2 Cancel, 6 Yes, 7 No.
inline Int Msg_Result = 0;

/// What Msg_Fetch found.
inline Int Msg_Icon = 0;
inline Int Msg_Buttons = 0;
inline std::string Msg_Text;

/// Looks message Num up in the present language. Gives the number of its key and the title
/// of its box, and fills Msg_Icon, Msg_Buttons and Msg_Text.
void Msg_Fetch(Int Num, Int& Key_Num, std::string& Title);

/// Shows message Num as "(key) text", keeps the button pressed in Msg_Result and returns it.
Int Msg_Show(Int Num);

/// The same with Extra on a line of its own.
/// Place is the pixel that it tells of.
Int Msg_Show_Text(Int Num, std::string_view Extra, std::optional<Map_Place> Place = {});

/// Message 1 with a line that says what was typed, into what field if Label is not empty, and
/// what is allowed there, if that is known.
Int Msg_Wrong_Value(std::string_view Label, std::string_view Typed, std::string_view Allowed);
