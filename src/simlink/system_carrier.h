// simlink/system_carrier.h - how this system reaches the simulator.
#pragma once

#include "simlink/fsconnect.h"

/// On Windows by window messages; elsewhere through a helper program, which asks for it where
/// Wine runs the simulator.
Fsc_Carrier& System_Carrier();
