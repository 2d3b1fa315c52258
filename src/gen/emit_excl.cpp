// gen/emit_excl.cpp - exclusion flags sorted into Areas, Cells and classes.
#include "gen/emit_excl.h"

#include <algorithm>
#include <tuple>
#include <vector>

#include "core/host.h"
#include "gen/source_frame.h"

namespace {

// A Cell of the file holds at most this many layers; the lowest classes win.
constexpr std::size_t Max_Classes_Of_Cell = 31;

/// One flag that is set.
struct Excl_Flat {
    Cell_Pos Cell;
    Byte Class = 0;

    auto Key() const {
        return std::tie(Cell.AreaLat, Cell.AreaLon, Cell.CellLat, Cell.CellLon, Class);
    }
};

struct Excl_Cell {
    Int CellLon = 0, CellLat = 0;
    std::vector<Byte> Classes;
};

struct Excl_Area {
    Int AreaLon = 0, AreaLat = 0;
    std::vector<Excl_Cell> Cells;
};

// The flags that are set, in order, each once however many records name it. Flags with equal
// keys are the same flag, so any sort gives the one order.
std::vector<Excl_Flat> Flatten() {
    std::vector<Excl_Flat> Flags;
    for (const Excl& Record : Tab_Excl.Rows())
        for (std::size_t Class = 0; Class < Record.Chk_Excl.size(); ++Class)
            if (Record.Chk_Excl[Class] == 1)
                Flags.push_back({.Cell = Record, .Class = static_cast<Byte>(Class)});
    const auto Before = [](const auto& A, const auto& B) { return A.Key() < B.Key(); };
    const auto Same = [](const auto& A, const auto& B) { return A.Key() == B.Key(); };
    std::sort(Flags.begin(), Flags.end(), Before);
    Flags.erase(std::unique(Flags.begin(), Flags.end(), Same), Flags.end());
    return Flags;
}

std::vector<Excl_Area> Group(const std::vector<Excl_Flat>& Flags) {
    std::vector<Excl_Area> Areas;
    const Cell_Pos* Last = nullptr;
    for (const Excl_Flat& F : Flags) {
        const Cell_Pos& C = F.Cell;
        const bool Same_Area =
            Last != nullptr && Last->AreaLon == C.AreaLon && Last->AreaLat == C.AreaLat;
        if (!Same_Area) Areas.push_back({C.AreaLon, C.AreaLat, {}});
        if (!Same_Area || !(*Last == C)) Areas.back().Cells.push_back({C.CellLon, C.CellLat, {}});
        Areas.back().Cells.back().Classes.push_back(F.Class);
        Last = &C;
    }
    return Areas;
}

void Write_Cell(Source_File& Out, const Excl_Cell& Cell) {
    const std::size_t Nb = std::min(Cell.Classes.size(), Max_Classes_Of_Cell);
    Out.Line("        VTPDataArea ", static_cast<Long>(Nb), ", 0, ", Cell.CellLon, ", ",
             Cell.CellLat);
    for (std::size_t I = 0; I < Nb; ++I) {
        Out.Line("        VTPLayer ", Cell.Classes[I], ", 1");
        Out.Line("        VTPNumTexturesInLayer 0, 0");
    }
}

void Write_Texture(Source_File& Out) {
    Out.Line("        VTPTextureName \"1162\"");
    if (FS_CFS == 0) Out.Line("        VTPTextureType 2, 0, 0, 4");
}

void Write_Source(Source_File& Out, const std::vector<Excl_Area>& Areas) {
    const Excl_Area& First = Areas.front();
    const Excl_Area& Last = Areas.back();
    Source_Frame(Out, ";  Terrafold (Exclude) : Generated on ",
                 Limits_Of_Areas(First.AreaLon, First.AreaLat, Last.AreaLon, Last.AreaLat),
                 ", TerrainHeaderStart, VTPHeader");
    std::vector<Vtp_Area> Index;
    Index.reserve(Areas.size());
    for (const Excl_Area& A : Areas) Index.push_back({A.AreaLon, A.AreaLat});
    const auto Write_Area = [&](Long I) {
        for (const Excl_Cell& C : Areas[static_cast<std::size_t>(I - 1)].Cells) Write_Cell(Out, C);
    };
    Vtp_Skeleton(Out, Index, Write_Area, 1, [&](Long) { Write_Texture(Out); });
}

}  // namespace

void Emit_Excl() {
    const std::vector<Excl_Area> Areas = Group(Flatten());
    if (Areas.empty()) return;
    Show_Stage(NameBglExcl, "Exclude : BGLC.exe");
    Source_File Out(Source_Path("Terrafold$_Excl.ASM"));
    if (!Out.Is_Open()) return;
    Write_Source(Out, Areas);
    if (!Out.Close()) return;
    if (!Run_BGLC(Out.Path(), NameBglExcl, " ")) Plain_Box("BGLC.exe not found");
}
