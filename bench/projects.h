// bench/projects.h - large projects of every kind of record, the same at every run.
//
// The map is 30 by 30 Areas; on it lie roads, coastlines, islands, filled Cells and altitude
// samples. Class cells lie all over the globe, as many of them as are wanted in each square of
// level 5.
#pragma once

#include <cmath>
#include <numbers>
#include <string>

#include "core/model_ops.h"
#include "drawings.h"

namespace projects {

using drawings::Hash_Unit;
using drawings::Random;

inline constexpr Long Map_Areas = 30;
inline constexpr Long Map_Cells = Map_Areas * Nb_Cell_In_Area;
inline constexpr Double Width = Map_Cells * drawings::Cell_Width;
inline constexpr Double Height = Map_Cells * drawings::Cell_Height;

/// An empty project on the map.
inline void Begin() {
    Model_Reset();
    drawings::Make_Map(Map_Cells);
}

/// A path of Nb points that wanders over the map in strides of about a pixel times Stride.
inline void Add_Path(const Attr& A, Long Nb, Double Stride, std::uint64_t Seed) {
    Random R(Seed);
    Pix P{R.Between(0, Width), R.Between(0, Height)};
    Double Way = R.Between(0, 2 * std::numbers::pi);
    const Long I = Obj_Add(A, P.X, P.Y);
    for (Long K = 1; K < Nb; ++K) {
        Way += R.Between(-0.4, 0.4);
        const Double Length = Stride * R.Between(0.5, 1.5);
        const Pix To{P.X + Length * std::cos(Way), P.Y + Length * std::sin(Way)};
        if (To.X < 0 || To.X > Width || To.Y < 0 || To.Y > Height) Way += std::numbers::pi / 2;
        P = {std::clamp(To.X, 0.0, Width), std::clamp(To.Y, 0.0, Height)};
        Pt_Append(I, P.X, P.Y);
    }
}

inline Attr Road_Attr(Long N) {
    constexpr Int First_Road = 1134;
    constexpr Int Road_Kinds = 48;
    Attr A;
    A.SurfShore = 2;
    A.FermerLine = 0;
    A.LineType = static_cast<Int>(First_Road + N % Road_Kinds);
    A.Largeur = static_cast<Int>(8 + N % 40);
    A.Layer = static_cast<Byte>(8 + N % 12);
    A.LandOnRight = static_cast<Int>(N % 2);
    A.Text_Rt = "road " + std::to_string(N);
    return A;
}

/// A network of roads of 50 points; every Night_Every-th shines at night, none with 0. One in
/// thirty is a line without widths.
inline void Add_Roads(Long Points, Long Night_Every) {
    constexpr Long In_Road = 50;
    for (Long N = 0; N < Points / In_Road; ++N) {
        Attr A = Road_Attr(N);
        if (N % 30 == 29) A.LineType = 1213;
        A.Line_Night = static_cast<Int>(Night_Every > 0 && N % Night_Every == 0);
        Add_Path(A, In_Road, 60, static_cast<std::uint64_t>(N) + 1);
    }
}

/// One line through the whole map, row by row of a meander, so that it meets all grid lines.
inline void Add_River(Long Points, bool Night) {
    Attr A = Road_Attr(0);
    A.Line_Night = static_cast<Int>(Night);
    constexpr Long Rows = 8;
    const Long In_Row = std::max(2, Points / Rows);
    Long I = 0;
    for (Long K = 0; K < Rows * In_Row; ++K) {
        const Long Row = K / In_Row;
        const Double Part = static_cast<Double>(K % In_Row) / In_Row;
        const Double Along = Row % 2 == 0 ? Part : 1.0 - Part;
        const Double Noise = drawings::Fractal_Noise(Part, In_Row, static_cast<std::uint64_t>(Row));
        const Pix P{Width * (0.01 + 0.98 * Along),
                    Height * (Row + Along + 0.05 * Noise + 0.1) / (Rows + 1.0)};
        if (I == 0)
            I = Obj_Add(A, P.X, P.Y);
        else
            Pt_Append(I, P.X, P.Y);
    }
}

/// Coastlines of 5,000 points side by side. None turns back, so none crosses itself.
inline void Add_Coasts(Long Points) {
    constexpr Long In_Coast = 5000;
    constexpr Long Cols = 10, Rows = 20;
    Attr A;
    A.SurfShore = 3;
    for (Long N = 0; N < Points / In_Coast; ++N) {
        A.Text_Rt = "coast " + std::to_string(N);
        A.LandOnRight = static_cast<Int>(N % 2);
        const Double West = Width / Cols * (N % Cols), North = Height / Rows * (N / Cols % Rows);
        Long I = 0;
        for (Long K = 0; K < In_Coast; ++K) {
            const Double Part = static_cast<Double>(K) / In_Coast;
            const Double Noise =
                drawings::Fractal_Noise(Part, In_Coast, static_cast<std::uint64_t>(N));
            const Pix P{West + Width / Cols * (0.05 + 0.9 * Part),
                        North + Height / Rows * (0.5 + 0.4 * Noise)};
            if (K == 0)
                I = Obj_Add(A, P.X, P.Y);
            else
                Pt_Append(I, P.X, P.Y);
        }
    }
}

/// M islands of about 40 points, as mask polygons (0) or textured ones (1).
inline void Add_Isles(Long M, Int Technique) {
    Attr A;
    A.LWM_VTP2 = Technique;
    for (const auto& Line : drawings::Isles(M)) {
        A.Text_Rt = "isle " + std::to_string(Nb_Obj);
        A.Attrib = 1;
        A.Alti = Nb_Obj % 200;
        A.LC = static_cast<Int>(100 + Nb_Obj % 4);
        const Long I = Obj_Add(A, Line[0].X, Line[0].Y);
        for (std::size_t P = 1; P < Line.size(); ++P) Pt_Append(I, Line[P].X, Line[P].Y);
    }
}

/// Land-class cells in squares of 1,000, in turns.
inline void Add_Classes(Long Cells) {
    constexpr Long In_Square = 1000, Side = 256, Cols = 80, First_Col = 8, First_Row = 4;
    const Long Squares = std::max(1, Cells / In_Square);
    for (Long N = 0; N < Cells; ++N) {
        const Long Square = N % Squares;
        const Long Place = N / Squares * 40503 % (Side * Side);  // odd, so each place once
        const Long Col = (First_Col + Square % Cols) * Side + Place % Side;
        const Long Row = (First_Row + Square / Cols) * Side + Place / Side;
        LC_Cell C;
        C.AreaLon = static_cast<Int>(Col / Nb_Cell_In_Area);
        C.CellLon = static_cast<Int>(Col % Nb_Cell_In_Area);
        C.AreaLat = static_cast<Int>(Row / Nb_Cell_In_Area);
        C.CellLat = static_cast<Int>(Row % Nb_Cell_In_Area);
        C.Num = static_cast<Byte>(N % 200);
        Tab_LC.Append(C);
    }
}

/// The Cell of the map at a place counted in rows.
inline Cell_Pos Map_Cell(Long Place) {
    const Long Col = Place % Map_Cells, Row = Place / Map_Cells;
    return {static_cast<Int>(AreaLonMapNW + Col / Nb_Cell_In_Area),
            static_cast<Int>(AreaLatMapNW + Row / Nb_Cell_In_Area),
            static_cast<Int>(Col % Nb_Cell_In_Area), static_cast<Int>(Row % Nb_Cell_In_Area)};
}

/// Nb of the map's Cells, at most a third, each once and in no order.
template <typename F>
void Each_Scattered_Cell(Long Nb, F Visit) {
    constexpr std::int64_t Stride = 1'000'003;  // a prime, so each place once
    for (std::int64_t N = 0; N < Nb; ++N) {
        const auto Third = static_cast<Long>(N * Stride % Nb);
        Visit(
            Map_Cell(3 * Third + static_cast<Long>(3 * Hash_Unit(static_cast<std::uint64_t>(N)))));
    }
}

inline void Add_Cells(Long Nb) {
    Each_Scattered_Cell(Nb, [](const Cell_Pos& At) {
        Area A;
        static_cast<Cell_Pos&>(A) = At;
        A.Texte = "cell " + std::to_string(Nb_Area);
        A.Fill1x1 = static_cast<Int>(Nb_Area % 8 != 0);
        A.Attrib = static_cast<Byte>(Nb_Area % 3);
        A.Alti = Nb_Area % 500 / 4.0;
        Tab_Area.Append(A);
    });
}

inline void Add_Exclusions(Long Nb) {
    Each_Scattered_Cell(Nb, [](const Cell_Pos& At) {
        Excl E;
        static_cast<Cell_Pos&>(E) = At;
        for (std::size_t Class = static_cast<std::size_t>(Nb_Excl % 9); Class < Nb_Chk_Excl;
             Class += 9)
            E.Chk_Excl[Class] = 1;
        Tab_Excl.Append(E);
    });
}

inline void Add_Samples(Long Nb) {
    Random R(77);
    for (Long N = 0; N < Nb; ++N) {
        const Double X = R.Between(0, Width), Y = R.Between(0, Height);
        PtGrid_Add(X, Y, static_cast<Single>(R.Between(0, 1000)));
    }
}

/// All of it at once; with Share 1 a million points of roads, 100,000 of them on night lines, a
/// million of coastlines, 200,000 class cells and 300,000 filled ones.
inline void Make_All(Double Share) {
    const auto Part = [&](Double Nb) { return static_cast<Long>(Nb * Share); };
    Begin();
    Add_Roads(Part(1e6), 10);
    Add_Coasts(Part(1e6));
    Add_Isles(Part(10'000), 0);
    Add_Isles(Part(2'000), 1);
    Add_Classes(Part(200'000));
    Add_Cells(Part(300'000));
    Add_Samples(Part(100'000));
    Add_Exclusions(Part(10'000));
}

}  // namespace projects
