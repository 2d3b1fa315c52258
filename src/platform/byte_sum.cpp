// platform/byte_sum.cpp - sums of bytes, a block at a time.
#include "platform/byte_sum.h"

#include <algorithm>
#include <cstring>

namespace {

constexpr std::uint64_t Factor = 0xD6E8FEB86659FD93;

std::uint64_t Mixed(std::uint64_t Sum, std::uint64_t Word) {
    Sum = (Sum ^ Word) * Factor;
    return Sum ^ (Sum >> 32);
}

}  // namespace

void Byte_Sum::Add_Block(Lanes& To, const char* Bytes) {
    for (std::uint64_t& Sum : To) {
        std::uint64_t Word = 0;
        std::memcpy(&Word, Bytes, sizeof Word);
        Sum = Mixed(Sum, Word);
        Bytes += sizeof Word;
    }
}

void Byte_Sum::Add(std::string_view Bytes) {
    const auto Kept = static_cast<std::size_t>(Count_ % Block);
    Count_ += Bytes.size();
    if (Kept != 0) {
        const std::size_t More = std::min(Block - Kept, Bytes.size());
        std::copy_n(Bytes.data(), More, Rest_.data() + Kept);
        Bytes.remove_prefix(More);
        if (Kept + More < Block) return;
        Add_Block(Lane_, Rest_.data());
    }
    while (Bytes.size() >= Block) {
        Add_Block(Lane_, Bytes.data());
        Bytes.remove_prefix(Block);
    }
    std::copy_n(Bytes.data(), Bytes.size(), Rest_.data());
}

std::uint64_t Byte_Sum::Value() const {
    Lanes All = Lane_;
    std::array<char, Block> Last{};
    std::copy_n(Rest_.data(), Count_ % Block, Last.data());
    Add_Block(All, Last.data());
    std::uint64_t Sum = Count_;
    for (const std::uint64_t Lane : All) Sum = Mixed(Sum, Lane);
    return Sum;
}

std::uint64_t Bytes_Sum(std::string_view Bytes) {
    Byte_Sum Sum;
    Sum.Add(Bytes);
    return Sum.Value();
}
