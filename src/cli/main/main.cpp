// cli/main/main.cpp - terrafold-cli, the program without a window.
#include "cli/commands.h"
#include "platform/arguments.h"
#include "platform/memory.h"

int main(int argc, char** argv) {
    Keep_Freed_Memory();
    return Cli_Run(Program_Arguments(argc, argv));
}
