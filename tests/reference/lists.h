// reference/lists.h - the work lists of the plain rules, beside those of the program.
//
// The plain rules are the routines of this folder: every loop as it is told, every sort an
// exchange sort, every grid line a pass over all polygons. They are slow and simple, and the
// program's own routines must give the same rows, points, order and messages to the last bit.
#pragma once

#include <string>
#include <vector>

#include "geo/calibration.h"
#include "shapes/poly/work_lists.h"

namespace reference {

inline constinit Table<WPoly> Tab_WPoly{20, 20};
inline constinit Table<WPt> Tab_WPt{200, 200};
inline constinit Table<WPoly> Tab_NPoly{20, 20};
inline constinit Table<WPt> Tab_NPt{200, 200};
inline constinit Table<CPoly> Tab_CPoly{20, 20};
inline constinit Table<CPt> Tab_CPt{200, 200};

inline constinit const Long& Nb_WPoly = Tab_WPoly.Nb();
inline constinit const Long& Nb_WPt = Tab_WPt.Nb();
inline constinit const Long& Nb_NPoly = Tab_NPoly.Nb();
inline constinit const Long& Nb_NPt = Tab_NPt.Nb();
inline constinit const Long& Nb_CPoly = Tab_CPoly.Nb();
inline constinit const Long& Nb_CPt = Tab_CPt.Nb();

inline Int Has_Imbric = 0;
inline Int Has_Auto = 0;
inline Long Err_PixX = 0;
inline Long Err_PixY = 0;

/// The boxes that would have been shown: the number of a message, a blank and its added text,
/// or the text of a plain box.
inline std::vector<std::string> Messages;
/// The captions of LCompileNom, and the last number shown in LCompile.
inline std::vector<std::string> Stages;
inline Long Counter = 0;

/// Empties all of this.
void Reset();

/// The place of a point.
inline Pix Pix_Of(const WPt& P) {
    return {P.X, P.Y};
}

/// Appends a polygon to Tab_NPoly with the values of Like and these points.
void NPoly_Append(const WPoly& Like, const std::vector<WPt>& Points);

/// Makes the output lists of a pass the new work lists.
void WPoly_Commit();

}  // namespace reference
