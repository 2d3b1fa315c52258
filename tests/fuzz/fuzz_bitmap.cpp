// tests/fuzz/fuzz_bitmap.cpp - any bytes as bitmap file.
//
// Besides staying alive: a picture that was read has the size its header says, and takes no more
// room than the file; nothing is left of one that was refused.
#include "fuzz/scratch.h"
#include "tex/bitmap.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
    const std::string Path = Scratch_File(Data, Size);
    Picture P;
    const Bitmap_Fault Fault = Picture_Read(Path, P);
    Need((Fault == Bitmap_Fault::None) == !P.Is_Empty());
    Need(Bitmap_Fault_Text(Fault, Path).ends_with(Path));
    Need(P.Bytes.size() <= Size && P.Bytes.size() == P.Stride * static_cast<std::size_t>(P.Height));
    if (Fault == Bitmap_Fault::None && P.Bits == 8) Need(P.Palette.size() == 256);
    return 0;
}
