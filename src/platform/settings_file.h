// platform/settings_file.h - INI files: sections in brackets, then key=value lines.
//
// Case of sections and keys is ignored, the first match wins, blanks round keys and values and
// one pair of quotes round a value are dropped. A value is read through a buffer of 256
// characters, so at most 255 come back.
#pragma once

#include <string>
#include <string_view>

/// The value of Key in Section, or Default (cut in the same way) when file, section or key is
/// absent.
std::string Setting_Read(std::string_view File, std::string_view Section, std::string_view Key,
                         std::string_view Default);

/// Sets Key in Section and leaves every other line as it is; makes file and section when they
/// are absent. The file is replaced in one step. False when it can't be written.
bool Setting_Write(std::string_view File, std::string_view Section, std::string_view Key,
                   std::string_view Value);
