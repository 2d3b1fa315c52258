// platform/text1252.cpp - code page 1252 to UTF-8 and back, capitals.
#include "platform/text1252.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>

namespace {

// What the bytes 0x80 to 0x9F stand for; all others are the character of their number.
constexpr std::array<char32_t, 32> High = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

void Append_Utf8(std::string& Out, char32_t C) {
    if (C < 0x80) {
        Out += static_cast<char>(C);
    } else if (C < 0x800) {
        Out += static_cast<char>(0xC0 | (C >> 6));
        Out += static_cast<char>(0x80 | (C & 0x3F));
    } else {
        Out += static_cast<char>(0xE0 | (C >> 12));
        Out += static_cast<char>(0x80 | ((C >> 6) & 0x3F));
        Out += static_cast<char>(0x80 | (C & 0x3F));
    }
}

// The character at the head of Text, which is not empty, and its length; nothing when the
// bytes are no UTF-8.
struct Decoded {
    char32_t Code;
    std::size_t Length;
};

std::optional<Decoded> Decode(std::string_view Text) {
    const auto Head = static_cast<unsigned char>(Text.front());
    if (Head < 0x80) return Decoded{Head, 1};
    const std::size_t Length = Head < 0xC2 ? 0 : Head < 0xE0 ? 2 : Head < 0xF0 ? 3 : 4;
    if (Length == 0 || Head > 0xF4 || Text.size() < Length) return std::nullopt;
    char32_t Code = Head & (0xFFU >> (Length + 1));
    for (std::size_t I = 1; I < Length; ++I) {
        const auto Next = static_cast<unsigned char>(Text[I]);
        if ((Next & 0xC0) != 0x80) return std::nullopt;
        Code = (Code << 6) | (Next & 0x3F);
    }
    const bool Too_Long = (Length == 3 && Code < 0x800) || (Length == 4 && Code < 0x10000);
    const bool Surrogate = Code >= 0xD800 && Code <= 0xDFFF;
    if (Too_Long || Surrogate || Code > 0x10FFFF) return std::nullopt;
    return Decoded{Code, Length};
}

std::optional<char> Byte_Of(char32_t Code) {
    if (Code < 0x80 || (Code >= 0xA0 && Code <= 0xFF)) return static_cast<char>(Code);
    const auto* Found = std::find(High.begin(), High.end(), Code);
    if (Found == High.end()) return std::nullopt;
    return static_cast<char>(0x80 + std::distance(High.begin(), Found));
}

constexpr std::array<char, 256> Capitals = [] {
    std::array<char, 256> Table{};
    for (unsigned I = 0; I < 256; ++I) {
        const bool Latin = (I >= 'a' && I <= 'z') || (I >= 0xE0 && I <= 0xFE && I != 0xF7);
        const bool Caron_Or_Oe = I == 0x9A || I == 0x9C || I == 0x9E;
        const unsigned Upper = Latin ? I - 0x20 : Caron_Or_Oe ? I - 0x10 : I == 0xFF ? 0x9FU : I;
        Table[I] = static_cast<char>(Upper);
    }
    return Table;
}();

}  // namespace

std::string To_Utf8(std::string_view Text) {
    std::string Out;
    Out.reserve(Text.size());
    for (const char C : Text) {
        const auto Byte = static_cast<unsigned char>(C);
        Append_Utf8(Out, Byte >= 0x80 && Byte < 0xA0 ? High[Byte - 0x80U] : Byte);
    }
    return Out;
}

std::optional<std::string> From_Utf8(std::string_view Text) {
    std::string Out;
    Out.reserve(Text.size());
    while (!Text.empty()) {
        const std::optional<Decoded> Next = Decode(Text);
        if (!Next) return std::nullopt;
        const std::optional<char> Byte = Byte_Of(Next->Code);
        if (!Byte) return std::nullopt;
        Out += *Byte;
        Text.remove_prefix(Next->Length);
    }
    return Out;
}

std::string From_Utf8_Loose(std::string_view Text) {
    std::string Out;
    Out.reserve(Text.size());
    while (!Text.empty()) {
        const std::optional<Decoded> Next = Decode(Text);
        Out += Next ? Byte_Of(Next->Code).value_or('?') : '?';
        Text.remove_prefix(Next ? Next->Length : 1);
    }
    return Out;
}

char Upper_1252(char C) {
    return Capitals[static_cast<unsigned char>(C)];
}

std::string Upper_1252(std::string_view Text) {
    std::string Out(Text);
    for (char& C : Out) C = Upper_1252(C);
    return Out;
}

bool Equal_No_Case(std::string_view A, std::string_view B) {
    return std::equal(A.begin(), A.end(), B.begin(), B.end(),
                      [](char X, char Y) { return Upper_1252(X) == Upper_1252(Y); });
}

std::string_view Trim(std::string_view Text) {
    const std::size_t First = Text.find_first_not_of(" \t");
    if (First == std::string_view::npos) return {};
    return Text.substr(First, Text.find_last_not_of(" \t") - First + 1);
}

bool Is_Control(char C) {
    const auto Byte = static_cast<unsigned char>(C);
    return Byte < 0x20 || Byte == 0x7F ||
           std::string_view("\x81\x8D\x8F\x90\x9D").find(C) != std::string_view::npos;
}

std::string As_One_Line(std::string_view Text) {
    constexpr char Digits[] = "0123456789ABCDEF";
    std::string Line;
    for (std::size_t I = 0; I < Text.size(); ++I) {
        const char C = Text[I];
        if (C == '\r' && I + 1 < Text.size() && Text[I + 1] == '\n') continue;
        if (C == '\r' || C == '\n' || C == '\t')
            Line += ' ';
        else if (Is_Control(C))
            Line.append("\\x").append({Digits[(C >> 4) & 15], Digits[C & 15]});
        else
            Line += C;
    }
    return Line;
}
