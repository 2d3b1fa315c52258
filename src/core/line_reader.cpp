// core/line_reader.cpp - lines, tokens and quoted strings out of a text in memory.
#include "core/line_reader.h"

#include <algorithm>
#include <limits>

namespace {

constexpr Long First_Field_Column = 5;

std::string_view Rest;  // behind the present line
Long Line_Number = 0;
bool Token_Ended_Line = false;  // the token taken last reached the end of its line

char At(Long Pos) {
    return Cur_Line[static_cast<std::size_t>(Pos - 1)];
}

std::string_view Between(Long First, Long Behind) {
    return Cur_Line.substr(static_cast<std::size_t>(First - 1),
                           static_cast<std::size_t>(Behind - First));
}

// The first place from Pos on that holds C, or one behind the end of the line.
Long Find(char C, Long Pos) {
    const std::size_t Found = Cur_Line.find(C, static_cast<std::size_t>(Pos - 1));
    return Found == std::string_view::npos ? Cur_Len + 1 : static_cast<Long>(Found) + 1;
}

// The next line, empty or not, without its end.
std::string_view Take_Line() {
    const std::size_t End = std::min(Rest.find('\n'), Rest.size());
    std::string_view Line = Rest.substr(0, End);
    ++Line_Number;
    Rest.remove_prefix(std::min(End + 1, Rest.size()));
    if (Line.ends_with('\r')) Line.remove_suffix(1);
    return Line;
}

}  // namespace

void Reader_Open(std::string_view Text) {
    Rest = Text;
    Line_Number = 0;
    Cur_Line = {};
    Cur_Token = {};
    Cur_Len = 0;
    Cur_Pos = First_Field_Column;
    Token_Ended_Line = false;
}

bool Next_Line() {
    Cur_Line = {};
    while (Cur_Line.empty() && !Rest.empty()) Cur_Line = Take_Line();
    // Places in a line are Longs. A line that long is no line of ours: it counts as the end.
    if (Cur_Line.size() >= static_cast<std::size_t>(std::numeric_limits<Long>::max())) {
        Cur_Line = {};
        Rest = {};
    }
    Cur_Len = static_cast<Long>(Cur_Line.size());
    Cur_Pos = First_Field_Column;
    Token_Ended_Line = false;
    return Cur_Len > 0;
}

void Next_Token() {
    Cur_Token = {};
    while (Cur_Pos <= Cur_Len && At(Cur_Pos) == ' ') ++Cur_Pos;
    if (Cur_Pos > Cur_Len) {
        Token_Ended_Line = true;
        return;
    }
    const Long Behind = Find(' ', Cur_Pos);
    Cur_Token = Between(Cur_Pos, Behind);
    Token_Ended_Line = Behind > Cur_Len;
    Cur_Pos = std::min(Behind, Cur_Len);
}

void Next_Quoted() {
    Cur_Token = {};
    if (Cur_Pos > Cur_Len) return;
    const Long Open = Find('"', Cur_Pos);
    if (Open > Cur_Len) return;
    const Long Close = Find('"', Open + 1);
    Cur_Token = Between(Open + 1, Close);
    Cur_Pos = Close;
}

bool Line_Is_Used_Up() {
    return Token_Ended_Line || Cur_Pos > Cur_Len;
}

Long Reader_Line() {
    return Line_Number;
}

std::size_t Reader_Bytes_Left() {
    return Rest.size();
}
