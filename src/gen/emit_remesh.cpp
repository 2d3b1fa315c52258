// gen/emit_remesh.cpp - altitude samples sorted into Areas, Cells and lists.
#include "gen/emit_remesh.h"

#include <algorithm>
#include <tuple>
#include <vector>

#include "core/attr_kinds.h"
#include "core/host.h"
#include "gen/emitter.h"
#include "gen/lwm_text.h"
#include "gen/source_frame.h"
#include "geometry/exchange_order.h"
#include "grid/terrain_grid.h"

namespace {

constexpr Double Feet_A_Metre = 3.28084;

// A list of the file holds at most this many polygons.
constexpr Long Max_List = 253;

/// One altitude sample.
struct MPoint {
    Cell_Pos Cell;
    Loc_Cell Loc;
    Double Alt = 0.0;  // metres
};

/// First and Last are rows of the next list: Cells, or points.
struct MArea {
    Int AreaLon = 0, AreaLat = 0;
    Long First = 0, Last = 0;
};
struct MCell {
    Cell_Pos Cell;
    Long First = 0, Last = 0;
};

struct Remesh_Lists {
    Table<MPoint> Points{20, 20};
    Table<MCell> Cells{20, 20};
    Table<MArea> Areas{20, 20};
};

bool Any_Live() {
    const auto Points = Tab_PtGrid.Rows();
    return std::any_of(Points.begin(), Points.end(), [](const PtGrid& P) { return P.Active == 1; });
}

Double Metres(const PtGrid& P) {
    if (Meter_Feet == In_Feet) return P.Alt / Feet_A_Metre;
    return static_cast<Double>(Delta_Alt) + P.Alt;
}

bool Comes_Before(const MPoint& A, const MPoint& B) {
    return std::tie(A.Cell.AreaLat, A.Cell.AreaLon, A.Cell.CellLat, A.Cell.CellLon, A.Loc.LocY,
                    A.Loc.LocX) < std::tie(B.Cell.AreaLat, B.Cell.AreaLon, B.Cell.CellLat,
                                           B.Cell.CellLon, B.Loc.LocY, B.Loc.LocX);
}

void Collect_Points(Table<MPoint>& Points) {
    for (const PtGrid& P : Tab_PtGrid.Rows()) {
        if (P.Active != 1) continue;
        MPoint M;
        M.Loc = Pixel_To_Cell_Loc({P.X, P.Y}, M.Cell);
        M.Alt = Metres(P);
        Points.Append(M);
    }
    Exchange_Order(Points, Comes_Before);
}

void Nest(Remesh_Lists& M) {
    for (Long I = 1; I <= M.Points.Nb(); ++I) {
        const Cell_Pos& C = M.Points[I].Cell;
        const Cell_Pos* Before = I == 1 ? nullptr : &M.Points[I - 1].Cell;
        const bool New_Area =
            Before == nullptr || Before->AreaLat != C.AreaLat || Before->AreaLon != C.AreaLon;
        if (New_Area) M.Areas.Append({C.AreaLon, C.AreaLat, M.Cells.Nb() + 1, 0});
        if (New_Area || !(*Before == C)) M.Cells.Append({C, I, 0});
        M.Areas[M.Areas.Nb()].Last = M.Cells.Nb();
        M.Cells[M.Cells.Nb()].Last = I;
    }
}

void Write_Point(Source_File& Out, const MPoint& P) {
    const Height H = Height_Pair(P.Alt);
    Out.Line("          LWMPoly2   2,0,1,", H.H_Int, ",", H.H_Frac);
    Lwm_Point(Out, P.Loc.LocX, P.Loc.LocY);
    Lwm_Point(Out, P.Loc.LocX, P.Loc.LocY);
}

void Write_Cell(Source_File& Out, const Remesh_Lists& M, const MCell& C) {
    constexpr Int Mask = 3;
    for (Long First = C.First; First <= C.Last; First += Max_List) {
        const Long Nb = std::min(Max_List, C.Last - First + 1);
        Lwm_List_Line(Out, Nb, Mask, C.Cell);
        for (Long I = First; I < First + Nb; ++I) Write_Point(Out, M.Points[I]);
    }
}

bool Write_Source(const std::string& Path) {
    Remesh_Lists M;
    Collect_Points(M.Points);
    Nest(M);
    Source_File Out(Path);
    if (!Out.Is_Open()) return false;
    Source_Frame(Out, ";  Terrafold : ReMesh LWM Generated on ", Limits_Of_Project(),
                 ", LWMHeader , TerrainHeaderStart");
    std::vector<Lwm_Area> Index;
    for (const MArea& A : M.Areas.Rows()) Index.push_back({A.AreaLon, A.AreaLat});
    Lwm_Skeleton(Out, Lwm_Version_FS, Index, [&](Long I) {
        for (Long C = M.Areas[I].First; C <= M.Areas[I].Last; ++C) Write_Cell(Out, M, M.Cells[C]);
    });
    return Out.Close();
}

}  // namespace

void Emit_Remesh() {
    if (!Any_Live() || !Can_Convert()) return;
    const Hourglass Busy;
    const std::string Bgl = Bgl_Path("_2");
    Show_Stage(Bgl, "Re_Mesh : BGLC.exe");
    const std::string Source = Source_Path("Terrafold$_Remesh_LWM.asm");
    if (Write_Source(Source)) Compile_Source(Source, Bgl, "pb Terrafold generation Re_meshLWM");
}
