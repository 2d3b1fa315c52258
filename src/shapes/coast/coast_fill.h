// shapes/coast/coast_fill.h - whether the pieces in a Cell fill it.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "shapes/poly/work_lists.h"

/// Whether the points are the four corners of a Cell, clockwise.
bool Fills_Cell(std::span<const CPt> Points);

/// The same for the pieces of one Cell together. Keeps its memory from one Cell to the next.
class Fill_Test {
public:
    /// Whether the edges that no two of the pieces share run round the Cell. Polys is a stretch
    /// of a list whose points are in Points.
    bool Fill_Cell(std::span<const CPoly> Polys, const Table<CPt>& Points);

private:
    // A place of the Cell as one number; from the north-west to the south-east corner.
    using Place = std::uint16_t;

    enum class State : std::uint8_t { Free, Used, Left_Out };

    struct Edge {
        Place From, To;
        bool Of_First_Piece;
        State Is = State::Free;
    };

    void Read_Edges(std::span<const CPoly> Polys, const Table<CPt>& Points);
    void Match_Edges();
    std::size_t Start_Of_Chain() const;
    void List_Free_Edges();
    std::size_t Next_Free(Place From, std::size_t Behind);
    std::size_t Not_Taken(std::size_t At);
    void Chain_From(std::size_t At);
    bool Chain_Runs_Round_Cell();

    std::vector<Edge> Edge_;            // piece by piece
    std::vector<std::uint64_t> Order_;  // a key above, a place in Edge_ below
    std::vector<std::size_t> Skip_;     // of Order_: itself, or a way to one not taken
    std::vector<Place> Chain_, Turns_;
};
