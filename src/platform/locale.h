// platform/locale.h - the language of the computer's user.
#pragma once

#include <string>

/// Two small letters, as "fr"; empty when the system does not tell.
std::string System_Language();
