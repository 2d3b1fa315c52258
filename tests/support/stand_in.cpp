// tests/support/stand_in.cpp - the program copied, its plan beside it.
#include "support/stand_in.h"

#include <filesystem>

namespace fs = std::filesystem;

void Put_Stand_In(const Temp_Dir& Dir, std::string_view Name, std::string_view Plan) {
    Dir.Write(std::string(Name) + ".plan", Plan);
    fs::remove(Dir.Native(Name));
    fs::copy_file(STAND_IN, Dir.Native(Name));
}
