// core/field_writer.h - the lines of project and reference files as they are written.
#pragma once

#include <string>
#include <string_view>

#include "core/number_text.h"
#include "core/numbers.h"
#include "platform/files.h"

/// Str text of X. A number that a file cannot hold must not spoil the save of all others: one
/// that is not finite is written as 0, one that could read back as infinite a little smaller.
Number_Chars Writable(Double X);
Number_Chars Writable(Single X);
inline Number_Chars Writable(Long X) {
    return Str(X);
}

/// Text as it can stand between double quotes on one line, where nothing can be escaped: a
/// double quote becomes ', a line end a blank.
std::string Without_Marks(std::string_view Text);

class Field_Writer {
public:
    explicit Field_Writer(File_Writer& Out) : Out_(Out) {}

    void Put(std::string_view Text) { Out_.Put(Text); }
    void End_Line() { Put("\r\n"); }

    /// Before, Text without marks in double quotes, of which Behind is the closing one.
    void Text_Line(std::string_view Before, std::string_view Text, std::string_view Behind = "\"") {
        Put(Before);
        Put("\"");
        if (Text.find_first_of("\"\r\n") == std::string_view::npos)
            Put(Text);
        else
            Put(Without_Marks(Text));
        Put(Behind);
        End_Line();
    }

    /// The numbers that Visit hands out, parted by blanks, behind Before.
    template <typename Visitor>
    void Number_Line(std::string_view Before, Visitor&& Visit) {
        Put(Before);
        bool First = true;
        Visit([&](auto X) {
            if (!First) Put(" ");
            First = false;
            Put(Writable(X));
        });
        End_Line();
    }

private:
    File_Writer& Out_;
};
