// gen/emit_vtp2_poly.h - the textured polygons.
#pragma once

/// Writes the polygons of the second technique, cut on the Area grid, as a VTP source and
/// compiles it to the stem of NameBgl and "_5.bgl". Nothing is written when there are none, when
/// they cross themselves or one another (messages 121, 122), or when they need more than 127
/// textures and groups (a plain box).
void Emit_VTP2_Poly();
