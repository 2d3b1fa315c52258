// gen/source_frame.cpp
#include "gen/source_frame.h"
