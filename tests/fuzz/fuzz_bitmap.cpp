// tests/fuzz/fuzz_bitmap.cpp - any bytes as bitmap file.
//
// Besides staying alive: a picture that was read has the size its header says, and takes no more
// room than the file; nothing is left of one that was refused.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "platform/paths.h"
#include "tex/bitmap.h"

namespace {

// In memory where the system offers that, for speed.
std::filesystem::path Scratch_File() {
    const std::filesystem::path Memory = "/dev/shm";
    const auto Dir =
        std::filesystem::is_directory(Memory) ? Memory : std::filesystem::temp_directory_path();
    return Dir / ("terrafold_fuzz_" + std::to_string(std::random_device{}()) + ".bmp");
}

void Need(bool Holds) {
    if (!Holds) std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
    static const std::filesystem::path File = Scratch_File();
    static const std::string Path = Program_Path(File).value();
    {
        std::ofstream Out(File, std::ios::binary);
        Out.write(reinterpret_cast<const char*>(Data), static_cast<std::streamsize>(Size));
    }
    Picture P;
    const Bitmap_Fault Fault = Picture_Read(Path, P);
    Need((Fault == Bitmap_Fault::None) == !P.Is_Empty());
    Need(Bitmap_Fault_Text(Fault, Path).ends_with(Path));
    Need(P.Bytes.size() <= Size && P.Bytes.size() == P.Stride * static_cast<std::size_t>(P.Height));
    if (Fault == Bitmap_Fault::None && P.Bits == 8) Need(P.Palette.size() == 256);
    return 0;
}
