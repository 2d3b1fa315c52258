// gen/emit_excl.cpp - exclusion records sorted into Areas, Cells and classes.
#include "gen/emit_excl.h"
#include "core/project_paths.h"

#include <algorithm>
#include <span>
#include <tuple>
#include <vector>

#include "core/attr_kinds.h"
#include "core/host.h"
#include "gen/outputs.h"
#include "gen/source_frame.h"

namespace {

// A Cell of the file holds at most this many layers; the lowest classes win.
constexpr std::size_t Max_Classes_Of_Cell = 31;

struct Excl_Cell {
    Int CellLon = 0, CellLat = 0;
    std::vector<Byte> Classes;
};

struct Excl_Area {
    Int AreaLon = 0, AreaLat = 0;
    std::vector<Excl_Cell> Cells;
};

auto Cell_Key(const Cell_Pos& C) {
    return std::tie(C.AreaLat, C.AreaLon, C.CellLat, C.CellLon);
}

// The records with a flag that is set, in the order of their Cells. Records of one Cell are
// joined later, so any sort gives the one order.
std::vector<const Excl*> Sorted_Records() {
    std::vector<const Excl*> Records;
    for (const Excl& Record : Tab_Excl.Rows())
        if (std::ranges::find(Record.Chk_Excl, 1) != Record.Chk_Excl.end())
            Records.push_back(&Record);
    std::sort(Records.begin(), Records.end(),
              [](const Excl* A, const Excl* B) { return Cell_Key(*A) < Cell_Key(*B); });
    return Records;
}

// The flags of the records of one Cell, each once however many records name it.
std::vector<Byte> Classes_Of(std::span<const Excl* const> Records) {
    std::vector<Byte> Classes;
    for (std::size_t Class = 0; Class < Nb_Chk_Excl; ++Class)
        if (std::ranges::any_of(Records, [&](const Excl* R) { return R->Chk_Excl[Class] == 1; }))
            Classes.push_back(static_cast<Byte>(Class));
    return Classes;
}

std::vector<Excl_Area> Group(std::span<const Excl* const> Records) {
    std::vector<Excl_Area> Areas;
    for (std::size_t First = 0, End = 0; First < Records.size(); First = End) {
        const Cell_Pos& C = *Records[First];
        while (End < Records.size() && static_cast<const Cell_Pos&>(*Records[End]) == C) ++End;
        if (Areas.empty() || Areas.back().AreaLon != C.AreaLon || Areas.back().AreaLat != C.AreaLat)
            Areas.push_back({C.AreaLon, C.AreaLat, {}});
        Areas.back().Cells.push_back(
            {C.CellLon, C.CellLat, Classes_Of(Records.subspan(First, End - First))});
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
    if (FS_CFS == For_FS) Out.Line("        VTPTextureType 2, 0, 0, 4");
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
    const std::vector<Excl_Area> Areas = Group(Sorted_Records());
    const std::string Bgl = In_Project(NameBglExcl);
    if (Areas.empty() || !Bgl_May_Be_Made(Bgl)) return;
    Show_Stage(NameBglExcl, "Exclude : BGLC.exe");
    Source_File Out(Source_Path("Terrafold$_Excl.ASM"));
    if (!Out.Is_Open()) return;
    Write_Source(Out, Areas);
    if (!Out.Close()) return;
    const bool Has_Run = Run_BGLC(Out.Path(), Bgl, " ");
    Bgl_Ended(Bgl, Has_Run);
    if (!Has_Run) Plain_Box("BGLC.exe not found");
}
