// gen/lwm_text.h - the lines that all LWM sources share.
//
// An LWM source holds a data block per Area and an index. A block holds lists of polygons, each
// list bound to one Cell.
#pragma once

#include <functional>
#include <span>

#include "core/model.h"
#include "gen/source_frame.h"
#include "grid/terrain_grid.h"

/// Fills of a Cell or an Area in the file, as in the model, and the one for what is left open.
inline constexpr Byte Fill_Land = 1;
inline constexpr Byte Fill_Nothing = 3;

/// Versions of the file.
inline constexpr Long Lwm_Version_FS = 513;
inline constexpr Long Lwm_Version_CFS = 256;

/// An Area of the index. Without data its Fill holds for the whole Area.
struct Lwm_Area {
    Int AreaLon = 0, AreaLat = 0;
    Byte Fill = Fill_Nothing;
    Byte Has_Data = 1;
};

/// The lines of an LWM source behind its frame. Write_Area gets the number of an Area with data,
/// from 1, and writes its data.
void Lwm_Skeleton(Source_File& Out, Long Version, std::span<const Lwm_Area> Areas,
                  const std::function<void(Long)>& Write_Area);

/// The line before a list of Nb polygons in a Cell, with the value that the mask takes there.
void Lwm_List_Line(Source_File& Out, Long Nb, Int Mask, const Cell_Pos& Cell);

/// A corner of a polygon, on the Cell scale.
inline void Lwm_Point(Source_File& Out, Int LocX, Int LocY) {
    Out.Line("            LWMPoint ", LocX, ",", LocY);
}
