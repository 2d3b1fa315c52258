// gen/emit_remesh.h - altitude samples for the re-mesh.
#pragma once

/// Writes each live altitude sample as a mask polygon of one point given twice, which carries its
/// height, and compiles the source to the stem of NameBgl and "_2.bgl". Nothing happens when
/// there are none.
void Emit_Remesh();
