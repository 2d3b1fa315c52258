// platform/settings_file.cpp - one pass over the lines of an INI file.
#include "platform/settings_file.h"

#include <cstddef>

#include "platform/files.h"
#include "platform/text1252.h"

namespace {

constexpr std::size_t Longest_Value = 255;

// One line of a file: its text without the end, and where that stands in the file.
struct Line {
    std::string_view Text;
    std::size_t Begin = 0;  // first character
    std::size_t Next = 0;   // behind the line end
};

Line Line_At(std::string_view File, std::size_t Begin) {
    const std::size_t Feed = File.find('\n', Begin);
    const bool Ended = Feed != std::string_view::npos;
    std::string_view Text = File.substr(Begin, Ended ? Feed - Begin : std::string_view::npos);
    if (Text.ends_with('\r')) Text.remove_suffix(1);  // at the file's end half a line end
    return {Text, Begin, Ended ? Feed + 1 : File.size()};
}

bool Is_Comment(std::string_view Text) {
    return Trim(Text).starts_with(';');
}

std::optional<std::string_view> Section_Name(std::string_view Text) {
    Text = Trim(Text);
    const std::size_t Close = Text.find(']');
    if (!Text.starts_with('[') || Close == std::string_view::npos) return std::nullopt;
    return Trim(Text.substr(1, Close - 1));
}

std::optional<std::string_view> Key_Name(std::string_view Text) {
    const std::size_t Equals = Text.find('=');
    if (Equals == std::string_view::npos || Is_Comment(Text)) return std::nullopt;
    return Trim(Text.substr(0, Equals));
}

bool Is_Quoted(std::string_view Value) {
    return Value.size() >= 2 && Value.front() == Value.back() &&
           (Value.front() == '"' || Value.front() == '\'');
}

std::string_view Bare_Value(std::string_view Value) {
    Value = Trim(Value);
    return Is_Quoted(Value) ? Value.substr(1, Value.size() - 2) : Value;
}

// Where a setting stands, or where it would go.
struct Place {
    bool Has_Section = false;
    std::optional<Line> Setting;  // the line of the key
    std::size_t Insert = 0;       // behind the last line of the section that is not empty
};

Place Find_Place(std::string_view File, std::string_view Section, std::string_view Key) {
    Place Found;
    const std::size_t Start = File.starts_with("\xEF\xBB\xBF") ? 3 : 0;  // an editor's mark
    for (std::size_t At = Start; At < File.size();) {
        const Line L = Line_At(File, At);
        At = L.Next;
        if (const auto Name = Section_Name(L.Text)) {
            if (Found.Has_Section) break;
            Found.Has_Section = Equal_No_Case(*Name, Section);
        } else if (Found.Has_Section) {
            const auto Name = Key_Name(L.Text);
            if (Name && Equal_No_Case(*Name, Key)) {
                Found.Setting = L;
                break;
            }
        }
        if (Found.Has_Section && !Trim(L.Text).empty()) Found.Insert = L.Next;
    }
    return Found;
}

bool On_One_Line(std::string_view Text) {
    return Text.find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos;
}

bool Can_Be_Section(std::string_view Name) {
    return !Name.empty() && On_One_Line(Name) && Trim(Name) == Name &&
           Name.find(']') == std::string_view::npos;
}

bool Can_Be_Key(std::string_view Name) {
    return !Name.empty() && On_One_Line(Name) && Trim(Name) == Name && !Name.starts_with('[') &&
           !Name.starts_with(';') && Name.find('=') == std::string_view::npos;
}

std::string_view End_Style(std::string_view File) {
    const std::size_t Feed = File.find('\n');
    const bool Feed_Only = Feed != std::string_view::npos && (Feed == 0 || File[Feed - 1] != '\r');
    return Feed_Only ? "\n" : "\r\n";
}

std::string Written_Value(std::string_view Value) {
    std::string Text(Value);
    return Bare_Value(Value) == Value ? Text : '"' + Text + '"';
}

}  // namespace

std::optional<std::string> Setting_In_Text(std::string_view Text, std::string_view Section,
                                           std::string_view Key) {
    const Place Found = Find_Place(Text, Section, Key);
    if (!Found.Setting) return std::nullopt;
    const std::string_view Line = Found.Setting->Text;
    return std::string(Bare_Value(Line.substr(Line.find('=') + 1)).substr(0, Longest_Value));
}

std::optional<std::string> Text_With_Setting(std::string_view Text, std::string_view Section,
                                             std::string_view Key, std::string_view Value) {
    if (!Can_Be_Section(Section) || !Can_Be_Key(Key) || !On_One_Line(Value)) return std::nullopt;
    const Place Found = Find_Place(Text, Section, Key);
    const std::string Written = Written_Value(Value);
    std::string Out;
    Out.reserve(Text.size() + Section.size() + Key.size() + Written.size() + 16);
    if (Found.Setting) {
        const Line& Old = *Found.Setting;
        const std::size_t Value_At = Old.Begin + Old.Text.find('=') + 1;
        Out.append(Text.substr(0, Value_At)).append(Written);
        return Out.append(Text.substr(Old.Begin + Old.Text.size()));
    }
    const std::string_view End = End_Style(Text);
    const std::size_t At = Found.Has_Section ? Found.Insert : Text.size();
    Out.append(Text.substr(0, At));
    if (Out.ends_with('\r'))
        Out += '\n';
    else if (!Out.empty() && !Out.ends_with('\n'))
        Out.append(End);
    if (!Found.Has_Section) Out.append("[").append(Section).append("]").append(End);
    Out.append(Key).append("=").append(Written).append(End);
    return Out.append(Text.substr(At));
}

std::string Setting_Read(std::string_view File, std::string_view Section, std::string_view Key,
                         std::string_view Default) {
    if (const auto Text = File_Read(File))
        if (auto Value = Setting_In_Text(*Text, Section, Key)) return *std::move(Value);
    return std::string(Default.substr(0, Longest_Value));
}

bool Setting_Write(std::string_view File, std::string_view Section, std::string_view Key,
                   std::string_view Value) {
    const std::optional<std::string> Old = File_Read(File);
    if (!Old && File_Exists(File)) return false;  // there, but not to be read: not to be lost
    const auto New = Text_With_Setting(Old.value_or(""), Section, Key, Value);
    if (!New) return false;
    if (Old && *New == *Old) return true;
    File_Writer Out(File, File_Writer::Mode::Safe);
    Out.Put(*New);
    return Out.Commit();
}
