// shapes/poly/split_outline.h - one clockwise outline that runs are taken off.
//
// Points keep their places, from 0; those that are gone leave the links round the outline. The
// turn made at each point is known at all times, and so is which points can not start a run as
// long as nothing near them changes.
#pragma once

#include <span>
#include <vector>

#include "geometry/edge_boxes.h"
#include "geometry/place_set.h"
#include "shapes/poly/work_lists.h"

class Split_Outline {
public:
    /// Begins with new points, which must stay where they are. First is place 0.
    void Load(std::span<const Pix> Points);

    Long Nb() const { return Nb_; }
    Long First() const { return First_; }
    Pix At(Long V) const { return Point_[Ix(V)]; }
    Long Next(Long V) const { return Next_[Ix(V)]; }
    Long Prev(Long V) const { return Prev_[Ix(V)]; }

    /// Whether no point is reflex, that is turns left.
    bool Is_Convex() const { return Nb_Reflex_ == 0; }
    bool Is_Reflex(Long V) const { return Reflex_.Has(V); }

    /// The point at which the next run starts to bend: the first behind a reflex point, looking
    /// from First on, that is not reflex and whose neighbours can be joined by a line that
    /// crosses no edge. -1 when there is no such point at all.
    Long Find_Start();

    /// Whether the line from A forward to B crosses an edge outside the run between them. Edges
    /// with an end at A or B do not count.
    bool Diag_Crosses(Long A, Long B) { return Crossed_Edge(A, B) >= 0; }

    /// Takes the points between A and B off the outline, which then begins at A. None of them may
    /// be reflex.
    void Cut(Long A, Long B);

private:
    static std::size_t Ix(Long V) { return static_cast<std::size_t>(V); }
    Long Crossed_Edge(Long A, Long B);
    void Renew(Long V);
    void Take_Out(Long V);
    void Block(Long V, Long E);
    void Unblock(Long V);
    void Free_Blocked_By(Long E);

    static constexpr Long None = -1;

    std::span<const Pix> Point_;
    std::vector<Long> Next_, Prev_;
    Long First_ = 0;
    Long Nb_ = 0;
    Long Nb_Reflex_ = 0;
    Double Size_ = 1.0;  // of the largest coordinate
    Edge_Boxes Boxes_;   // edge e begins at point e

    Place_Set Reflex_;
    Place_Set Open_;  // not reflex and not known to be blocked

    // A blocked point remembers the edge that stands in its way, and each edge the points that
    // it blocks: a chain of links. Empty until a point is blocked.
    std::vector<Long> Blocker_, First_Blocked_, Next_Blocked_, Prev_Blocked_;
};
