// qt/text.h - the program's texts and paths as Qt wants them, and back.
#pragma once

#include <QString>
#include <optional>
#include <string>
#include <string_view>

/// Text of code page 1252 as Qt's.
QString Qt_Text(std::string_view Text);
/// What was typed as text of code page 1252; "?" for a character that it does not have.
std::string Program_Text(const QString& Text);

/// A caption whose "&" are to be seen, where Qt takes one for the mark of a mnemonic.
QString Literal_Caption(std::string_view Text);

/// A path in the program's form as one of the system; "" when it can't exist here.
QString System_Path(std::string_view Path);
/// The program's form of a path of the system; nothing when it can't be written.
std::optional<std::string> Path_Of_System(const QString& Path);
