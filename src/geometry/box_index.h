// geometry/box_index.h - a fixed set of boxes that can be asked which of them meet a given one.
#pragma once

#include <span>
#include <vector>

#include "geometry/box.h"

/// A packed tree: the boxes in strips from west to east, each strip from north to south, eight
/// to a node.
class Box_Index {
public:
    explicit Box_Index(std::span<const Box_Pix> Boxes);

    /// Calls F with the place, from 0, of each box that meets Q, in no order that means anything.
    template <typename F>
    void Each_Meeting(const Box_Pix& Q, F&& Visit) const {
        if (!Place_.empty()) Descend(Level_.size() - 1, 0, Q, Visit);
    }

private:
    static constexpr std::size_t Fan = 8;

    template <typename F>
    void Descend(std::size_t Lv, std::size_t K, const Box_Pix& Q, F& Visit) const {
        if (!Level_[Lv][K].Meets(Q)) return;
        if (Lv == 0) {
            Visit(Place_[K]);
            return;
        }
        const std::size_t End = std::min(Fan * (K + 1), Level_[Lv - 1].size());
        for (std::size_t Child = Fan * K; Child < End; ++Child) Descend(Lv - 1, Child, Q, Visit);
    }

    std::vector<Long> Place_;                  // of the boxes in packed order
    std::vector<std::vector<Box_Pix>> Level_;  // the boxes themselves, then one box per eight
};
