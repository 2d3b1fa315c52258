// platform/clock.cpp
#include "platform/clock.h"
