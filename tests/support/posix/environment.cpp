// tests/support/posix/environment.cpp - the environment of this process.
#include "support/environment.h"

#include <cstdlib>

void Set_Environment(const std::string& Name, const std::optional<std::string>& Value) {
    if (Value)
        setenv(Name.c_str(), Value->c_str(), 1);
    else
        unsetenv(Name.c_str());
}
