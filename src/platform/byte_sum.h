// platform/byte_sum.h - a number that hardly any other bytes have, made while they come.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

class Byte_Sum {
public:
    void Add(std::string_view Bytes);
    /// Of all that was added, however it was parted.
    std::uint64_t Value() const;

private:
    // Four sums side by side, so that the processor does not wait for each.
    static constexpr std::size_t Block = 32;
    using Lanes = std::array<std::uint64_t, 4>;
    static void Add_Block(Lanes& To, const char* Bytes);

    Lanes Lane_{0x9E3779B97F4A7C15, 0xC2B2AE3D27D4EB4F, 0x165667B19E3779F9, 0x27D4EB2F165667C5};
    std::array<char, Block> Rest_{};  // the first Count_ % Block of them
    std::uint64_t Count_ = 0;
};

std::uint64_t Bytes_Sum(std::string_view Bytes);
