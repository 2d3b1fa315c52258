// gen/lwm_blocks.cpp - cells and Areas of a mask file, and their division into blocks.
#include "gen/lwm_blocks.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <span>
#include <utility>

#include "geometry/coarse_sort.h"

namespace {

// Places on the globe: Areas row by row, and in each its Cells row by row.
template <typename T>
std::uint32_t Area_Key(const T& In) {
    return static_cast<std::uint32_t>(In.AreaLat * Nb_AreaLon + In.AreaLon);
}
std::uint32_t Cell_Key(const LCell& C) {
    const auto In_Area = static_cast<std::uint32_t>(C.CellLat * Nb_Cell_In_Area + C.CellLon);
    return Area_Key(C) * Nb_Cell_In_Area * Nb_Cell_In_Area + In_Area;
}

// Sorts a list and leaves one row of each key: the one added first, after Take has given it what
// the others hold.
template <typename T, typename Key_Of, typename Take_Of>
void Sort_And_Merge(Table<T>& Tab, Key_Of Key, Take_Of Take) {
    const std::span<const T> Rows = Tab.Rows();
    std::vector<Coarse_Entry> Order;
    Order.reserve(Rows.size());
    for (const T& Row : Rows) Order.push_back({Key(Row), static_cast<Long>(Order.size())});
    Sort_By_Key(Order);
    Table<T> Merged{20, 20};
    Merged.Reserve(Tab.Nb());
    for (std::size_t I = 0; I < Order.size(); ++I) {
        const T& Row = Rows[static_cast<std::size_t>(Order[I].Place)];
        if (I > 0 && Order[I - 1].Key == Order[I].Key)
            Take(Merged[Merged.Nb()], Row);
        else
            Merged.Append(Row);
    }
    Tab = std::move(Merged);
}

LCell Cell_Of_Record(const Area& A) {
    LCell C;
    static_cast<Cell_Pos&>(C) = A;
    C.Attrib = A.Attrib;
    C.Alti = A.Alti;
    C.Fill1x1 = A.Fill1x1;
    C.InvertMask = A.InvertMask;
    C.InvertMaskValue = A.InvertMaskValue;
    return C;
}

LCell Cell_Of_Piece(const CPoly& P) {
    LCell C;
    static_cast<Cell_Pos&>(C) = {P.AreaLon, P.AreaLat, P.CellLon, P.CellLat};
    return C;
}

// Calls Visit with the first and the last row of each Cell's pieces.
template <typename F>
void Each_Cell_Run(const Table<CPoly>& Tab, F Visit) {
    for (Long First = 1, Last = 1; First <= Tab.Nb(); First = ++Last) {
        while (Last < Tab.Nb() && Same_Cell(Tab[First], Tab[Last + 1])) ++Last;
        Visit(First, Last);
    }
}

void Take_Pieces(LCell& To, const LCell& From) {
    if (From.Has_Poly != 0) {
        To.Has_Poly = 1;
        To.First_Poly = From.First_Poly;
        To.Last_Poly = From.Last_Poly;
    }
    if (From.Has_Coast != 0) {
        To.Has_Coast = 1;
        To.First_Coast = From.First_Coast;
        To.Last_Coast = From.Last_Coast;
    }
}

// The records come first, so that what they say of a Cell stays.
void Collect_Cells(Table<LCell>& Cells) {
    for (const Area& A : Tab_Area.Rows()) Cells.Append(Cell_Of_Record(A));
    Each_Cell_Run(Tab_CPoly, [&](Long First, Long Last) {
        LCell C = Cell_Of_Piece(Tab_CPoly[First]);
        C.Has_Poly = 1;
        C.First_Poly = First;
        C.Last_Poly = Last;
        Cells.Append(C);
    });
    Each_Cell_Run(Tab_CCoast, [&](Long First, Long Last) {
        LCell C = Cell_Of_Piece(Tab_CCoast[First]);
        C.Has_Coast = 1;
        C.First_Coast = First;
        C.Last_Coast = Last;
        Cells.Append(C);
    });
    Sort_And_Merge(Cells, Cell_Key, Take_Pieces);
}

void Collect_Areas(const Table<LCell>& Cells, Table<LArea>& Areas) {
    for (const Lod8& L : Tab_Lod8.Rows())
        Areas.Append({.AreaLon = L.AreaLon, .AreaLat = L.AreaLat, .Attrib = L.Attrib});
    // The Cells of an Area stand together.
    const LCell* Before = nullptr;
    for (const LCell& C : Cells.Rows()) {
        if (!Is_Active(C)) continue;
        if (!Before || Area_Key(*Before) != Area_Key(C))
            Areas.Append({.AreaLon = C.AreaLon, .AreaLat = C.AreaLat, .Has_Data = 1});
        Before = &C;
    }
    Sort_And_Merge(Areas, Area_Key<LArea>,
                   [](LArea& To, const LArea& From) { To.Has_Data |= From.Has_Data; });
}

// Both lists are in the same order of Areas.
void Share_Out_Cells(const Table<LCell>& Cells, Table<LArea>& Areas) {
    Long I = 1;
    for (LArea& A : Areas.Rows()) {
        while (I <= Cells.Nb() && Area_Key(Cells[I]) < Area_Key(A)) ++I;
        A.First_Cell = I;
        while (I <= Cells.Nb() && Area_Key(Cells[I]) == Area_Key(A)) ++I;
        A.Last_Cell = I - 1;
    }
}

// The Cells of one Area. Bands run the full width, so one size holds for a whole row.
struct Sub_Map {
    std::array<Int, Nb_Cell_In_Area> Size;
    std::array<bool, Nb_Cell_In_Area> Has_Active{};
    std::array<std::array<Long, Nb_Cell_In_Area>, Nb_Cell_In_Area> Cell_Ix;

