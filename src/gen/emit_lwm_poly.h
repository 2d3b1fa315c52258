// gen/emit_lwm_poly.h - the land and water mask.
#pragma once

/// Writes the surfaces of the coastlines (coast_generate.h), the mask polygons and the fills of
/// Cells and Areas as an LWM source, and compiles it to the stem of NameBgl and "_3.bgl" when
/// some Area has data. Polygons that cross themselves or one another (messages 121, 122) are left
/// out together, and so are coastlines; the rest is written. The lines follow (emit_lines.h),
/// unless the mask could not be written or compiled.
void Emit_LWM_Poly();
