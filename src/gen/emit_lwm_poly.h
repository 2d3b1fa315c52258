// gen/emit_lwm_poly.h - the land and water mask.
#pragma once

/// Writes the mask polygons, the coastline surfaces of Tab_CCoast and the fills of Cells and
/// Areas as an LWM source, and compiles it to the stem of NameBgl and "_3.bgl" when some Area has
/// data. Polygons that cross themselves or one another (messages 121, 122) are left out
/// together; the rest is written.
void Emit_LWM_Poly();
