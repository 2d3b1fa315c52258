// gen/class_raster.h - the classes of one square of level 5 as the terrain tools take them.
#pragma once

#include <string>
#include <string_view>

#include "core/numbers.h"

/// No class: what the raster holds where no cell has set one.
inline constexpr Byte No_Class = 254;

/// Bytes in rows from the north, each from the west. Cells are 0 to 255 both ways; the last row
/// and column, the corners shared with the next squares, are never set.
class Class_Raster {
public:
    static constexpr Int Side = 257;

    /// Takes over the bytes of a raw file. A short file leaves the rest without a class.
    void Load(std::string_view Raw);
    void Set(Int Col, Int Row, Byte Num) { Bytes_[Place(Col, Row)] = static_cast<char>(Num); }
    /// The contents of a raw file: no header, Side rows of Side bytes.
    std::string_view Bytes() const { return Bytes_; }

private:
    static constexpr std::size_t Place(Int Col, Int Row) {
        return static_cast<std::size_t>(Row * Side + Col);
    }

    std::string Bytes_ = std::string(Place(0, Side), static_cast<char>(No_Class));
};
