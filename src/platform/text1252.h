// platform/text1252.h - single-byte text of code page 1252, the program's own text.
//
// The five bytes that the code page leaves free stand for the control characters of the same
// number, so every byte has one meaning and comes back from UTF-8 as it was.
#pragma once

#include <optional>
#include <string>
#include <string_view>

std::string To_Utf8(std::string_view Text);

/// Nothing when Text is no UTF-8 or holds a character that the code page does not have.
std::optional<std::string> From_Utf8(std::string_view Text);

/// The same with "?" for what does not exist.
std::string From_Utf8_Loose(std::string_view Text);

char Upper_1252(char C);
std::string Upper_1252(std::string_view Text);
bool Equal_No_Case(std::string_view A, std::string_view B);

/// Without blanks and tabs at both ends.
std::string_view Trim(std::string_view Text);

/// Whether C is a control character: a terminal obeys it in place of showing it.
bool Is_Control(char C);

/// Text as a line to print: every line end and tab is one blank, any other control character
/// "\x" and two digits.
std::string As_One_Line(std::string_view Text);
