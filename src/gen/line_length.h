// gen/line_length.h - lines shortened to what the outside assembler takes.
#pragma once

/// Divides the lines of Tab_WPoly of more than 279 points, shores of polygons excepted. The first
/// piece has at most 279 points, later ones 280, since each begins with the last point of the one
/// before; those ends take Tag_Cut. No piece is left with a single point of its own where one
/// point less a piece avoids it.
void Line_Limit_Length();
