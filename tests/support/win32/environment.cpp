// tests/support/win32/environment.cpp - the environment of this process, the runtime's copy
// of it included.
#include "support/environment.h"

#include <cstdlib>

void Set_Environment(const std::string& Name, const std::optional<std::string>& Value) {
    _wputenv_s(Path_From_Utf8(Name).c_str(), Path_From_Utf8(Value.value_or("")).c_str());
}
