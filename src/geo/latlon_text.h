// geo/latlon_text.h - latitudes and longitudes as text, and back.
//
// Degrees are Doubles, north and east positive; exactly 0 counts as north and east. The decimal
// separator is "." everywhere, whatever the system's settings. The mask alone rounds, a half
// away from zero, so seconds and minutes can show as 60.
#pragma once

#include <string>
#include <string_view>

#include "core/numbers.h"

/// Degrees, minutes and seconds: "N45:06:35.5078", "E003:12:00.0000".
std::string Lat_To_Text(Double Lat);
std::string Lon_To_Text(Double Lon);

/// Degrees and decimal minutes without leading zeros: "N45*6.5918'", "E3*12.0000'".
std::string Lat_To_Text_Min(Double Lat);
std::string Lon_To_Text_Min(Double Lon);

/// What a text was read as. Err is 1 when it is refused; Deg is then meaningless.
struct Degrees_Read {
    Double Deg = 0.0;
    Int Err = 0;
};

/// Reads the form with seconds, rounded to six decimals. Blanks round the text are ignored; the
/// letter alone is 0. Degrees (at most 90 or 180) and minutes (0 to 60) are read as Val reads
/// them; seconds (0 to 60) must be a number as fields take it (typed_number.h).
Degrees_Read Text_To_Lat(std::string_view Text);
Degrees_Read Text_To_Lon(std::string_view Text);

/// Reads the form of flight recorder files: "DDMMmmmN" and "DDDMMmmmE", mmm being thousandths
/// of a minute, the letter one of N, S or E, W. Refused when the length differs, blanks round
/// it not counted, or when a digit or the letter is another character. Ranges are not checked.
Degrees_Read Igc_To_Lat(std::string_view Text);
Degrees_Read Igc_To_Lon(std::string_view Text);

/// Reads a decimal number or any of the forms above. Refused beyond 90 or 180 degrees.
Degrees_Read Any_To_Lat(std::string_view Text);
Degrees_Read Any_To_Lon(std::string_view Text);

/// Deg with six decimals, a half going to the even neighbour.
Double Round_Degrees(Double Deg);

/// What a field for a latitude or longitude was given: a decimal number of at most 90 or 180
/// either way, or a text with a letter first, read as Text_To_Lat or Text_To_Lon read it.
/// Other_Form is what the label beside the field shows: the form with seconds of a number, the
/// decimal value of a text. Meaningless when Err is 1.
struct Degrees_Typed {
    Double Deg = 0.0;
    std::string Other_Form;
    Int Err = 0;
};
Degrees_Typed Typed_Lat(std::string_view Text);
Degrees_Typed Typed_Lon(std::string_view Text);
