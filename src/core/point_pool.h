// core/point_pool.h - Tab_Pt without the points that deletions have left behind.
#pragma once

#include <vector>

#include "core/model.h"

/// Points of Tab_Pt that are on no object's chain.
Long Nb_Dead_Pt();

/// Drops them; the others keep their order. Returns the new row of each old one, from 1, and 0 for
/// those that are gone.
std::vector<Long> Pt_Compact();
