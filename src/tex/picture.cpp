// tex/picture.cpp - making pictures.
#include "tex/picture.h"

#include "core/check.h"

Picture Picture_Make(Long Width, Long Height, Int Bits) {
    Check(Width >= 0 && Height >= 0 && (Bits == 8 || Bits == 24),
          "a picture has a size and a depth");
    static std::uint64_t Last_Id = 0;
    Picture P{.Width = Width, .Height = Height, .Bits = Bits};
    const auto Used = static_cast<std::size_t>(Width) * static_cast<std::size_t>(Bits / 8);
    P.Stride = (Used + 3) / 4 * 4;
    P.Bytes.assign(P.Stride * static_cast<std::size_t>(Height), 0);
    if (Bits == 8) P.Palette.resize(256);
    P.Id = ++Last_Id;
    return P;
}
