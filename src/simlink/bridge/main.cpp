// simlink/bridge/main.cpp - terrafold-fsbridge: reaches the simulator for a program outside Wine.
//
// Answers each line of standard input with one of standard output, until the input ends:
//
//     find                    1 when a server is there, else 0
//     send COMMAND ARGUMENT   the signed result
//     take ATOM               "=" and the name of the atom, which is released; "-" without one
#include <algorithm>
#include <iostream>
#include <sstream>
#include <string>

#include "simlink/system_carrier.h"

namespace {

// An answer is one line, whatever a server put into its name.
std::string One_Line(std::string Name) {
    std::replace_if(
        Name.begin(), Name.end(), [](unsigned char C) { return C < ' '; }, '?');
    return Name;
}

std::string Answer(const std::string& Line) {
    Fsc_Carrier& Carrier = System_Carrier();
    std::istringstream In(Line);
    std::string What;
    Long First = 0, Second = 0;
    In >> What >> First >> Second;
    if (What == "find") return Carrier.Available() ? "1" : "0";
    if (What == "send") return std::to_string(Carrier.Send(First, Second));
    if (What != "take") return "?";
    const std::optional<std::string> Name = Carrier.Take_Atom(First);
    return Name ? "=" + One_Line(*Name) : "-";
}

}  // namespace

int main() {
    for (std::string Line; std::getline(std::cin, Line);) std::cout << Answer(Line) << std::endl;
}
