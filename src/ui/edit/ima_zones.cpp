// ui/edit/ima_zones.cpp - where on a texture's rectangle the mouse is, and what a drag there does.
#include "ui/edit/ima_zones.h"

#include <cmath>

namespace {

constexpr Double Reach = 3.0;  // canvas pixels

bool Near(Double A, Double B) {
    return std::fabs(A - B) <= Reach;
}

// Which edges a zone moves, and how its two steps are made equal in size: not at all, with the
// same sign, or with the opposite one.
struct Zone_Row {
    Ima_Zones Zone;
    bool Left, Top, Right, Bottom;
    int Equal;
};

constexpr Zone_Row Zone_Rows[] = {
    {Ima_Zones::II, true, true, true, true, 0},    {Ima_Zones::HG, true, true, false, false, 1},
    {Ima_Zones::BD, false, false, true, true, 1},  {Ima_Zones::HD, false, true, true, false, -1},
    {Ima_Zones::BG, true, false, false, true, -1}, {Ima_Zones::GG, true, false, false, false, 0},
    {Ima_Zones::DD, false, false, true, false, 0}, {Ima_Zones::HH, false, true, false, false, 0},
    {Ima_Zones::BB, false, false, false, true, 0}};

}  // namespace

Ima_Hit Ima_Hit_Zone(Pic_Px At, const Rect_Pix& R) {
    using enum Ima_Zones;
    const Double X = At.X, Y = At.Y;
    if (X < R.Left - Reach || X > R.Right + Reach || Y < R.Top - Reach || Y > R.Bottom + Reach)
        return {};
    if (X > R.Left + Reach && X < R.Right - Reach && Y > R.Top + Reach && Y < R.Bottom - Reach)
        return {II, Pointer_Shape::Move};
    const bool Top = Near(Y, R.Top), Bottom = Near(Y, R.Bottom);
    if (Near(X, R.Left)) {
        if (Top) return {HG, Pointer_Shape::NW_SE};
        if (Bottom) return {BG, Pointer_Shape::NE_SW};
        return {GG, Pointer_Shape::Horizontal};
    }
    if (Near(X, R.Right)) {
        if (Top) return {HD, Pointer_Shape::NE_SW};
        if (Bottom) return {BD, Pointer_Shape::NW_SE};
        return {DD, Pointer_Shape::Horizontal};
    }
    return {Top ? HH : BB, Pointer_Shape::Vertical};
}

std::optional<Rect_Pix> Ima_Dragged(const Rect_Pix& Rect, Ima_Zones Zone, Long Step_X,
                                    Long Step_Y) {
    Double DX = Step_X, DY = Step_Y;
    for (const Zone_Row& Z : Zone_Rows) {
        if (Z.Zone != Zone) continue;
        if (Z.Equal != 0) {
            if (std::fabs(DX) >= std::fabs(DY))
                DY = Z.Equal * DX;
            else
                DX = Z.Equal * DY;
        }
        const Rect_Pix To{Rect.Left + (Z.Left ? DX : 0.0), Rect.Top + (Z.Top ? DY : 0.0),
                          Rect.Right + (Z.Right ? DX : 0.0), Rect.Bottom + (Z.Bottom ? DY : 0.0)};
        const bool Across = Z.Left != Z.Right, Along = Z.Top != Z.Bottom;
        if ((Across && To.Left >= To.Right) || (Along && To.Top >= To.Bottom)) return std::nullopt;
        return To;
    }
    return std::nullopt;
}
