// geometry/place_set.h - a set of places 0 to N - 1 that knows the next member behind a place.
#pragma once

#include <bit>
#include <cstdint>
#include <vector>

#include "core/numbers.h"

/// Bits in words of 64, and above them bits that say which words are not empty.
class Place_Set {
public:
    /// Empties the set and gives it room for N places.
    void Reset(Long N) {
        Level_.resize(1);
        std::size_t Words = Words_For(static_cast<std::size_t>(N));
        Level_[0].assign(Words, 0);
        while (Words > 1) {
            Words = Words_For(Words);
            Level_.emplace_back(Words, 0);
        }
    }

    void Add(Long Place) {
        auto At = static_cast<std::size_t>(Place);
        for (auto& Words : Level_) {
            Words[At / 64] |= Bit(At);
            At /= 64;
        }
    }

    void Remove(Long Place) {
        auto At = static_cast<std::size_t>(Place);
        for (auto& Words : Level_) {
            Words[At / 64] &= ~Bit(At);
            if (Words[At / 64] != 0) return;
            At /= 64;
        }
    }

    bool Has(Long Place) const {
        const auto At = static_cast<std::size_t>(Place);
        return (Level_[0][At / 64] & Bit(At)) != 0;
    }

    /// The first member from Place on, going on at 0 behind the last; -1 when there is none.
    Long Next_Round(Long Place) const {
        const Long Found = Next(static_cast<std::size_t>(Place));
        return Found >= 0 ? Found : Next(0);
    }

private:
    static std::size_t Words_For(std::size_t Bits) { return Bits / 64 + 1; }
    static std::uint64_t Bit(std::size_t At) { return std::uint64_t{1} << (At % 64); }

    Long Next(std::size_t At) const {
        for (std::size_t Lv = 0; Lv < Level_.size(); ++Lv) {
            const std::size_t Word = At / 64;
            if (Word >= Level_[Lv].size()) return -1;
            const std::uint64_t Rest = Level_[Lv][Word] & (~std::uint64_t{0} << (At % 64));
            if (Rest != 0) return Descend(Lv, Word * 64 + Lowest(Rest));
            At = Word + 1;
        }
        return -1;
    }

    Long Descend(std::size_t Lv, std::size_t At) const {
        for (; Lv > 0; --Lv) At = At * 64 + Lowest(Level_[Lv - 1][At]);
        return static_cast<Long>(At);
    }

    static std::size_t Lowest(std::uint64_t Word) {
        return static_cast<std::size_t>(std::countr_zero(Word));
    }

    std::vector<std::vector<std::uint64_t>> Level_;
};
