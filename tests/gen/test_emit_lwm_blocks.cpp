// tests/gen/test_emit_lwm_blocks.cpp - blocks of a mask against the plain rule, step by step.
#include <algorithm>
#include <map>

#include "emit_test.h"
#include "gen/lwm_blocks.h"
#include "reference/shapes.h"

namespace {

// The plain rule, with its searches from row 1 and its table of 32 by 32 entries.
struct Plain_Lists {
    std::vector<LCell> Cells;
    std::vector<LArea> Areas;
    std::vector<std::vector<LSub>> Blocks;
};

template <typename R>
R* Find_Cell(std::vector<R>& Cells, const Cell_Pos& At) {
    for (R& C : Cells)
        if (static_cast<const Cell_Pos&>(C) == At) return &C;
    return nullptr;
}

Cell_Pos Cell_Of(const CPoly& P) {
    return {P.AreaLon, P.AreaLat, P.CellLon, P.CellLat};
}

void Plain_Cells(std::vector<LCell>& Cells) {
    for (const Area& A : Tab_Area.Rows()) {
        if (Find_Cell(Cells, A) != nullptr) continue;
        LCell C;
        static_cast<Cell_Pos&>(C) = A;
        C.Attrib = A.Attrib;
        C.Fill1x1 = A.Fill1x1;
        Cells.push_back(C);
    }
    const auto Of = [&](const CPoly& P) -> LCell& {
        if (Find_Cell(Cells, Cell_Of(P)) == nullptr) {
            Cells.emplace_back();
            static_cast<Cell_Pos&>(Cells.back()) = Cell_Of(P);
        }
        return *Find_Cell(Cells, Cell_Of(P));
    };
    for (Long I = 1; I <= Nb_CPoly; ++I) {
        LCell& C = Of(Tab_CPoly[I]);
        if (C.Has_Poly == 0) C.First_Poly = I;
        C.Has_Poly = 1;
        C.Last_Poly = I;
    }
    for (Long I = 1; I <= Nb_CCoast; ++I) {
        LCell& C = Of(Tab_CCoast[I]);
        if (C.Has_Coast == 0) C.First_Coast = I;
        C.Has_Coast = 1;
        C.Last_Coast = I;
    }
}

void Plain_Areas(Plain_Lists& P) {
    const auto Find = [&](Int Lon, Int Lat) {
        return std::find_if(P.Areas.begin(), P.Areas.end(),
                            [&](const LArea& A) { return A.AreaLon == Lon && A.AreaLat == Lat; });
    };
    for (const Lod8& L : Tab_Lod8.Rows())
        if (Find(L.AreaLon, L.AreaLat) == P.Areas.end())
            P.Areas.push_back({.AreaLon = L.AreaLon, .AreaLat = L.AreaLat, .Attrib = L.Attrib});
    for (const LCell& C : P.Cells) {
        if (!Is_Active(C)) continue;
        if (Find(C.AreaLon, C.AreaLat) == P.Areas.end())
            P.Areas.push_back({.AreaLon = C.AreaLon, .AreaLat = C.AreaLat});
        Find(C.AreaLon, C.AreaLat)->Has_Data = 1;
    }
    std::sort(P.Areas.begin(), P.Areas.end(), [](const LArea& A, const LArea& B) {
        return A.AreaLat != B.AreaLat ? A.AreaLat < B.AreaLat : A.AreaLon < B.AreaLon;
    });
}

std::vector<LSub> Plain_Blocks(const LArea& A, const std::vector<LCell>& Cells) {
    struct Entry {
        Int Size = 1;
        Long Cell_Ix = -1;
    };
    Entry Map[32][32];
    for (std::size_t I = 0; I < Cells.size(); ++I)
        if (Is_Active(Cells[I]) && Cells[I].AreaLon == A.AreaLon && Cells[I].AreaLat == A.AreaLat)
            Map[Cells[I].CellLat][Cells[I].CellLon].Cell_Ix = static_cast<Long>(I);
    for (const int S : {16, 8, 4, 2})
        for (int Band = 0; Band < 32; Band += S) {
            bool Free = true;
            for (int Row = Band; Row < Band + S; ++Row)
                for (const Entry& E : Map[Row]) Free = Free && E.Size <= S && E.Cell_Ix == -1;
            for (int Row = Band; Free && Row < Band + S; ++Row)
                for (Entry& E : Map[Row]) E.Size = static_cast<Int>(S);
        }
    std::vector<LSub> Blocks;
    for (int Row = 0; Row < 32; ++Row)
        for (int Col = 0; Col < 32; ++Col) {
            const Entry& E = Map[Row][Col];
            if (E.Size != 1 && (Row % E.Size != 0 || Col % E.Size != 0)) continue;
            LSub B{E.Size, E.Cell_Ix, A.Attrib, static_cast<Int>(Col / E.Size),
                   static_cast<Int>(Row / E.Size)};
            if (E.Size == 1 && E.Cell_Ix != -1) {
                const LCell& C = Cells[static_cast<std::size_t>(E.Cell_Ix)];
                B.Fill = C.Fill1x1 == 1 ? C.Attrib : Int{3};
            }
            Blocks.push_back(B);
        }
    return Blocks;
}

class Lwm_Blocks_Test : public Emit_Test {
protected:
    Cell_Pos Any_Cell() {
        return {static_cast<Int>(R.Whole(7, 9)), static_cast<Int>(R.Whole(3, 4)),
                static_cast<Int>(R.Whole(0, 31)), static_cast<Int>(R.Whole(0, 31))};
    }
    void Random_Pieces(Table<CPoly>& Polys, Table<CPt>& Points, Long Nb) {
        std::vector<Cell_Pos> Cells;
        for (Long I = 0; I < Nb; ++I) Cells.push_back(Any_Cell());
        std::sort(Cells.begin(), Cells.end(), [](const Cell_Pos& A, const Cell_Pos& B) {
            return std::tie(A.AreaLat, A.AreaLon, A.CellLat, A.CellLon) <
                   std::tie(B.AreaLat, B.AreaLon, B.CellLat, B.CellLon);
        });
        for (const Cell_Pos& C : Cells)
            for (Long K = R.Whole(1, 3); K > 0; --K) Add_Piece(Polys, Points, C, 3, Any_Attr);
    }
    void Random_Project() {
        for (Long K = R.Whole(0, 6); K > 0; --K)
            Tab_Lod8.Append({.AreaLon = static_cast<Int>(R.Whole(7, 10)),
                             .AreaLat = static_cast<Int>(R.Whole(3, 4)),
                             .Attrib = static_cast<Byte>(R.Whole(0, 2))});
        for (Long K = R.Whole(0, 12); K > 0; --K) {
            Area A;
            static_cast<Cell_Pos&>(A) = Any_Cell();
            A.Attrib = static_cast<Byte>(R.Whole(0, 2));
            A.Fill1x1 = static_cast<Int>(R.Whole(0, 1));
            for (Long Twice = R.Whole(1, 2); Twice > 0; --Twice, A.Attrib ^= 1) Tab_Area.Append(A);
        }
        Random_Pieces(Tab_CPoly, Tab_CPt, R.Whole(0, 8));
        Random_Pieces(Tab_CCoast, Tab_CCoastPt, R.Whole(0, 4));
    }

