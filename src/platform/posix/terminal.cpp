// platform/posix/terminal.cpp - terminals by file descriptor.
#include "platform/terminal.h"

#include <unistd.h>

bool Error_Is_Terminal() {
    return isatty(STDERR_FILENO) == 1;
}
