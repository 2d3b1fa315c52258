// gen/own_lines.cpp - OwnLines4.txt section by section, each read key by key.
#include "gen/own_lines.h"

#include <algorithm>
#include <optional>

#include "core/number_text.h"
#include "core/program.h"
#include "platform/files.h"
#include "platform/settings_file.h"
#include "platform/text1252.h"

namespace {

constexpr std::string_view Mark = "\xEF\xBB\xBF";  // of an editor

// The name of the section that a line begins, in capitals.
std::optional<std::string> Section_Of(std::string_view Line) {
    Line = Trim(Line);
    const std::size_t Close = Line.find(']');
    if (!Line.starts_with('[') || Close == std::string_view::npos) return std::nullopt;
    return Upper_1252(Trim(Line.substr(1, Close - 1)));
}

}  // namespace

// Kinds may be many: each section is found once, not looked for from the start of the file.
Own_Lines::Own_Lines() : Text_(File_Read(App_Path + "\\Resource\\OwnLines4.txt").value_or("")) {
    std::string_view Rest = Text_;
    if (Rest.starts_with(Mark)) Rest.remove_prefix(Mark.size());
    std::string_view* Section = nullptr;
    while (!Rest.empty()) {
        const std::size_t Size = std::min(Rest.find('\n'), Rest.size() - 1) + 1;
        if (const auto Name = Section_Of(Rest.substr(0, Size))) {
            const auto [At, Is_New] = Sections_.try_emplace(*Name, Rest.substr(0, 0));
            Section = Is_New ? &At->second : nullptr;
        }
        if (Section) *Section = {Section->data(), Section->size() + Size};
        Rest.remove_prefix(Size);
    }
}

std::string Own_Lines::Value(Int Code, const char* Key, const char* Default) const {
    const std::string Name = "Texture." + std::string(Num_Text(Code));
    const auto Section = Sections_.find(Upper_1252(std::string_view(Name)));
    if (Section == Sections_.end()) return Default;
    const auto Found = Setting_In_Text(Section->second, Name, Key);
    return Found ? std::string(Trim(*Found)) : std::string(Default);
}

Own_Line Own_Lines::Kind(Int Code) const {
    Own_Line K{.Type = Value(Code, "Type", "2"),
               .Size = Value(Code, "Size", "4"),
               .Textures = Value(Code, "Textures", "ShoreSU.bmp"),
               .Effect = Value(Code, "Effect", "")};
    std::replace(K.Textures.begin(), K.Textures.end(), '|', ';');
    return K;
}

std::string Own_Lines::Line_First_Texture(Int Code) const {
    const std::string Names = Line_Textures(Code);
    return Names.empty() ? "RiverSu.bmp" : Names.substr(0, Names.find('|'));
}

std::string Own_Lines::Line_Textures(Int Code) const {
    return Value(Code, "Textures", "");
}