    shapes::Random R{2024};
    Attr Any_Attr;
};

TEST_F(Lwm_Blocks_Test, AgreeWithThePlainRule) {
    for (int Round = 0; Round < 300; ++Round) {
        Init_Tables();
        Work_Lists_Reset();
        Random_Project();
        Plain_Lists Plain;
        Plain_Cells(Plain.Cells);
        Plain_Areas(Plain);
        const Lwm_Lists Lists = Lwm_Collect();
        ASSERT_EQ(Lists.Areas.Nb(), static_cast<Long>(Plain.Areas.size()));
        std::vector<LSub> Blocks;
        for (Long I = 1; I <= Lists.Areas.Nb(); ++I) {
            const LArea& A = Lists.Areas[I];
            const LArea& B = Plain.Areas[static_cast<std::size_t>(I - 1)];
            ASSERT_EQ(std::tie(A.AreaLon, A.AreaLat, A.Attrib, A.Has_Data),
                      std::tie(B.AreaLon, B.AreaLat, B.Attrib, B.Has_Data));
            Lwm_Blocks(A, Lists.Cells, Blocks);
            std::vector<LSub> Wanted = Plain_Blocks(B, Plain.Cells);
            ASSERT_EQ(Blocks.size(), Wanted.size());
            for (std::size_t K = 0; K < Blocks.size(); ++K) {
                ASSERT_EQ(Blocks[K].Cell_Ix == -1, Wanted[K].Cell_Ix == -1);
                if (Blocks[K].Cell_Ix != -1) {
                    const LCell& C = Lists.Cells[Blocks[K].Cell_Ix];
                    const LCell& D = Plain.Cells[static_cast<std::size_t>(Wanted[K].Cell_Ix)];
                    ASSERT_TRUE(static_cast<const Cell_Pos&>(C) == D);
                    ASSERT_EQ(std::tie(C.Has_Poly, C.First_Poly, C.Last_Poly, C.Has_Coast,
                                       C.First_Coast, C.Last_Coast),
                              std::tie(D.Has_Poly, D.First_Poly, D.Last_Poly, D.Has_Coast,
                                       D.First_Coast, D.Last_Coast));
                    Wanted[K].Cell_Ix = Blocks[K].Cell_Ix;
                }
                ASSERT_TRUE(Blocks[K] == Wanted[K]) << "block " << K;
            }
        }
    }
}

TEST_F(Lwm_Blocks_Test, OneActiveRowBreaksOnlyItsOwnBands) {
    Add_Piece(Tab_CPoly, Tab_CPt, {7, 3, 12, 5}, 3, Any_Attr);
    const Lwm_Lists Lists = Lwm_Collect();
    std::vector<LSub> Blocks;
    Lwm_Blocks(Lists.Areas[1], Lists.Cells, Blocks);
    std::map<Int, int> Nb;
    std::string Sizes;
    for (const LSub& B : Blocks) {
        ++Nb[B.Size];
        Sizes += std::to_string(B.Size) + " ";
    }
    EXPECT_EQ(Nb, (std::map<Int, int>{{16, 2}, {8, 4}, {4, 8}, {2, 16}, {1, 64}})) << Sizes;
    EXPECT_EQ(Blocks[8], (LSub{.Size = 1, .Fill = 3, .SubX = 0, .SubY = 4}));
    EXPECT_EQ(Blocks[72], (LSub{.Size = 2, .Fill = 3, .SubX = 0, .SubY = 3}));
    EXPECT_EQ(Blocks[93], (LSub{.Size = 16, .Fill = 3, .SubX = 1, .SubY = 1}));
}

}  // namespace
