// gen/emit_lines.h - roads, rivers and shores.
#pragma once

/// Writes every object that is drawn as a line, cut along the Areas, as a VTP source of wide
/// points and compiles it to the stem of NameBgl and "_9.bgl". Nothing is written when there are
/// none, or when map pixels cannot be converted (message 7).
void ShoreLines_Generate();
