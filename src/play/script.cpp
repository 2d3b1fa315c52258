// play/script.cpp - lines into acts: the words of each, and whether they make sense.
#include "play/script.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <optional>
#include <span>
#include <utility>

#include "platform/text1252.h"

namespace {

using Words = std::span<const std::string>;

// Far beyond any canvas and any table, and far from the limits of the numbers.
constexpr Double Largest = 1e7;

bool Is_Number(const std::string& Word) {
    Double Value = 0.0;
    return Script_Number(Word, Value);
}

bool Is_Whole(const std::string& Word) {
    Long Value = 0;
    return Script_Whole(Word, Value);
}

bool Is_Count(const std::string& Word) {
    Long Value = 0;
    return Script_Whole(Word, Value) && Value >= 1;
}

bool Is_One_Of(const std::string& Word, std::span<const std::string_view> List) {
    return std::ranges::find(List, std::string_view(Word)) != List.end();
}

constexpr std::array<std::string_view, 3> Buttons{"left", "right", "middle"};
constexpr std::array<std::string_view, 4> Modifiers{"shift", "ctrl", "alt", "space"};
constexpr std::array<std::string_view, 4> Answers{"ok", "cancel", "yes", "no"};

bool Is_Place(Words W) {
    return W.size() >= 2 && Is_Number(W[0]) && Is_Number(W[1]);
}

// The form of the words behind each verb.
bool None(Words W) {
    return W.empty();
}
bool One(Words W) {
    return W.size() == 1;
}
bool One_Or_More(Words W) {
    return !W.empty();
}
bool Two(Words W) {
    return W.size() == 2;
}
bool Any(Words) {
    return true;
}
bool Row(Words W) {
    return W.size() == 2 && Is_Whole(W[1]);
}
bool Count(Words W) {
    return W.empty() || (W.size() == 1 && Is_Count(W[0]));
}
bool Place(Words W) {
    return W.size() == 2 && Is_Place(W);
}
bool Control_Or_Place(Words W) {
    return One(W) || Row(W) || Place(W);
}
bool Key(Words W) {
    Key_Event K;
    return W.size() == 1 && Script_Key(W[0], K);
}
bool Place_Button(Words W) {
    return Place(W) || (W.size() == 3 && Is_Place(W) && Is_One_Of(W[2], Buttons));
}
bool Place_Press(Words W) {
    if (!Is_Place(W)) return false;
    Words Rest = W.subspan(2);
    if (!Rest.empty() && Is_One_Of(Rest[0], Buttons)) Rest = Rest.subspan(1);
    return std::ranges::all_of(Rest, [](const auto& Word) { return Is_One_Of(Word, Modifiers); });
}
bool Place_Steps(Words W) {
    return (W.size() == 3 || (W.size() == 4 && W[3] == "shift")) && Is_Place(W) && Is_Whole(W[2]);
}
bool Answer(Words W) {
    return W.size() == 1 && Is_One_Of(W[0], Answers);
}
bool On_Or_Off(Words W) {
    return W.size() == 1 && (W[0] == "on" || W[0] == "off");
}
bool Aircraft(Words W) {
    if (W.size() == 1) return W[0] == "none";
    return W.size() == 2 && (W[0] == "error" ? Is_Whole(W[1]) : Is_Place(W));
}

struct Verb_Row {
    std::string_view Name;
    Verb What;
    bool (*Fits)(Words);
    std::string_view Form;  // as it is told when the words do not fit
};

constexpr Verb_Row Verbs[] = {
    {"click", Verb::Click, One, "click NAME"},
    {"choose", Verb::Choose, Row, "choose NAME N"},
    {"type", Verb::Type, Two, "type NAME TEXT"},
    {"focus", Verb::Focus, One, "focus NAME"},
    {"dblclick", Verb::Double_Click, Control_Or_Place, "dblclick NAME [N] or dblclick X Y"},
    {"key", Verb::Key, Key, "key KEYS"},
    {"close", Verb::Close, None, "close"},
    {"drop", Verb::Drop, One, "drop PATH"},
    {"tick", Verb::Tick, Count, "tick [N]"},
    {"move", Verb::Move, Place, "move X Y"},
    {"press", Verb::Press, Place_Press,
     "press X Y [left|right|middle] [shift] [ctrl] [alt] [space]"},
    {"release", Verb::Release, Place_Button, "release X Y [left|right|middle]"},
    {"wheel", Verb::Wheel, Place_Steps, "wheel X Y STEPS [shift]"},
    {"answer", Verb::Answer, Answer, "answer ok|cancel|yes|no"},
    {"file", Verb::File, One, "file PATH or file cancel"},
    {"aircraft", Verb::Aircraft, Aircraft, "aircraft LAT LON, aircraft error N or aircraft none"},
    {"reports", Verb::Reports, On_Or_Off, "reports on or reports off"},
    {"show", Verb::Show, One_Or_More, "show NAME ..."},
    {"items", Verb::Items, One, "items NAME"},
    {"state", Verb::State, None, "state"},
    {"write", Verb::Write, One, "write PATH"},
    {"say", Verb::Say, Any, "say TEXT"},
};

// What stands between double quotes from At on, where "" is one of them; nothing without an end.
std::optional<std::string> Quoted(std::string_view Line, std::size_t& At) {
    std::string Word;
    for (++At; At < Line.size(); ++At) {
        if (Line[At] != '"') {
            Word += Line[At];
        } else if (At + 1 < Line.size() && Line[At + 1] == '"') {
            Word += '"';
            ++At;
        } else {
            ++At;
            return Word;
        }
    }
    return std::nullopt;
}

bool Is_Blank(char C) {
    return C == ' ' || C == '\t';
}

// The words of a line; what is wrong with it comes back as text.
std::string Split(std::string_view Line, std::vector<std::string>& To) {
    std::size_t At = 0;
    while (true) {
        while (At < Line.size() && Is_Blank(Line[At])) ++At;
        if (At == Line.size()) return {};
        if (Line[At] == '"') {
            const auto Word = Quoted(Line, At);
            if (!Word) return "a double quote is missing";
            if (At < Line.size() && !Is_Blank(Line[At])) return "a blank is missing behind a word";
            To.push_back(*Word);
        } else {
            const std::size_t From = At;
            while (At < Line.size() && !Is_Blank(Line[At])) ++At;
            To.emplace_back(Line.substr(From, At - From));
        }
    }
}

bool Has_Control_Character(std::string_view Line) {
    return std::ranges::any_of(Line, [](char C) {
        const auto Byte = static_cast<unsigned char>(C);
        return (Byte < 0x20 && C != '\t') || Byte == 0x7F;
    });
}

// Appends the act of a line if it holds one; what is wrong with it comes back as text.
std::string Read_Line(std::string_view Utf8, Long Line, std::vector<Act>& To) {
    if (Utf8.ends_with('\r')) Utf8.remove_suffix(1);
    const std::string_view Content = Trim(Utf8);
    if (Content.empty() || Content.front() == '#') return {};
    const auto Text = From_Utf8(Content);
    if (!Text) return "it has characters that the program cannot write, or is no UTF-8";
    if (Has_Control_Character(*Text)) return "it has a control character";
    std::vector<std::string> Found;
    if (std::string Error = Split(*Text, Found); !Error.empty()) return Error;
    const auto Row = std::ranges::find(Verbs, std::string_view(Found.front()), &Verb_Row::Name);
    if (Row == std::end(Verbs)) return "there is no act " + Found.front();
    Found.erase(Found.begin());
    if (!Row->Fits(Found)) return "it is told as: " + std::string(Row->Form);
    To.push_back({.Line = Line, .What = Row->What, .Words = std::move(Found)});
    return {};
}

struct Named_Key {
    std::string_view Name;
    Key_Code Code;
};

constexpr Named_Key Named_Keys[] = {
    {"Enter", Key_Enter},  {"Esc", Key_Escape},     {"Tab", Key_Tab},        {"Delete", Key_Delete},
    {"Left", Key_Left},    {"Right", Key_Right},    {"Up", Key_Up},          {"Down", Key_Down},
    {"F1", Key_F1},        {"Pad+", Key_Pad_Plus},  {"Pad-", Key_Pad_Minus}, {"F4", Key_F4},
    {"PgUp", Key_Page_Up}, {"PgDn", Key_Page_Down}, {"Home", Key_Home},      {"+", Key_Plus},
    {"-", Key_Minus}};

constexpr std::pair<std::string_view, Int> Key_Modifiers[] = {
    {"Shift+", Shift_Key}, {"Ctrl+", Ctrl_Key}, {"Alt+", Alt_Key}};

Key_Code Code_Of(std::string_view Name) {
    const auto Named = std::ranges::find(Named_Keys, Name, &Named_Key::Name);
    if (Named != std::end(Named_Keys)) return Named->Code;
    if (Name.size() != 1) return 0;
    const char C = Name.front();
    if ('a' <= C && C <= 'z') return static_cast<Key_Code>(C - 'a' + 'A');
    return ('A' <= C && C <= 'Z') || ('0' <= C && C <= '9') ? static_cast<Key_Code>(C)
                                                            : Key_Code{0};
}

}  // namespace

