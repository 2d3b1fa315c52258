// platform/file_reader.cpp - pieces of a file through the standard library.
#include "platform/file_reader.h"

#include <filesystem>
#include <fstream>
#include <system_error>

#include "platform/files.h"
#include "platform/paths.h"

struct File_Reader::Handle {
    std::ifstream File;
    std::uint64_t Size = 0;
    std::uint64_t At = 0;  // where the next byte comes from; a needless seek drops what is buffered
};

File_Reader::File_Reader(std::string_view Path) {
    const auto Native = Native_Path(Path);
    if (!Native || !File_Exists(Path)) return;
    auto H = std::make_unique<Handle>();
    std::error_code Error;
    H->Size = std::filesystem::file_size(*Native, Error);
    if (Error) return;
    H->File.rdbuf()->pubsetbuf(nullptr, 0);  // callers read large pieces
    H->File.open(*Native, std::ios::binary);
    if (H->File.is_open()) Handle_ = std::move(H);
}

File_Reader::~File_Reader() = default;

bool File_Reader::Is_Open() const {
    return Handle_ != nullptr;
}

std::uint64_t File_Reader::Size() const {
    return Handle_ ? Handle_->Size : 0;
}

bool File_Reader::Read(std::uint64_t At, std::span<std::uint8_t> Into) {
    if (!Handle_ || At > Handle_->Size || Into.size() > Handle_->Size - At) return false;
    std::ifstream& File = Handle_->File;
    if (At != Handle_->At) File.seekg(static_cast<std::streamoff>(At));
    File.read(reinterpret_cast<char*>(Into.data()), static_cast<std::streamsize>(Into.size()));
    const bool Whole = File.good();
    File.clear();
    Handle_->At = Whole ? At + Into.size() : Handle_->Size + 1;
    return Whole;
}
