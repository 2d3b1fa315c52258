// core/line_reader.h - the line reader of project and reference files.
//
// Both kinds of file are lines of code page 1252 text, ended by CR LF (a lone LF or the end
// of the file ends a line as well). Columns 1 to 4 of a line are a tag or blank; fields are
// read from column 5 on, numbers parted by blanks and strings between double quotes. There is
// one reader at a time.
#pragma once

#include <string>
#include <string_view>

#include "core/numbers.h"

inline std::string_view Cur_Line;   // the line, without its end
inline Long Cur_Len = 0;            // its length
inline Long Cur_Pos = 0;            // place of the next character to look at, from 1
inline std::string_view Cur_Token;  // the token taken last

/// Starts reading Text, which must outlive the reading.
void Reader_Open(std::string_view Text);

/// Goes to the next line that is not empty and sets Cur_Pos to 5. False, with an empty line,
/// when there is none.
bool Next_Line();

/// Takes characters up to the next blank into Cur_Token and leaves Cur_Pos on that blank, or
/// on the last character when the token ends the line. Cur_Token is empty when only blanks
/// are left. Asked again behind a token that ended the line, it gives the last character.
void Next_Token();

/// Takes the text between the next two double quotes; the end of the line closes it as well.
/// Cur_Token is empty when no quote is left.
void Next_Quoted();

/// True when Next_Token has nothing more to take, the last token having ended the line.
bool Line_Is_Used_Up();

/// The number of the present line in the text, from 1, empty lines counted.
Long Reader_Line();

/// How many bytes are left behind the present line.
std::size_t Reader_Bytes_Left();
