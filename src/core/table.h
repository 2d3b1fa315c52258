// core/table.h - the 1-based table that every list of the program is.
//
// A table has a count Nb and a capacity Max. The count is written by the table alone; the
// capacity grows by the table's own step when a row is added to a full table. Rows live in one
// block that grows geometrically behind the capacity, so adding n rows costs n.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>
#include <vector>

#include "core/check.h"
#include "core/numbers.h"

#ifdef NDEBUG
inline constexpr bool Checks_Table_Index = false;
#else
inline constexpr bool Checks_Table_Index = true;
#endif

/// Removes the rows At of Rows, which ascend from 1.
template <typename V>
void Rows_Erase(std::vector<V>& Rows, std::span<const Long> At) {
    if (At.empty()) return;
    auto Kept = static_cast<std::size_t>(At[0]) - 1;
    for (std::size_t I = Kept, Next = 0; I < Rows.size(); ++I) {
        if (Next < At.size() && I + 1 == static_cast<std::size_t>(At[Next]))
            ++Next;
        else
            Rows[Kept++] = std::move(Rows[I]);
    }
    Rows.erase(Rows.begin() + static_cast<std::ptrdiff_t>(Kept), Rows.end());
}

/// Puts rows into Rows so that they stand at At, which ascends from 1 and leaves no gap; Row(K)
/// makes the one of At[K].
template <typename V, typename F>
void Rows_Insert(std::vector<V>& Rows, std::span<const Long> At, F&& Row) {
    std::size_t From = Rows.size();
    Rows.resize(From + At.size());
    std::size_t To = Rows.size();
    for (std::size_t K = At.size(); K > 0;) {
        if (static_cast<std::size_t>(At[K - 1]) == To)
            Rows[--To] = Row(--K);
        else
            Rows[--To] = std::move(Rows[--From]);
    }
}

template <typename T>
class Table {
public:
    constexpr Table(Long First_Capacity, Long Step)
        : Max_(First_Capacity), First_Capacity_(First_Capacity), Step_(Step) {}

    /// Number of rows; they are 1 to Nb.
    constexpr const Long& Nb() const { return Nb_; }
    /// Capacity. It bounds nothing: a full table grows.
    constexpr const Long& Max() const { return Max_; }

    /// Row I, 1 to Nb. Checked, except in release builds.
    T& operator[](Long I) {
        if constexpr (Checks_Table_Index) Check_Index(I);
        return Row_[static_cast<std::size_t>(I) - 1];
    }
    const T& operator[](Long I) const {
        if constexpr (Checks_Table_Index) Check_Index(I);
        return Row_[static_cast<std::size_t>(I) - 1];
    }

    /// Adds a row and returns its index.
    Long Append(T Row) {
        Check(Nb_ < std::numeric_limits<Long>::max(), "a table holds at most 2147483647 rows");
        if (Nb_ == Max_) Grow(1);
        Row_.push_back(std::move(Row));
        return ++Nb_;
    }

    /// Adds Count rows as T begins and returns them, to be written before the table grows again.
    std::span<T> Append_Rows(std::size_t Count) {
        constexpr auto Most = static_cast<std::size_t>(std::numeric_limits<Long>::max());
        const auto Before = static_cast<std::size_t>(Nb_);
        Check(Count <= Most - Before, "a table holds at most 2147483647 rows");
        Row_.resize(Before + Count);
        Nb_ = static_cast<Long>(Before + Count);
        if (Nb_ > Max_) Grow((std::int64_t{Nb_} - Max_ + Step_ - 1) / Step_);
        return std::span(Row_).subspan(Before);
    }

    /// Moves the rows behind I down by one. The capacity stays.
    void Remove(Long I) {
        Check_Index(I);
        Row_.erase(Row_.begin() + (I - 1));
        --Nb_;
    }

    /// Removes the rows At, which ascend.
    void Remove_Rows(std::span<const Long> At) {
        if (!At.empty()) Check_Index(At.front()), Check_Index(At.back());
        Rows_Erase(Row_, At);
        Nb_ = static_cast<Long>(Row_.size());
    }

    /// Puts rows in so that they stand at At, which ascends; Row(K) makes the one of At[K].
    template <typename F>
    void Insert_Rows(std::span<const Long> At, F&& Row) {
        Rows_Insert(Row_, At, std::forward<F>(Row));
        Nb_ = static_cast<Long>(Row_.size());
        if (Nb_ > Max_) Grow((std::int64_t{Nb_} - Max_ + Step_ - 1) / Step_);
    }

    /// Another capacity; the rows stay.
    void Set_Capacity(Long Max) { Max_ = Max; }

    /// Drops the rows behind the first Nb.
    void Truncate(Long Nb) {
        Check(0 <= Nb && Nb <= Nb_, "a table is cut to at most its rows");
        Row_.erase(Row_.begin() + Nb, Row_.end());
        Nb_ = Nb;
    }

    /// Drops all rows and sets the capacity, which takes no memory.
    void Dimension(Long Max) {
        Check(Max >= 0, "a capacity is not negative");
        Row_.clear();
        Nb_ = 0;
        Max_ = Max;
    }

    /// Takes the memory for Nb rows at once. A hint: give it only a number that the rows at
    /// hand vouch for.
    void Reserve(Long Nb) { Row_.reserve(static_cast<std::size_t>(Nb)); }

    /// Back to the state of a new table; the memory is given back.
    void Reset() {
        std::vector<T>().swap(Row_);
        Nb_ = 0;
        Max_ = First_Capacity_;
    }

    /// The rows in order, for loops that need no index.
    std::span<T> Rows() { return Row_; }
    std::span<const T> Rows() const { return Row_; }

private:
    void Check_Index(Long I) const { Check(1 <= I && I <= Nb_, "a row of the table"); }
    void Grow(std::int64_t Steps) {
        Max_ = static_cast<Long>(
            std::min<std::int64_t>(Max_ + Steps * Step_, std::numeric_limits<Long>::max()));
    }

    std::vector<T> Row_;
    Long Nb_ = 0;
    Long Max_;
    Long First_Capacity_;
    Long Step_;
};
