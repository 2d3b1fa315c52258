// ui/canvas/surface.h - what the canvas is painted on, and the items that lie above it.
//
// Coordinates are canvas pixels, X right, Y down; a canvas pixel is a logical pixel of the
// screen. Colours are 0xRRGGBB.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "core/host.h"
#include "core/numbers.h"

struct Picture;

struct Box_Px {
    Long X = 0, Y = 0, W = 0, H = 0;
    bool operator==(const Box_Px&) const = default;
};

/// A part of the canvas whose edges may lie within pixels: pixel X reaches from X to X + 1.
struct Edges_Px {
    Double Left = 0.0, Top = 0.0, Right = 0.0, Bottom = 0.0;
    bool operator==(const Edges_Px&) const = default;
};

inline Edges_Px Edges_Of(const Box_Px& B) {
    return {.Left = static_cast<Double>(B.X),
            .Top = static_cast<Double>(B.Y),
            .Right = static_cast<Double>(B.X) + B.W,
            .Bottom = static_cast<Double>(B.Y) + B.H};
}

struct Line_Px {
    Long X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
    bool operator==(const Line_Px&) const = default;
};

enum class Line_Style { Solid, Dashed, Dotted };

struct Pen {
    Long Colour = 0;  // or Contrast_Colour
    Int Width = 1;
    Line_Style Style = Line_Style::Solid;
    bool operator==(const Pen&) const = default;
};

struct Size_Px {
    Long W = 0, H = 0;
    bool operator==(const Size_Px&) const = default;
};

struct Overlay_Items;
struct Overlay_Label;

class Surface {
public:
    virtual ~Surface() = default;
    virtual void Clear() = 0;
    /// Mixes all that was painted with what Clear paints: Percent of it stays.
    virtual void Fade(Int) {}
    /// Copies Source of P onto Dest, pixels repeated or left out, without blending. Copies that
    /// share an edge leave no gap.
    virtual void Stretch_Copy(const Picture& P, Box_Px Source, const Edges_Px& Dest) = 0;
    /// Both ends are painted. Lines may lie partly or wholly outside the canvas.
    virtual void Lines(std::span<const Line_Px> Segments, const Pen& With) = 0;
    void Line(Line_Px Segment, const Pen& With) { Lines({&Segment, 1}, With); }
    /// Shows what was painted.
    virtual void Refresh() = 0;
    virtual void Set_Cursor(Pointer_Shape Shape) = 0;
    /// An overlay item has moved, appeared or gone; nothing is painted anew but these.
    virtual void Overlay_Changed() = 0;
    /// The items that lie above it from now on, which must live longer; at first The_Overlay.
    virtual void Set_Overlay(const Overlay_Items&) {}
    /// The room that L takes with its present text.
    virtual Size_Px Label_Size(const Overlay_Label&) { return {100, 17}; }
};

/// Takes everything and shows nothing.
class Null_Surface final : public Surface {
public:
    void Clear() override {}
    void Stretch_Copy(const Picture&, Box_Px, const Edges_Px&) override {}
    void Lines(std::span<const Line_Px>, const Pen&) override {}
    void Refresh() override {}
    void Set_Cursor(Pointer_Shape) override {}
    void Overlay_Changed() override {}
};

/// The surface in use. There always is one: at first a Null_Surface.
Surface& The_Surface();

/// Makes S the surface for the life of this object, then puts the former one back.
class Surface_Scope {
public:
    explicit Surface_Scope(Surface& S);
    ~Surface_Scope();
    Surface_Scope(const Surface_Scope&) = delete;
    Surface_Scope& operator=(const Surface_Scope&) = delete;

private:
    Surface* Former_;
};

/// Takes lines one at a time and hands them to the surface in use many at once, in their order.
/// What it holds is handed over at the end of its life.
class Line_Batch {
public:
    Line_Batch() = default;
    ~Line_Batch() { Flush(); }
    Line_Batch(const Line_Batch&) = delete;
    Line_Batch& operator=(const Line_Batch&) = delete;

    void Add(Line_Px Segment, const Pen& With) {
        if (With != With_ || Held_.size() == Most) Flush();
        With_ = With;
        Held_.push_back(Segment);
    }

private:
    static constexpr std::size_t Most = 4096;
    void Flush();

    Pen With_;
    std::vector<Line_Px> Held_;
};

struct Overlay_Line {
    Line_Px At = {};
    Long Colour = 0xFF0000;
    bool Visible = false;
    Line_Style Style = Line_Style::Solid;
};

/// A circle round (X, Y), Diameter pixels across, outlined in Colour.
struct Overlay_Circle {
    Long X = 0, Y = 0;
    Long Diameter = 11;
    Long Colour = 0xFF0000;
    bool Visible = false;
};

struct Overlay_Label {
    Long X = 0, Y = 0;  // its top left
    std::string Text = {};
    bool Visible = false;
    Long Back_Colour = 0xFFFFC0;
};

/// Drawn above the surface, the later above the earlier, and moved without a redraw: rubber
/// bands of drawing, edges of the texture being dragged, marker of the selected point, altitude
/// under the mouse, cross of the aircraft.
struct Overlay_Items {
    Overlay_Line Ln1, Ln2;
    Overlay_Line LnHIma1{.Style = Line_Style::Dotted}, LnHIma2{.Style = Line_Style::Dotted};
    Overlay_Line LnVIma1{.Style = Line_Style::Dotted}, LnVIma2{.Style = Line_Style::Dotted};
    Overlay_Circle Cercle;
    Overlay_Label LPtGrid;
    Overlay_Line Croix1, Croix2;
};

inline Overlay_Items The_Overlay;
