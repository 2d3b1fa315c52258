// gen/emit_night_lines.h - road lights.
#pragma once

/// Writes the lights of every line that has them, cut along half squares of level 10, one source
/// for each Area, and compiles each to the stem of NameBgl, "_9", the number of the source from
/// 001 on, ".bgl". When the compiler cannot be started for one of them, its number is left out.
/// Nothing is written when there are no such lines.
void Night_Lines_Generate();
