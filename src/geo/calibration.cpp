// geo/calibration.cpp
#include "geo/calibration.h"
