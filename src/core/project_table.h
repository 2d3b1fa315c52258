// core/project_table.h - a table of the project: it is read as any other, and knows which of its
// rows were written to.
//
// Rows are handed out to be read. Whoever writes to one asks for it by Edit, which marks the
// block of rows that it stands in; so a comparison with what the table was needs to look at
// marked blocks alone. Marks, and rows that have gone, are told by the places that the rows had
// when Follow was called.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "core/table.h"

template <typename T>
class Project_Table {
public:
    static constexpr Long Block = 64;  // rows

    constexpr Project_Table(Long First_Capacity, Long Step) : Tab_(First_Capacity, Step) {}

    constexpr const Long& Nb() const { return Tab_.Nb(); }
    constexpr const Long& Max() const { return Tab_.Max(); }
    const T& operator[](Long I) const { return Tab_[I]; }
    std::span<const T> Rows() const { return Tab_.Rows(); }

    /// Row I, to be written to before the next act of the user.
    T& Edit(Long I) {
        Mark(I);
        return Tab_[I];
    }
    /// All rows, to be written to.
    std::span<T> Edit_Rows() {
        for (Long I = 1; I <= Kept_; ++I) Mark(I);
        return Tab_.Rows();
    }

    Long Append(T Row) { return Tab_.Append(std::move(Row)); }
    void Remove(Long I) {
        const Long One[] = {I};
        Remove_Rows(One);
    }
    /// Removes the rows At, which ascend; those behind each move down.
    void Remove_Rows(std::span<const Long> At) {
        Note_Gone(At);
        Tab_.Remove_Rows(At);
    }
    /// Puts rows in so that they stand at At, which ascends; Row(K) makes the one of At[K].
    template <typename F>
    void Insert_Rows(std::span<const Long> At, F&& Row) {
        Tab_.Insert_Rows(At, std::forward<F>(Row));
    }
    void Truncate(Long Nb) {
        Note_Gone_Behind(Nb);
        Tab_.Truncate(Nb);
    }
    void Dimension(Long Max) {
        Note_Gone_Behind(0);
        Tab_.Dimension(Max);
    }
    void Set_Capacity(Long Max) { Tab_.Set_Capacity(Max); }
    void Reserve(Long Nb) { Tab_.Reserve(Nb); }
    void Reset() {
        Note_Gone_Behind(0);
        Tab_.Reset();
    }

    /// From now on, or no longer, notes what is written to.
    void Follow(bool On = true) {
        for (const Long B : Blocks_) Is_Marked_[static_cast<std::size_t>(B)] = false;
        Blocks_.clear();
        Gone_.clear();
        Kept_ = Followed_ = On ? Nb() : 0;
        Is_Marked_.resize(static_cast<std::size_t>((Kept_ + Block - 1) / Block));
    }
    bool Is_Untouched() const { return Blocks_.empty() && Gone_.empty() && Kept_ == Nb(); }
    /// The blocks with a row that was written to, from 0, in no order.
    const std::vector<Long>& Marked_Blocks() const { return Blocks_; }
    /// The rows that have gone, ascending.
    const std::vector<Long>& Gone() const { return Gone_; }
    /// How many of the first rows were there already; those behind them have come.
    Long Kept() const { return Kept_; }

private:
    // The place that row I, which was there already, had.
    Long Place_Before(Long I) const {
        std::size_t Low = 0, High = Gone_.size();
        while (Low < High) {
            const std::size_t Middle = (Low + High) / 2;
            if (Gone_[Middle] - static_cast<Long>(Middle) <= I)
                Low = Middle + 1;
            else
                High = Middle;
        }
        return I + static_cast<Long>(Low);
    }

    void Mark(Long I) {
        if (I > Kept_) return;
        const Long B = (Place_Before(I) - 1) / Block;
        if (Is_Marked_[static_cast<std::size_t>(B)]) return;
        Is_Marked_[static_cast<std::size_t>(B)] = true;
        Blocks_.push_back(B);
    }

    void Note_Gone(std::span<const Long> At) {
        const std::size_t Before = Gone_.size();
        std::vector<Long> Places;
        for (const Long I : At)
            if (I <= Kept_) Places.push_back(Place_Before(I));
        Gone_.insert(Gone_.end(), Places.begin(), Places.end());
        std::inplace_merge(Gone_.begin(), Gone_.begin() + static_cast<std::ptrdiff_t>(Before),
                           Gone_.end());
        Kept_ -= static_cast<Long>(Places.size());
    }

    void Note_Gone_Behind(Long Nb) {
        if (Nb >= Kept_) return;
        const Long First = Place_Before(Nb + 1);
        Gone_.erase(std::lower_bound(Gone_.begin(), Gone_.end(), First), Gone_.end());
        for (Long I = First; I <= Followed_; ++I) Gone_.push_back(I);
        Kept_ = Nb;
    }

    Table<T> Tab_;
    std::vector<bool> Is_Marked_;  // by block
    std::vector<Long> Blocks_;     // those that are
    std::vector<Long> Gone_;
    Long Followed_ = 0;  // rows when Follow was called
    Long Kept_ = 0;      // of them, those that are still there
};
