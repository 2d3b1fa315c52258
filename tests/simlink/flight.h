// tests/simlink/flight.h - readings of a stand-in simulator that flies along a track.
#pragma once

#include <functional>

#include "support/temp_dir.h"

/// Starts the simulator with the path of its track, which stands in Dir, reads 100 positions and
/// compares them, ends it, and does the same again; every atom must be released. End must leave
/// no simulator. A simulator that is not there gives status 1, at once.
void Fly_Twice(const Temp_Dir& Dir, const std::function<void(const std::string& Track)>& Start,
               const std::function<void()>& End);
