// ui/form/keys_told.cpp - key names as they stand on the keyboards of both languages.
#include "ui/form/keys_told.h"

namespace {

struct Key_Name {
    std::string_view Name;
    Wording On_Keyboard;
};

constexpr Key_Name Key_Names[] = {
    {"Shift+", {"Shift+", "Maj+"}}, {"Pad", {"Num ", "Num "}}, {"Delete", {"Delete", "Suppr"}}};

std::string Key_Text(std::string Key, std::string_view Lang) {
    for (const Key_Name& Row : Key_Names)
        if (const std::size_t At = Key.find(Row.Name); At != std::string::npos)
            Key.replace(At, Row.Name.size(), Row.On_Keyboard.In(Lang));
    return Key;
}

}  // namespace

std::string Keys_Text(const Control& C, std::string_view Lang) {
    std::string Text = Key_Text(C.Shortcut, Lang);
    for (const std::string& Key : C.Other_Keys)
        Text += (Text.empty() ? "" : ", ") + Key_Text(Key, Lang);
    return Text;
}

std::string Tip_With_Keys(const Control& C, std::string_view Lang) {
    const std::string Keys = Keys_Text(C, Lang);
    return C.Tip.empty() || Keys.empty() ? C.Tip : C.Tip + " (" + Keys + ")";
}
