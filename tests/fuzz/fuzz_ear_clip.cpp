// fuzz_ear_clip.cpp - any outline on a small raster comes apart in clockwise triangles.
#include <cstddef>
#include <cstdint>

#include "core/check.h"
#include "geometry/ear_clip.h"
#include "geometry/exact_turn.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* Data, std::size_t Size) {
    std::vector<Pix> Outline;
    for (std::size_t I = 0; I + 1 < Size; I += 2)
        Outline.push_back({Data[I] / 4.0, Data[I + 1] / 4.0});
    const std::vector<Ear> Ears = Ear_Clip(Outline);
    Check(Ears.empty() || Ears.size() <= Outline.size() - 2, "no more ears than points");
    for (const auto& [A, B, C] : Ears)
        Check(Exact_Turn(Outline[A], Outline[B], Outline[C]) > 0, "ears are clockwise");
    return 0;
}
