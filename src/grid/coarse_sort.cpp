// grid/coarse_sort.cpp - a pass for each digit.
#include "grid/coarse_sort.h"

#include <array>

namespace {

template <int Bits, int Passes>
void Sort_By_Digits(std::vector<Coarse_Entry>& List) {
    constexpr std::size_t Buckets = 1U << Bits;
    std::array<std::array<std::size_t, Buckets + 1>, Passes> Start{};
    for (const Coarse_Entry& E : List)
        for (int P = 0; P < Passes; ++P)
            ++Start[static_cast<std::size_t>(P)][(E.Key >> (P * Bits) & (Buckets - 1)) + 1];
    std::vector<Coarse_Entry> Other(List.size());
    for (int P = 0; P < Passes; ++P) {
        auto& At = Start[static_cast<std::size_t>(P)];
        for (std::size_t B = 0; B < Buckets; ++B) At[B + 1] += At[B];
        for (const Coarse_Entry& E : List) Other[At[E.Key >> (P * Bits) & (Buckets - 1)]++] = E;
        List.swap(Other);
    }
}

}  // namespace

void Sort_By_Key(std::vector<Coarse_Entry>& List) {
    constexpr std::size_t Few = 64, Many = 4096;
    const auto By_Key = [](const Coarse_Entry& A, const Coarse_Entry& B) { return A.Key < B.Key; };
    if (std::is_sorted(List.begin(), List.end(), By_Key)) return;
    if (List.size() < Few)
        std::stable_sort(List.begin(), List.end(), By_Key);
    else if (List.size() < Many)
        Sort_By_Digits<8, 4>(List);
    else
        Sort_By_Digits<11, 3>(List);
}
