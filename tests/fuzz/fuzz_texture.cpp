// tests/fuzz/fuzz_texture.cpp - any bytes as texture file.
//
// Besides staying alive: what was read has a size within limits and one line that tells it;
// nothing is left of what was refused; and as a bitmap file it is the same picture again.
#include "fuzz/scratch.h"
#include "tex/bitmap.h"
#include "tex/texture.h"

namespace {

// Files of 24 bits are copied as they are, with headers that bitmaps need not have.
void Need_Same_As_File(const std::string& Path, const Picture& P, const std::string& Text) {
    std::string Again;
    Int Error = -1;
    Texture_To_Bmp(Path, Pal_Fs5, Path + "2", Again, Error);
    Need(Error == 0 && Again == Text);
    Picture Back;
    if (Picture_Read(Path + "2", Back) == Bitmap_Fault::None)
        Need(Back.Bytes == P.Bytes);
    else
        Need(Text.starts_with("Bmp 24"));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
    const std::string Path = Scratch_File(Data, Size);
    Picture P;
    std::string Text;
    const Texture_Fault Fault = Texture_Read(Path, Pal_Fs5, P, Text);
    Need((Fault == Texture_Fault::None) == !P.Is_Empty() && P.Is_Empty() == Text.empty());
    Need(P.Width <= 8192 && P.Height <= 8192 && P.Bits == 24);
    Need(P.Bytes.size() == P.Stride * static_cast<std::size_t>(P.Height));
    if (Fault == Texture_Fault::None) Need_Same_As_File(Path, P, Text);
    return 0;
}
