// play/script_path.cpp - which of the two forms a path has, and what it means.
#include "play/script_path.h"

#include <filesystem>

#include "platform/paths.h"
#include "platform/text1252.h"

namespace {

std::filesystem::path As_Typed(std::string_view Text) {
    const std::string Utf8 = To_Utf8(Text);
    return std::u8string(Utf8.begin(), Utf8.end());
}

bool Has_Root(std::string_view Text) {
    return Text.starts_with('\\') || (Text.size() > 2 && Text[1] == ':' && Text[2] == '\\');
}

}  // namespace

std::optional<std::string> Script_Path(std::string_view Text) {
    if (Has_Root(Text)) return std::string(Text);
    if (Text.find('\\') == std::string_view::npos) return Program_Path(As_Typed(Text));
    const auto Here = Program_Path(std::filesystem::current_path());
    if (!Here) return std::nullopt;
    return *Here + (Here->ends_with('\\') ? "" : "\\") + std::string(Text);
}