bool Script_Number(std::string_view Word, Double& Value) {
    if (Word.starts_with('+')) Word.remove_prefix(1);
    const char* End = Word.data() + Word.size();
    const auto Read = std::from_chars(Word.data(), End, Value, std::chars_format::fixed);
    return Read.ec == std::errc() && Read.ptr == End && std::abs(Value) <= Largest;
}

bool Script_Whole(std::string_view Word, Long& Value) {
    const char* End = Word.data() + Word.size();
    const auto Read = std::from_chars(Word.data(), End, Value);
    return Read.ec == std::errc() && Read.ptr == End && std::abs(Double{1} * Value) <= Largest;
}

bool Script_Key(std::string_view Word, Key_Event& Key) {
    Key = {};
    for (bool Any = true; Any;) {
        Any = false;
        for (const auto& [Name, Bit] : Key_Modifiers) {
            if (!Word.starts_with(Name) || (Key.Shift & Bit) != 0) continue;
            Key.Shift = static_cast<Int>(Key.Shift + Bit);
            Word.remove_prefix(Name.size());
            Any = true;
        }
    }
    Key.Code = Code_Of(Word);
    return Key.Code != 0;
}

Script Script_Read(std::string_view Utf8) {
    constexpr std::string_view Mark = "\xEF\xBB\xBF";
    if (Utf8.starts_with(Mark)) Utf8.remove_prefix(Mark.size());
    Script S;
    for (Long Line = 1; !Utf8.empty(); ++Line) {
        const std::string_view Text = Utf8.substr(0, Utf8.find('\n'));
        Utf8.remove_prefix(std::min(Text.size() + 1, Utf8.size()));
        std::string Error = Read_Line(Text, Line, S.Acts);
        if (!Error.empty()) return {.Acts = {}, .Bad_Line = Line, .Error = std::move(Error)};
    }
    return S;
}