    Sub_Map() {
        Size.fill(1);
        for (auto& Row : Cell_Ix) Row.fill(-1);
    }
};

void Place_Cells(Sub_Map& Map, const LArea& A, const Table<LCell>& Cells) {
    for (Long I = A.First_Cell; I <= A.Last_Cell; ++I) {
        const LCell& C = Cells[I];
        if (!Is_Active(C)) continue;
        const bool Inside = 0 <= C.CellLat && C.CellLat < Nb_Cell_In_Area && 0 <= C.CellLon &&
                            C.CellLon < Nb_Cell_In_Area;
        Check(Inside, "a Cell lies in its Area");
        const auto Row = static_cast<std::size_t>(C.CellLat);
        Map.Has_Active[Row] = true;
        Map.Cell_Ix[Row][static_cast<std::size_t>(C.CellLon)] = I;
    }
}

void Widen_Rows(Sub_Map& Map) {
    constexpr std::size_t Rows = Nb_Cell_In_Area;
    for (const std::size_t S : {16, 8, 4, 2})
        for (std::size_t Band = 0; Band < Rows; Band += S) {
            bool Free = true;
            for (std::size_t Row = Band; Row < Band + S; ++Row)
                Free = Free && !Map.Has_Active[Row] && Map.Size[Row] <= static_cast<Int>(S);
            if (Free) std::fill_n(Map.Size.begin() + Band, S, static_cast<Int>(S));
        }
}

Int Fill_Of(const LSub& B, const LArea& A, const Table<LCell>& Cells) {
    if (B.Size != 1 || B.Cell_Ix == -1) return A.Attrib;
    const LCell& C = Cells[B.Cell_Ix];
    return C.Fill1x1 == 1 ? C.Attrib : Fill_Nothing;
}

}  // namespace

Lwm_Lists Lwm_Collect() {
    Lwm_Lists Lists;
    Collect_Cells(Lists.Cells);
    Collect_Areas(Lists.Cells, Lists.Areas);
    Share_Out_Cells(Lists.Cells, Lists.Areas);
    return Lists;
}

void Lwm_Blocks(const LArea& A, const Table<LCell>& Cells, std::vector<LSub>& Blocks) {
    Blocks.clear();
    Sub_Map Map;
    Place_Cells(Map, A, Cells);
    Widen_Rows(Map);
    for (Int Row = 0; Row < Nb_Cell_In_Area; ++Row) {
        const Int Size = Map.Size[static_cast<std::size_t>(Row)];
        if (Row % Size != 0) continue;
        for (Int Col = 0; Col < Nb_Cell_In_Area; Col = static_cast<Int>(Col + Size)) {
            LSub B{.Size = Size,
                   .Cell_Ix =
                       Map.Cell_Ix[static_cast<std::size_t>(Row)][static_cast<std::size_t>(Col)],
                   .SubX = static_cast<Int>(Col / Size),
                   .SubY = static_cast<Int>(Row / Size)};
            B.Fill = Fill_Of(B, A, Cells);
            Blocks.push_back(B);
        }
    }
}
