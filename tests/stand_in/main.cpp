// tests/stand_in/main.cpp - does what the plan beside it says; support/stand_in.h tells how.
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <system_error>
#include <thread>
#include <vector>

#include "platform/arguments.h"
#include "platform/system.h"
#include "platform/text1252.h"

namespace fs = std::filesystem;

namespace {

using Words = std::vector<std::string>;

void Tell(const fs::path& File, const Words& Arguments) {
    std::ofstream Out(File, std::ios::binary);
    for (const std::string& A : Arguments) Out << '[' << From_Utf8_Loose(A) << ']';
}

// The words of a line of the plan with the arguments in their places.
Words Filled(const std::string& Line, const Words& Arguments) {
    Words Filled_In;
    std::istringstream In(Line);
    for (std::string Word; In >> Word;) {
        const bool Place = Word.size() == 2 && Word[0] == '$';
        const auto Number = static_cast<std::size_t>(Place ? Word[1] - '1' : 0);
        if (Place) Word = Number < Arguments.size() ? Arguments[Number] : "";
        Filled_In.push_back(Word);
    }
    Filled_In.resize(3);
    return Filled_In;
}

bool Do(const fs::path& Dir, const Words& Step, const Words& Arguments) {
    std::error_code Error;
    const fs::path First = Dir / Path_From_Utf8(Step[1]), Second = Dir / Path_From_Utf8(Step[2]);
    if (Step[0] == "same") return Step[1] == Step[2];
    if (Step[0] == "need") return fs::is_regular_file(First, Error);
    if (Step[0] == "copy") {
        fs::remove(Second, Error);  // not every library replaces a file as it says
        return fs::copy_file(First, Second, Error);
    }
    if (Step[0] == "exit") std::exit(std::stoi(Step[1]));
    if (Step[0] == "wait")
        std::this_thread::sleep_for(std::chrono::milliseconds(std::stoi(Step[1])));
    if (Step[0] == "print") std::cout << Step[1] << std::endl;
    if (Step[0] == "tell") Tell(First, Arguments);
    return true;
}

}  // namespace

int main(int argc, char** argv) {
    const Words Arguments = Program_Arguments(argc, argv);
    const fs::path Self = Own_Program().value();
    fs::path Plan = Self;
    Plan += ".plan";
    std::ifstream In(Plan);
    for (std::string Line; std::getline(In, Line);)
        if (!Do(Self.parent_path(), Filled(Line, Arguments), Arguments)) return 1;
    return 0;
}
