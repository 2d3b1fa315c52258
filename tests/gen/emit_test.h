// tests/gen/emit_test.h - the fixture of the emitters of polygons and samples.
#pragma once

#include <array>
#include <cmath>
#include <numbers>
#include <vector>

#include "gen_test.h"
#include "grid/map_limits.h"
#include "grid/terrain_grid.h"
#include "shapes/poly/work_lists.h"

/// Pixels of a Cell and of an Area on the map of the test: a pixel is a unit of the Cell scale.
inline constexpr Double Cell_Px = 255;
inline constexpr Double Area_Px = 32 * Cell_Px;

/// A map of 2 by 2 Areas whose pixel (0, 0) is the north-west corner of Area (100, 50).
class Emit_Test : public Gen_Test {
protected:
    Emit_Test() {
        const Geo NW = Area_Corner(100, 50), SE = Area_Corner(102, 52);
        The_Calibration.LatPtNW = NW.Lat;
        The_Calibration.LonPtNW = NW.Lon;
        The_Calibration.LatPtSE = SE.Lat;
        The_Calibration.LonPtSE = SE.Lon;
        XPtSE = YPtSE = static_cast<Long>(2 * Area_Px);
        Map_Width = Map_Height = XPtSE + 1;
        Compute_Map_Limits(The_Calibration, Map_Width, Map_Height);
        Init_Tables();
        Work_Lists_Reset();
    }
    ~Emit_Test() override { Work_Lists_Reset(); }

    /// A calibration whose points stand the wrong way round.
    static void Spoil_Calibration() { std::swap(XPtNW, XPtSE); }

    static void Draw(const std::vector<Pix>& Outline, const Attr& A) {
        const Long I = Obj_Add(A, Outline[0].X, Outline[0].Y);
        for (std::size_t K = 1; K < Outline.size(); ++K) Pt_Append(I, Outline[K].X, Outline[K].Y);
    }
    static std::vector<Pix> Square(Double X, Double Y, Double Side) {
        return {{X, Y}, {X + Side, Y}, {X + Side, Y + Side}, {X, Y + Side}};
    }
    static std::vector<Pix> Disc(Double X, Double Y, Double R, Int Nb) {
        std::vector<Pix> Outline;
        for (Int I = 0; I < Nb; ++I) {
            const Double Turn = 2 * std::numbers::pi * (I + 0.3) / Nb;
            Outline.push_back({X + R * std::cos(Turn), Y + R * std::sin(Turn)});
        }
        return Outline;
    }

    /// A finished piece of Nb points, (1, 1), (2, 1), ..., with the attributes A.
    static void Add_Piece(Table<CPoly>& Polys, Table<CPt>& Points, const Cell_Pos& Cell, Int Nb,
                          const Attr& A) {
        CPoly P{.Nb = Nb, .First = Points.Nb() + 1, .Last = Points.Nb() + Nb};
        P.AreaLon = Cell.AreaLon;
        P.AreaLat = Cell.AreaLat;
        P.CellLon = Cell.CellLon;
        P.CellLat = Cell.CellLat;
        P.Attr = &A;
        Polys.Append(P);
        for (Int I = 1; I <= Nb; ++I) Points.Append({.LocX = I, .LocY = 1});
    }

    /// The lines of a source that hold Mark, without the CR.
    std::vector<std::string> Lines_With(const std::string& Name, const std::string& Mark) const {
        std::vector<std::string> Found;
        const std::string Text = Source(Name);
        for (std::size_t At = 0, End = 0; At < Text.size(); At = End + 2) {
            End = Text.find("\r\n", At);
            const std::string Line = Text.substr(At, End - At);
            if (Line.find(Mark) != std::string::npos) Found.push_back(Line);
        }
        return Found;
    }
    /// Whether some event begins with Verb.
    bool Happened(const std::string& Verb) const {
        for (const std::string& E : Host_Of_Test.Events)
            if (E.starts_with(Verb)) return true;
        return false;
    }
};

using Lines = std::vector<std::string>;
