// geometry/exact_turn.h - the side of a point, decided without rounding.
#pragma once

#include "core/numbers.h"
#include "geo/calibration.h"

/// 1 when P3 lies right of the way from P1 to P2 as seen on the map, -1 when left of it, 0 when
/// the three are exactly in line. Coordinates are map pixels, Y south; products of two of them
/// must neither overflow nor underflow.
int Exact_Turn(Pix P1, Pix P2, Pix P3);
