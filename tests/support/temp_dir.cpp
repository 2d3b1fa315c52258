// tests/support/temp_dir.cpp - directories below the system's temporary one.
#include "support/temp_dir.h"

#include <fstream>
#include <iterator>
#include <random>
#include <stdexcept>

#include "platform/paths.h"
#include "platform/system.h"

namespace fs = std::filesystem;

Temp_Dir::Temp_Dir() {
    std::random_device Source;
    do {
        Native_ = fs::temp_directory_path() / ("terrafold_" + std::to_string(Source()));
    } while (!fs::create_directory(Native_));
    Native_ = fs::canonical(Native_);
}

Temp_Dir::~Temp_Dir() {
    std::error_code Ignored;
    fs::remove_all(Native_, Ignored);
}

fs::path Temp_Dir::Native(std::string_view Name) const {
    return Native_ / Path_From_Utf8(std::string(Name));
}

std::string Temp_Dir::Path() const {
    return Program_Path(Native_).value();
}

std::string Temp_Dir::Path(std::string_view Name) const {
    return Path() + "\\" + std::string(Name);
}

void Temp_Dir::Write(std::string_view Name, std::string_view Bytes) const {
    fs::create_directories(Native(Name).parent_path());
    std::ofstream Out(Native(Name), std::ios::binary);
    Out.write(Bytes.data(), static_cast<std::streamsize>(Bytes.size()));
    if (!Out.flush()) throw std::runtime_error("cannot write " + Native(Name).string());
}

std::string Temp_Dir::Read(std::string_view Name) const {
    std::ifstream In(Native(Name), std::ios::binary);
    if (!In) throw std::runtime_error("cannot read " + Native(Name).string());
    return {std::istreambuf_iterator<char>(In), {}};
}

bool Temp_Dir::Has(std::string_view Name) const {
    return fs::exists(Native(Name));
}
