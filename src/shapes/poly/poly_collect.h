// shapes/poly/poly_collect.h - the drawn polygons of one technique, cleaned and turned clockwise.
#pragma once

#include <span>

#include "geo/calibration.h"
#include "shapes/poly/work_lists.h"

/// What is made of the drawn polygons. The third technique has shorter pieces and no output.
enum Poly_Mode : Int { Mode_LWM = 0, Mode_VTP1 = 1, Mode_VTP2 = 2 };

/// Fills Tab_WPoly and Tab_WPt with the model's polygons of a technique. Repeated points and points
/// in line are dropped, and outlines of 3 points or more run clockwise; what keeps fewer than 2
/// points is left out.
void Poly_Collect(Int Mode);

/// 1 when the outline already runs clockwise on the map. Needs a point or more.
Int Poly_Orientation(std::span<const Pix> Outline);

/// 3 when some outline crosses or touches itself, else 0. The first such place in the order of
/// the lists goes to Err_PixX and Err_PixY. Outlines of fewer than 4 points are not tested; open
/// ones (Closed false) have no closing edge.
Int Poly_Self_Cross(bool Closed = true);

/// Message 121 with the place that Poly_Self_Cross found.
void Self_Cross_Show();
