// geometry/box_index.cpp - packing.
#include "geometry/box_index.h"

#include <cmath>
#include <numeric>

namespace {

// A box without limits has no middle; any place will do for it.
Double Sortable(Double V) {
    return std::isnan(V) ? 0.0 : V;
}

}  // namespace

Box_Index::Box_Index(std::span<const Box_Pix> Boxes) : Place_(Boxes.size()) {
    if (Boxes.empty()) return;
    std::iota(Place_.begin(), Place_.end(), 0);
    const auto Mid_X = [&](Long I) {
        const Box_Pix& B = Boxes[static_cast<std::size_t>(I)];
        return Sortable(B.LX + B.HX);
    };
    const auto Mid_Y = [&](Long I) {
        const Box_Pix& B = Boxes[static_cast<std::size_t>(I)];
        return Sortable(B.LY + B.HY);
    };
    std::sort(Place_.begin(), Place_.end(), [&](Long I, Long J) { return Mid_X(I) < Mid_X(J); });
    const std::size_t N = Place_.size();
    const auto Strips =
        static_cast<std::size_t>(std::ceil(std::sqrt(static_cast<Double>(N) / Fan + 1.0)));
    const std::size_t Strip = ((N + Strips - 1) / Strips + Fan - 1) / Fan * Fan;
    for (std::size_t First = 0; First < N; First += Strip)
        std::sort(Place_.begin() + static_cast<std::ptrdiff_t>(First),
                  Place_.begin() + static_cast<std::ptrdiff_t>(std::min(N, First + Strip)),
                  [&](Long I, Long J) { return Mid_Y(I) < Mid_Y(J); });
    Level_.emplace_back();
    for (const Long I : Place_) Level_[0].push_back(Boxes[static_cast<std::size_t>(I)]);
    while (Level_.back().size() > 1) {
        std::vector<Box_Pix> Up((Level_.back().size() + Fan - 1) / Fan);
        for (std::size_t K = 0; K < Level_.back().size(); ++K) Up[K / Fan].Add(Level_.back()[K]);
        Level_.push_back(std::move(Up));
    }
}
