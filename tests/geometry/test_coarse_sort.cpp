// tests/grid/test_coarse_sort.cpp - the sort by digits against the library's.
#include "geometry/coarse_sort.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

// Sizes on both sides of each change of method; spans of keys from one value to all of them.
TEST(Coarse_Sort, IsStableForAnySizeAndSpan) {
    std::mt19937 Random(7);
    for (const std::size_t Size : {0U, 1U, 63U, 64U, 500U, 4095U, 4096U, 20000U})
        for (const std::uint32_t Span : {0U, 1U, 255U, 256U, 2047U, 70000U, 0xFFFFFFFFU}) {
            const std::uint32_t Low = Span == 0xFFFFFFFFU ? 0 : 0xFFFFFFFFU - Span;
            std::vector<Coarse_Entry> List;
            for (std::size_t I = 0; I < Size; ++I)
                List.push_back({Low + std::uniform_int_distribution<std::uint32_t>(0, Span)(Random),
                                static_cast<Long>(I)});
            std::vector<Coarse_Entry> Plain = List;
            std::stable_sort(Plain.begin(), Plain.end(),
                             [](const auto& A, const auto& B) { return A.Key < B.Key; });
            Sort_By_Key(List);
            for (std::size_t I = 0; I < Size; ++I)
                ASSERT_TRUE(List[I].Key == Plain[I].Key && List[I].Place == Plain[I].Place)
                    << Size << " keys over " << Span << ", place " << I;
        }
}
