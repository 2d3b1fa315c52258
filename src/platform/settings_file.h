// platform/settings_file.h - INI files: sections in brackets, then key=value lines.
//
// Case of sections and keys is ignored, the first match wins, blanks round keys and values and
// one pair of quotes, single or double, round a value are dropped. A line that begins with ";"
// is a comment; a line without "=" says nothing. A value is read through a buffer of 256
// characters, so at most 255 come back.
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The value of Key in Section, or Default (cut in the same way) when file, section or key is
/// absent.
std::string Setting_Read(std::string_view File, std::string_view Section, std::string_view Key,
                         std::string_view Default);

/// Sets Key in Section and leaves every other line as it is; makes file and section when they
/// are absent. The file is replaced in one step. False when it can't be written, or when no
/// line could hold these texts (below).
bool Setting_Write(std::string_view File, std::string_view Section, std::string_view Key,
                   std::string_view Value);

/// The same two on the text of such a file. A key that is absent gives nothing.
std::optional<std::string> Setting_In_Text(std::string_view Text, std::string_view Section,
                                           std::string_view Key);

/// Text with the setting in it. New lines end as the first line of Text does, else in CR LF. A
/// value that reading would strip is put in quotes. Nothing when a line end or a zero stands
/// in one of the texts, or when Section or Key is empty or could not be found again.
std::optional<std::string> Text_With_Setting(std::string_view Text, std::string_view Section,
                                             std::string_view Key, std::string_view Value);
