// tex/r8.cpp - the three stages of a compressed R8, and its colours.
#include "tex/r8.h"

#include <algorithm>
#include <array>

#include "tex/pixels.h"

namespace {

constexpr std::uint32_t End_Code = 511;
constexpr std::size_t Working_Size = 130'000;  // of what the dictionary gives
constexpr std::size_t Longest_Kept = 7;        // a string of this length is not kept

struct Entry {
    std::array<Byte, Longest_Kept> Bytes{};
    std::size_t Length = 0;

    std::span<const Byte> Text() const { return std::span(Bytes).first(Length); }
};

// Codes of 9 bits, the highest bit first.
class Code_Reader {
public:
    explicit Code_Reader(std::span<const Byte> From) : From_(From) {}
    /// False when there are not 9 bits more.
    bool Next(std::uint32_t& Code) {
        const std::size_t At = Bit_ / 8;
        if (At + 1 >= From_.size()) return false;
        const std::uint32_t Two = std::uint32_t{From_[At]} << 8 | From_[At + 1];
        Code = Two >> (7 - Bit_ % 8) & 511;
        Bit_ += 9;
        return true;
    }

private:
    std::span<const Byte> From_;
    std::size_t Bit_ = 0;
};

// What a pair of codes stands for is kept for later codes to name.
class Dictionary {
public:
    Entry Of(std::uint32_t Code) const {
        const auto Low = static_cast<Byte>(Code);
        if (Code >= 256) return Entries_[Low];
        return {.Bytes = {Low}, .Length = 1};
    }
    /// False when the second code of a pair is none that may stand there.
    bool Keep(std::uint32_t First, std::uint32_t Second) {
        if (Second >= 256) return false;
        Entry E = Of(First);
        E.Bytes[E.Length++] = static_cast<Byte>(Second);
        Entries_[Next_] = E;
        if (E.Length < Longest_Kept) {
            Next_ = (Next_ + 1) % Entries_.size();
            return true;
        }
        Entries_[Next_].Length = 0;
        if (Next_ + 1 == Entries_.size()) {
            Next_ = 0;
            Entries_[0].Length = 0;
        }
        return true;
    }

private:
    std::array<Entry, 256> Entries_{};
    std::size_t Next_ = 0;
};

bool Expand_Codes(std::span<const Byte> File, std::vector<Byte>& Out) {
    Code_Reader Codes(File);
    Dictionary Known;
    std::uint32_t First = 0;
    for (bool Is_Second = false;; Is_Second = !Is_Second) {
        std::uint32_t Code = 0;
        if (!Codes.Next(Code)) return false;
        if (Code == End_Code) return true;
        const Entry E = Known.Of(Code);
        if (Out.size() + E.Length > Working_Size) return false;
        Out.insert(Out.end(), E.Text().begin(), E.Text().end());
        if (!Is_Second)
            First = Code;
        else if (!Known.Keep(First, Code))
            return false;
    }
}

// A byte from 128 on tells how many follow as they are; a smaller one repeats the next.
bool Expand_Runs(std::span<const Byte> In, std::vector<Byte>& Out) {
    for (std::size_t I = 0; I < In.size();) {
        const std::size_t Count = In[I++] & 127, Left = In.size() - I;
        const bool Is_Run = In[I - 1] < 128;
        if (Is_Run && Count == 0) {
            ++I;
            continue;
        }
        if (Left < (Is_Run ? 1 : Count) || Out.size() + Count > R8_Size) return false;
        if (Is_Run)
            Out.insert(Out.end(), Count, In[I]);
        else
            Out.insert(Out.end(), In.data() + I, In.data() + I + Count);
        I += Is_Run ? 1 : Count;
    }
    return Out.size() == R8_Size;
}

}  // namespace

bool R8_Expand(std::span<const Byte> File, std::vector<Byte>& Indices) {
    Indices.clear();
    std::vector<Byte> Middle;
    if (!Expand_Codes(File, Middle) || Middle.empty()) return false;
    return Expand_Runs(std::span(Middle).first(Middle.size() - 1), Indices);
}

void R8_To_Bmp(std::span<const Byte> Indices, const Palette& Pal, Picture& To) {
    const Byte* In = Indices.data();
    for (Long Row = 0; Row < R8_Side; ++Row) {
        Byte* Out = Stored_Row(To, Row);
        for (Long X = 0; X < R8_Side; ++X, Out += 3) {
            const Palette_Entry& P = Pal[*In++];
            Out[0] = P.Blue;
            Out[1] = P.Green;
            Out[2] = P.Red;
        }
    }
}
