// gen/own_lines.cpp - reading OwnLines4.txt key by key.
#include "gen/own_lines.h"

#include <algorithm>

#include "core/number_text.h"
#include "core/program.h"
#include "platform/files.h"
#include "platform/settings_file.h"
#include "platform/text1252.h"

Own_Lines::Own_Lines() : Text_(File_Read(App_Path + "\\Resource\\OwnLines4.txt").value_or("")) {}

std::string Own_Lines::Value(Int Code, const char* Key, const char* Default) const {
    const std::string Section = "Texture." + std::string(Num_Text(Code));
    const auto Found = Setting_In_Text(Text_, Section, Key);
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
    const std::string Names = Value(Code, "Textures", "");
    return Names.empty() ? "RiverSu.bmp" : Names.substr(0, Names.find('|'));
}
