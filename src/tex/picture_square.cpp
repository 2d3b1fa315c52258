// tex/picture_square.cpp - placing and shrinking.
#include "tex/picture_square.h"

#include <algorithm>

#include "core/check.h"

namespace {

constexpr std::uint8_t Ground = 0xF0;  // of each colour

// The pixel of N shown at I of Nb: the one under its middle.
std::size_t Taken(Long I, Long Nb, Long N) {
    return static_cast<std::size_t>((std::int64_t{2} * I + 1) * N / (std::int64_t{2} * Nb));
}

}  // namespace

Square_Place Place_In_Square(Long Width, Long Height, Long Side) {
    Square_Place P{.Width = Width, .Height = Height};
    const double Full = Side;
    if (Width > Side || Height > Side) {
        const bool Wide = Width > Height;
        P.Width = Wide ? Side : Round_Lng(Full / Height * Width);
        P.Height = Wide ? Round_Lng(Full / Width * Height) : Side;
    }
    P.X = Round_Lng(Full / 2 - P.Width / 2.0);
    P.Y = Round_Lng(Full / 2 - P.Height / 2.0);
    return P;
}

Picture Picture_In_Square(Picture P, Long Side) {
    Check(P.Bits == 24, "a picture in a square has true colours");
    if (P.Width == Side && P.Height == Side) return P;
    Picture Out = Picture_Make(Side, Side, 24);
    std::fill(Out.Bytes.begin(), Out.Bytes.end(), Ground);
    const Square_Place At = Place_In_Square(P.Width, P.Height, Side);
    for (Long Y = 0; Y < At.Height; ++Y) {
        const std::uint8_t* From = P.Line(static_cast<Long>(Taken(Y, At.Height, P.Height)));
        std::uint8_t* To = Out.Bytes.data() + static_cast<std::size_t>(At.Y + Y) * Out.Stride +
                           static_cast<std::size_t>(At.X) * 3;
        for (Long X = 0; X < At.Width; ++X, To += 3)
            std::copy_n(From + Taken(X, At.Width, P.Width) * 3, 3, To);
    }
    return Out;
}
