// gen/own_line_list.cpp - OwnLines4.txt by its lines.
#include "gen/own_line_list.h"

#include <algorithm>
#include <limits>
#include <optional>
#include <string_view>

#include "core/number_text.h"
#include "core/program.h"
#include "platform/files.h"
#include "platform/text1252.h"

namespace {

constexpr std::string_view Section = "[Texture.";
constexpr std::size_t Code_Size = 4;

std::optional<Double> Whole_In(std::string_view Text, Double Last) {
    const Double X = Val(Text);
    if (!(X >= 0.0 && X <= Last)) return {};
    return X;
}

std::string_view From(std::string_view Line, std::size_t At) {
    return Line.substr(std::min(At, Line.size()));
}

// What stands behind Key in a line that begins with it.
std::optional<std::string_view> Value_Of(std::string_view Line, std::string_view Key) {
    Line = Trim(Line);
    if (!Equal_No_Case(Line.substr(0, Key.size()), Key)) return {};
    return Trim(Line.substr(Key.size()));
}

std::optional<Own_Line_Entry> Kind_Of(std::string_view Line) {
    const std::string_view Code = From(Line, Section.size()).substr(0, Code_Size);
    const auto Number = Whole_In(Code, std::numeric_limits<Int>::max());
    if (!Number || Code.empty()) return {};
    const std::string_view Rest = From(Line, Section.size() + Code_Size + 1);
    const std::size_t Comment = Rest.find("//");
    const std::string_view Title =
        Comment == std::string_view::npos ? std::string_view() : Trim(Rest.substr(Comment + 2));
    return Own_Line_Entry{.Code = Round_Int(*Number), .Title = std::string(Title)};
}

void Take_Key(Own_Line_Entry& Kind, std::string_view Line) {
    if (const auto Type = Value_Of(Line, "Type=")) {
        const auto Number = Whole_In(*Type, std::numeric_limits<Byte>::max());
        if (Number) Kind.Type = static_cast<Byte>(Round_Lng(*Number));
    } else if (Value_Of(Line, "Effect=")) {
        Kind.Has_Effect = true;
    }
}

}  // namespace

std::vector<Own_Line_Entry> Own_Line_List_Read() {
    std::vector<Own_Line_Entry> Tab_OwnLine;
    const std::string Text = File_Read(App_Path + "\\Resource\\OwnLines4.txt").value_or("");
    bool In_Kind = false;
    for (std::size_t At = 0; At < Text.size();) {
        const std::size_t End = std::min(Text.find('\n', At), Text.size());
        std::string_view Line = std::string_view(Text).substr(At, End - At);
        if (Line.ends_with('\r')) Line.remove_suffix(1);
        At = End + 1;
        if (Line.starts_with('[')) {
            const auto Kind = Line.starts_with(Section) ? Kind_Of(Line) : std::nullopt;
            In_Kind = Kind.has_value();
            if (Kind) Tab_OwnLine.push_back(*Kind);
        } else if (In_Kind && !Line.starts_with("//")) {
            Take_Key(Tab_OwnLine.back(), Line);
        }
    }
    return Tab_OwnLine;
}

std::string Own_Line_Text(const Own_Line_Entry& Kind) {
    std::string Code(Num_Text(Kind.Code));
    Code.insert(0, Code_Size - std::min(Code_Size, Code.size()), '0');
    return Code + " " + (Kind.Has_Effect ? "Y " : "  ") + "(" + std::string(Num_Text(Kind.Type)) +
           ")" + Kind.Title;
}
