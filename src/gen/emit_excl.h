// gen/emit_excl.h - exclusions of the default scenery, the smallest output.
#pragma once

/// Writes the exclusion records as a VTP source without geometry, a layer for each class that
/// is excluded in a Cell, and compiles it to NameBglExcl. Nothing happens when no flag is set.
void Emit_Excl();
