// tests/ui_support/recorded_surface.cpp - operations as records, and records as text.
#include "ui_support/recorded_surface.h"

#include <algorithm>
#include <iterator>
#include <ostream>

Surface_Op Line_Op(Line_Px At, const Pen& With) {
    return {.What = Surface_Op::Kind::Line, .At = At, .With = With};
}

std::ostream& operator<<(std::ostream& Out, const Line_Px& L) {
    return Out << "(" << L.X1 << "," << L.Y1 << ")-(" << L.X2 << "," << L.Y2 << ")";
}

std::ostream& operator<<(std::ostream& Out, const Surface_Op& Op) {
    const auto Box = [&Out](const Box_Px& B) {
        Out << " " << B.X << "," << B.Y << " " << B.W << "x" << B.H;
    };
    switch (Op.What) {
        case Surface_Op::Kind::Clear:
            return Out << "clear";
        case Surface_Op::Kind::Copy:
            Out << "copy";
            Box(Op.Source);
            return Out << " to " << Op.Dest.Left << "," << Op.Dest.Top << " " << Op.Dest.Right
                       << "," << Op.Dest.Bottom;
        case Surface_Op::Kind::Line:
            return Out << "line " << Op.At << " " << std::hex << Op.With.Colour << std::dec
                       << (Op.With.Style == Line_Style::Dotted ? " dotted " : " solid ")
                       << Op.With.Width;
        case Surface_Op::Kind::Refresh:
            return Out << "refresh";
        case Surface_Op::Kind::Cursor:
            return Out << "cursor " << static_cast<int>(Op.Shape);
        case Surface_Op::Kind::Overlay:
            return Out << "overlay";
    }
    return Out;
}

void Recorded_Surface::Clear() {
    Ops.push_back({.What = Surface_Op::Kind::Clear});
}

void Recorded_Surface::Stretch_Copy(const Picture& P, Box_Px Source, const Edges_Px& Dest) {
    Ops.push_back({.What = Surface_Op::Kind::Copy, .Of = &P, .Source = Source, .Dest = Dest});
}

void Recorded_Surface::Lines(std::span<const Line_Px> Segments, const Pen& With) {
    for (const Line_Px& L : Segments) Ops.push_back(Line_Op(L, With));
}

void Recorded_Surface::Refresh() {
    Ops.push_back({.What = Surface_Op::Kind::Refresh});
}

void Recorded_Surface::Set_Cursor(Pointer_Shape Shape) {
    Ops.push_back({.What = Surface_Op::Kind::Cursor, .Shape = Shape});
}

void Recorded_Surface::Overlay_Changed() {
    Ops.push_back({.What = Surface_Op::Kind::Overlay});
}

std::vector<Surface_Op> Recorded_Surface::Of_Kind(Surface_Op::Kind What) const {
    std::vector<Surface_Op> Made;
    std::ranges::copy_if(Ops, std::back_inserter(Made),
                         [What](const Surface_Op& Op) { return Op.What == What; });
    return Made;
}

std::vector<Line_Px> Recorded_Surface::Lines_With(const Pen& With) const {
    std::vector<Line_Px> Made;
    for (const Surface_Op& Op : Ops)
        if (Op.What == Surface_Op::Kind::Line && Op.With == With) Made.push_back(Op.At);
    return Made;
}
