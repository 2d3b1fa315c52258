// platform/arguments.cpp - the file that the words of a command line name.
#include "platform/arguments.h"

#include "platform/files.h"
#include "platform/paths.h"
#include "platform/system.h"

std::optional<std::string> Path_Of_Words(std::span<const std::string> Words) {
    if (Words.empty()) return std::nullopt;
    std::string Together = Words.front();
    for (const std::string& Word : Words.subspan(1)) Together += ' ' + Word;
    const auto Whole = Program_Path(Path_From_Utf8(Together));
    if (Whole && File_Exists(*Whole)) return Whole;
    return Program_Path(Path_From_Utf8(Words.front()));
}
