// cli/main/main.cpp - terrafold-cli, the program without a window.
#include "cli/commands.h"
#include "platform/arguments.h"

int main(int argc, char** argv) {
    return Cli_Run(Program_Arguments(argc, argv));
}
