// platform/posix/arguments.cpp - arguments are bytes already.
#include "platform/arguments.h"

std::vector<std::string> Program_Arguments(int argc, const char* const* argv) {
    if (argc < 1) return {};
    return {argv + 1, argv + argc};
}
