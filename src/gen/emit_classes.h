// gen/emit_classes.h - land and water classes of single cells.
#pragma once

/// Writes the classes of the cells as a raster for each square of level 5 that holds some, and
/// has the three terrain tools make "LC_COL_ROW.bgl" or "WC_COL_ROW.bgl" in Dir_LCWC of each. A
/// tool that cannot be started ends the kind. A raw file or an output that cannot be written is
/// told in a box, and the next square follows. Nothing is done when no cell has a class.
void LC_Generate();
void WC_Generate();
