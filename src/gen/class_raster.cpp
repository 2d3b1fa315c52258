// gen/class_raster.cpp - reading the raster of an earlier generation.
#include "gen/class_raster.h"

void Class_Raster::Load(std::string_view Raw) {
    const std::string_view Used = Raw.substr(0, Bytes_.size());
    Bytes_.replace(0, Used.size(), Used);
}
