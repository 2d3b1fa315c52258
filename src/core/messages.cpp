// core/messages.cpp - messages out of the catalogue and onto the screen.
#include "core/messages.h"

#include <algorithm>

#include "core/check.h"
#include "core/number_text.h"
#include "core/program.h"
#include "platform/settings_file.h"
#include "platform/text1252.h"

namespace {

constexpr Int English_Offset = 500;

// Columns From to From + Nb - 1 of a value, counted from 1; what lies behind its end is empty.
std::string_view Columns(std::string_view Value, std::size_t From, std::size_t Nb) {
    return Value.substr(std::min(From - 1, Value.size()), Nb);
}

// The five-digit text of a key.
std::string Key_Text(Int Key_Num) {
    const std::string Digits = std::to_string(Key_Num);
    return Digits.size() < 5 ? std::string(5 - Digits.size(), '0') + Digits : Digits;
}

// Asks with message Num and what stands behind its text.
Int Show(Int Num, std::string_view Tail, std::optional<Map_Place> Place = {}) {
    Int Key_Num = 0;
    Box B;
    Msg_Fetch(Num, Key_Num, B.Title);
    B.Text = "(" + std::to_string(Key_Num) + ") " + Msg_Text + std::string(Tail);
    B.Style = static_cast<Int>(Msg_Icon + Msg_Buttons);
    B.Num = Num;
    B.Place = Place;
    Msg_Result = The_Host().Show_Box(B);
    return Msg_Result;
}

}  // namespace

void Msg_Fetch(Int Num, Int& Key_Num, std::string& Title) {
    Check(0 <= Num && Num < 10000, "a message number of the catalogue");
    Key_Num = static_cast<Int>(Language == "US" ? Num + English_Offset : Num);
    const std::string Read = Setting_Read(Msg_File, "ERR", Key_Text(Key_Num), "48 00 ????");
    const std::string_view Value = Trim(Read);
    Msg_Icon = Round_Int(Val(Columns(Value, 1, 2)));
    Msg_Buttons = Round_Int(Val(Columns(Value, 4, 2)));
    Msg_Text = Columns(Value, 7, std::string_view::npos);
    Title = "Erreur !!";
    if (Msg_Icon == Box_Information) Title = "Information";
    if (Msg_Icon == Box_Question) Title = "Question ?";
}

Int Msg_Show(Int Num) {
    return Show(Num, "");
}

Int Msg_Show_Text(Int Num, std::string_view Extra, std::optional<Map_Place> Place) {
    return Show(Num, "\r\n" + std::string(Extra), Place);
}

Int Msg_Wrong_Value(std::string_view Label, std::string_view Typed, std::string_view Allowed) {
    while (Label.ends_with(':') || Label.ends_with(' ')) Label.remove_suffix(1);
    std::string Extra(Label);
    if (!Extra.empty()) Extra += In_Language(": ", " : ");
    Extra += '"' + std::string(Typed) + '"';
    if (!Allowed.empty())
        Extra += In_Language("; allowed: ", " ; permis : ") + std::string(Allowed);
    return Msg_Show_Text(1, Extra);
}
