// platform/simulator_dir.cpp - the user's word before the registry's.
#include "platform/simulator_dir.h"

#include "platform/system.h"

std::string Simulator_Dir() {
    if (const auto Named = Env_Program_Path("TERRAFOLD_FSDIR")) return *Named;
    return Registered_Simulator_Dir();
}
