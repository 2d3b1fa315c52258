// tests/ui_support/recorded_surface.h - a surface that keeps what it was told.
#pragma once

#include <iosfwd>
#include <span>
#include <vector>

#include "ui/canvas/surface.h"

/// One operation; what does not belong to its kind is as it begins. Lines handed over together
/// are one operation each.
struct Surface_Op {
    enum class Kind { Clear, Copy, Line, Refresh, Cursor, Overlay };
    Kind What = Kind::Clear;
    const Picture* Of = nullptr;
    Box_Px Source = {};
    Edges_Px Dest = {};
    Line_Px At = {};
    Pen With = {};
    Pointer_Shape Shape = Pointer_Shape::Normal;

    bool operator==(const Surface_Op&) const = default;
};

Surface_Op Line_Op(Line_Px At, const Pen& With);
std::ostream& operator<<(std::ostream& Out, const Surface_Op& Op);
std::ostream& operator<<(std::ostream& Out, const Line_Px& L);

class Recorded_Surface final : public Surface {
public:
    std::vector<Surface_Op> Ops;

    void Clear() override;
    void Stretch_Copy(const Picture& P, Box_Px Source, const Edges_Px& Dest) override;
    void Lines(std::span<const Line_Px> Segments, const Pen& With) override;
    void Refresh() override;
    void Set_Cursor(Pointer_Shape Shape) override;
    void Overlay_Changed() override;

    /// The operations of one kind, in order.
    std::vector<Surface_Op> Of_Kind(Surface_Op::Kind What) const;
    /// The lines of one pen, in order.
    std::vector<Line_Px> Lines_With(const Pen& With) const;
};
