// shapes/line/line_collect.h - the drawn lines of one output, cleaned, into the work lists.
//
// Roads and shores, coastlines and night lines are gathered by the same scans; a Line_Rule says
// in what they differ.
#pragma once

#include "core/model.h"
#include "shapes/poly/work_lists.h"

/// WPt::Tag of the points of a line.
inline constexpr Byte Tag_Plain = 0;  // an inner point, or an end that tapers
inline constexpr Byte Tag_Wide = 1;   // a free end that keeps the full width
inline constexpr Byte Tag_Cut = 2;    // an end made by cutting; it overlaps the next piece

struct Line_Rule {
    /// The objects taken; each needs two points or more besides.
    bool (*Takes)(const Attr& A) = nullptr;
    /// The objects whose line goes back to its first point when FermerLine is 1. None without.
    bool (*May_Close)(const Attr& A) = nullptr;
    /// Free ends are tagged by Effil_Deb and Effil_Fin. Without, every Tag is Tag_Plain.
    bool Has_Tags = false;
    /// LandOnRight turns the line end to end, tags and all.
    bool Turns = false;
};

/// Fills Tab_WPoly and Tab_WPt with the model's lines that the rule takes. Repeated points and
/// points in line are dropped (point_scans.h), also round the way from the last point to the
/// first; what keeps fewer than 2 points is left out. A closed line ends in a copy of its first
/// point, tag included, and the point before it is Tag_Plain.
void Line_Collect(const Line_Rule& Rule);
