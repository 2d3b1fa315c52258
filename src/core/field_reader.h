// core/field_reader.h - the fields of a project or reference file, with an eye on damage.
//
// Stands on line_reader.h, so there is one at a time. Once a line is not as it must be the file
// counts as damaged; what is taken from then on means nothing.
#pragma once

#include <cmath>
#include <limits>
#include <optional>
#include <string>

#include "core/line_reader.h"
#include "core/number_text.h"
#include "core/numbers.h"

/// X as a T, rounded half to even where T is whole. False, with Field as it was, when T can't
/// hold it.
template <typename T>
bool Fits(Double X, T& Field) {
    if constexpr (std::numeric_limits<T>::is_integer) {
        const Double Whole = std::nearbyint(X);
        if (!(Whole >= std::numeric_limits<T>::min() && Whole <= std::numeric_limits<T>::max()))
            return false;
        Field = static_cast<T>(Whole);
        return true;
    } else {
        Field = static_cast<T>(X);
        return std::isfinite(Field);
    }
}

/// The version that the first line of the file states: "V" behind its tag, and a number of three
/// characters. Nothing when there is no "V".
inline std::optional<Double> Stated_Version() {
    Next_Line();
    Next_Token();
    if (!Cur_Token.starts_with('V')) return {};
    return Val(Cur_Token.substr(1, 3));
}

/// A line of a file, as a message tells it: "Maps/p.LWM, line 7". Path may be empty.
std::string Line_Of_File(std::string_view Path, Long Line);

class Field_Reader {
public:
    bool Is_Damaged() const { return Damaged_Line_ != 0; }
    void Damage() {
        if (!Is_Damaged()) Damaged_Line_ = Reader_Line();
    }
    /// The line at which the file was found to be damaged, 0 when it is not.
    Long Damaged_Line() const { return Damaged_Line_; }

    /// Goes to the next line that is not empty. The line behind the last record of a project
    /// file, "End", holds nothing: where it is met, lines are missing.
    void Line() {
        if (!Next_Line() || Cur_Line == "End") Damage();
    }

    /// Takes the next number of the line; one that is not there is 0. A value that T can't hold
    /// damages the file. False when there was none.
    template <typename T>
    bool Take(T& Field) {
        Cur_Token = {};
        if (!Line_Is_Used_Up()) Next_Token();
        if (!Fits(Val(Cur_Token), Field)) Damage();
        return !Cur_Token.empty();
    }

    /// The string of the next line; one that is not there is empty. One too long damages the file.
    void Quoted_Line(std::string& Field) {
        Line();
        Next_Quoted();
        if (Cur_Token.size() > Longest_String) return Damage();
        Field.assign(Cur_Token);
    }

private:
    static constexpr std::size_t Longest_String = 32767;

    Long Damaged_Line_ = 0;
};
