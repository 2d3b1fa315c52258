// gen/coast_generate.h - the surfaces of the coastlines, for the mask.
#pragma once

/// Whether the project has a coastline of two points or more.
bool Any_Coast();

/// Closes the project's coastlines and fills Tab_CCoast and Tab_CCoastPt with their pieces, Cell
/// by Cell; the surface lies right of the line as drawn, or left of it with LandOnRight. A line
/// that crosses itself (message 121) or cannot be closed (message 132) leaves them empty. The
/// work lists are empty at the end. Needs a map that can be converted (Can_Convert).
void Coast_Generate();
