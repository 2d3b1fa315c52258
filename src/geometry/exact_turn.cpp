// geometry/exact_turn.cpp - a sum of products as a list of Doubles that loses nothing.
//
// After Shewchuk, "Adaptive Precision Floating-Point Arithmetic and Fast Robust Geometric
// Predicates" (1997): a quick value with an error bound first, the exact sum only in doubt.
#include "geometry/exact_turn.h"

#include <array>
#include <cmath>

namespace {

// Largest relative error of the quick value: (3 + 16 e) e with e = 2^-53.
constexpr Double Quick_Error = 3.3306690738754716e-16;

// A sum kept as parts of rising size that do not overlap, so its sign is that of the last part.
class Exact_Sum {
public:
    void Add(Double X) {
        int Kept = 0;
        for (int I = 0; I < Nb; ++I) {
            const Double Sum = X + Part[I];
            const Double Virtual = Sum - X;
            const Double Error = (X - (Sum - Virtual)) + (Part[I] - Virtual);
            if (Error != 0.0) Part[Kept++] = Error;
            X = Sum;
        }
        if (X != 0.0) Part[Kept++] = X;
        Nb = Kept;
    }
    void Add_Product(Double A, Double B) {
        const Double Product = A * B;
        Add(std::fma(A, B, -Product));
        Add(Product);
    }
    int Sign() const { return Nb == 0 ? 0 : (Part[Nb - 1] > 0.0) - (Part[Nb - 1] < 0.0); }

private:
    std::array<Double, 12> Part{};  // two for each of the six products
    int Nb = 0;
};

}  // namespace

int Exact_Turn(Pix P1, Pix P2, Pix P3) {
    const Double Left = (P2.X - P1.X) * (P3.Y - P1.Y);
    const Double Right = (P3.X - P1.X) * (P2.Y - P1.Y);
    const Double Quick = Left - Right;
    const Double Bound = Quick_Error * (std::abs(Left) + std::abs(Right));
    if (Quick > Bound) return 1;
    if (Quick < -Bound) return -1;
    if (Bound == 0.0) return 0;
    Exact_Sum Sum;
    Sum.Add_Product(P2.X, P3.Y);
    Sum.Add_Product(-P2.X, P1.Y);
    Sum.Add_Product(-P1.X, P3.Y);
    Sum.Add_Product(-P3.X, P2.Y);
    Sum.Add_Product(P3.X, P1.Y);
    Sum.Add_Product(P1.X, P2.Y);
    return Sum.Sign();
}
