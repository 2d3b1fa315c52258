// geometry/coarse_sort.cpp - a pass for each digit.
#include "geometry/coarse_sort.h"

#include <array>
#include <bit>

namespace {

constexpr int Widest_Digit = 11;

// Digit is Width bits of Key - Low from bit Shift on.
struct Digit {
    std::uint32_t Low;
    int Shift, Width;

    std::size_t Of(const Coarse_Entry& E) const {
        return (E.Key - Low) >> Shift & ((std::uint32_t{1} << Width) - 1);
    }
};

void Sort_By_Digit(const std::vector<Coarse_Entry>& List, std::vector<Coarse_Entry>& To, Digit D) {
    std::array<std::uint32_t, (1U << Widest_Digit) + 1> At;
    const std::size_t Nb_Bucket = std::size_t{1} << D.Width;
    std::fill_n(At.begin(), Nb_Bucket + 1, 0U);
    for (const Coarse_Entry& E : List) ++At[D.Of(E) + 1];
    for (std::size_t B = 0; B < Nb_Bucket; ++B) At[B + 1] += At[B];
    for (const Coarse_Entry& E : List) To[At[D.Of(E)]++] = E;
}

}  // namespace

void Sort_By_Key(std::vector<Coarse_Entry>& List) {
    constexpr std::size_t Few = 64, Many = 4096;
    const auto By_Key = [](const Coarse_Entry& A, const Coarse_Entry& B) { return A.Key < B.Key; };
    if (std::is_sorted(List.begin(), List.end(), By_Key)) return;
    if (List.size() < Few) {
        std::stable_sort(List.begin(), List.end(), By_Key);
        return;
    }
    // Keys of one list lie close together, so that few digits do.
    const auto [Low, High] = std::minmax_element(List.begin(), List.end(), By_Key);
    const std::uint32_t First = Low->Key;
    const int Bits = std::bit_width(High->Key - First);
    const int Widest = List.size() < Many ? 8 : Widest_Digit;
    const int Passes = (Bits + Widest - 1) / Widest;
    const int Width = (Bits + Passes - 1) / Passes;
    std::vector<Coarse_Entry> Other(List.size());
    for (int P = 0; P < Passes; ++P) {
        Sort_By_Digit(List, Other, {First, P * Width, Width});
        List.swap(Other);
    }
}
