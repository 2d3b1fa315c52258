// grid/map_limits.h - what follows from the calibration: the map's limits, its Cells and the
// work grid round them.
#pragma once

#include "core/model.h"
#include "geo/calibration.h"

/// Fills the derived values of Cal from its points and the size of the map image in pixels.
/// Points that share a row, a column, a latitude or a longitude, or a south-east point in row
/// or column 0, have no such values; all of them are then 0.
void Compute_Map_Limits(Calibration& Cal, Long Width, Long Height);

/// The second half of it, for a calibration whose LatMap and LonMap values are set already:
/// fills the Cells of the map and all values of the work grid. The same points have none; all
/// derived values are then 0.
void Compute_Grid_Limits(Calibration& Cal);

/// Moves every cell record to the cell that lies under its pixel now, after the calibration in
/// use has replaced Old. Records that come to share a cell all stay. A record stays where it is
/// when Old or the calibration in use ties no pixel to a position.
void Reproject_Cells(const Calibration& Old);
