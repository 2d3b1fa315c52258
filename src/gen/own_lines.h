// gen/own_lines.h - the designer's own line kinds, as the emitter of lines reads them.
//
// They stand in OwnLines4.txt in the program's Resource directory, a section "[Texture.CODE]" for
// each; the head of that file tells how to add one. Without the file or a key the defaults hold.
#pragma once

#include <string>
#include <string_view>
#include <unordered_map>

#include "core/numbers.h"

/// Kinds from this code on are the designer's own; those below are the simulator's.
inline constexpr Int First_Own_Line = 4096;

/// What an own kind looks like. Type and Size are the texts of the file.
struct Own_Line {
    std::string Type;      // "2" by default
    std::string Size;      // "4"
    std::string Textures;  // file names, ";" between them; "ShoreSU.bmp"
    std::string Effect;    // empty for none
};

/// The file as it is when this is made.
class Own_Lines {
public:
    Own_Lines();
    Own_Lines(const Own_Lines&) = delete;
    Own_Lines& operator=(const Own_Lines&) = delete;

    Own_Line Kind(Int Code) const;
    /// The first texture file of a kind, "RiverSu.bmp" when the file names none.
    std::string Line_First_Texture(Int Code) const;
    /// The texture files of a kind as the file has them, "|" between them; empty when it names
    /// none.
    std::string Line_Textures(Int Code) const;

private:
    std::string Value(Int Code, const char* Key, const char* Default) const;

    std::string Text_;
    std::unordered_map<std::string, std::string_view> Sections_;  // by their names in capitals
};
