// gen/emit_night_lines.cpp - lines into squares of level 10, and the sources of their lights.
#include "gen/emit_night_lines.h"

#include <functional>
#include <span>
#include <tuple>
#include <vector>

#include "core/attr_kinds.h"
#include "core/host.h"
#include "gen/emitter.h"
#include "gen/night_offset.h"
#include "gen/outputs.h"
#include "gen/source_frame.h"
#include "geometry/box.h"
#include "geometry/exchange_order.h"
#include "grid/terrain_grid.h"
#include "shapes/line/line_collect.h"
#include "shapes/line/line_cut.h"

namespace {

// The lights stand on so much of a road's width.
constexpr Double Lit_Width = 0.66;

// A finished piece: rows First_Pt to Last_Pt of Tab_WPt.
struct NLine {
    Lod10_Pos Square;
    Long First_Pt = 0, Last_Pt = 0;
    const ::Attr* Attr = nullptr;

    auto Area() const { return std::tie(Square.AreaLat, Square.AreaLon); }
    auto Block() const { return std::tie(Square.Row, Square.Col, Attr->LayerScasm); }
    bool operator<(const NLine& L) const {
        return std::tuple(Area(), Block()) < std::tuple(L.Area(), L.Block());
    }
};

using NLines = std::span<const NLine>;

Lod10_Pos Square_Of(const WPoly& W) {
    Box_Pix B;
    for (Long I = W.First; I <= W.Last; ++I) B.Add(To_Pix(Tab_WPt[I]));
    return Pixel_To_Lod10({(B.LX + B.HX) / 2, (B.LY + B.HY) / 2});
}

Table<NLine> Sorted_Lines() {
    Table<NLine> Tab_NLine(Nb_WPoly + 1, 1);
    for (const WPoly& W : Tab_WPoly.Rows())
        Tab_NLine.Append(
            {.Square = Square_Of(W), .First_Pt = W.First, .Last_Pt = W.Last, .Attr = W.Attr});
    Exchange_Equals_Order(Tab_NLine, std::less<NLine>());
    return Tab_NLine;
}

// The first lines of Rest, as far as Same holds with the first of all; Rest keeps the others.
template <typename Is_Same>
NLines Take_Run(NLines& Rest, Is_Same Same) {
    std::size_t Nb = 1;
    while (Nb < Rest.size() && Same(Rest[Nb], Rest.front())) ++Nb;
    const NLines Run = Rest.first(Nb);
    Rest = Rest.subspan(Nb);
    return Run;
}

Double Round_6(Double X) {
    return Round_Lng(X * 1000000) / 1000000.0;
}

Geo Centre_Of(const Lod10_Pos& S) {
    return {90 - (S.AreaLat * Area_StepLat + S.Row * Lod10_StepLat + Lod10_StepLat / 2),
            S.AreaLon * Area_StepLon + S.Col * Lod10_StepLon + Lod10_StepLon / 2 - 180};
}

std::vector<Metres> Road_Of(const NLine& L, Geo Ref) {
    std::vector<Metres> Road;
    for (Long I = L.First_Pt; I <= L.Last_Pt; ++I)
        Road.push_back(To_Metres(Pixel_To_LatLon(To_Pix(Tab_WPt[I])), Ref));
    return Road;
}

void Write_Light(Source_File& Out, bool First, Metres P) {
    Out.Line(First ? "RRStart( 2 2 " : "RoadCont( ", Round_Lng(P.X), " 0 ", Round_Lng(P.Y), " )");
}

// Oncoming traffic first, from the last point back; then the other side, from the first point on.
void Write_Road(Source_File& Out, const NLine& L, Geo Ref) {
    const Road_Lanes Kind = Lanes_Of(L.Attr->LineType);
    const bool One_Lane = Kind.Lanes == 1, On_Right = L.Attr->Drive_Right == 1;
    const std::vector<Metres> Road = Road_Of(L, Ref);
    for (const Double Offset : Lane_Offsets(Kind, L.Attr->Largeur * Lit_Width)) {
        const std::vector<Lane_Pt> Path = Lane_Path(Road, Offset, One_Lane);
        for (std::size_t I = Path.size(); I-- > 0;)
            Write_Light(Out, I + 1 == Path.size(),
                        One_Lane || On_Right ? Path[I].Left : Path[I].Right);
        if (One_Lane) continue;
        for (std::size_t I = 0; I < Path.size(); ++I)
            Write_Light(Out, I == 0, On_Right ? Path[I].Right : Path[I].Left);
    }
}

void Write_Limits(Source_File& Out, const Lod10_Pos& S) {
    const Double North = 90 - S.AreaLat * Area_StepLat + 0.1;
    const Double South = North - Area_StepLat - 0.2;
    const Double West = S.AreaLon * Area_StepLon - 180 - 0.1;
    const Double East = West + Area_StepLon + 0.2;
    Out.Line("Header( 1 ", Round_6(North), " ", Round_6(South), " ", Round_6(East), " ",
             Round_6(West), " )");
    Out.Line("LatRange(  ", Round_6(South), " ", Round_6(North), " )");
    Out.Line("Set( areamx 128 )");
}

// The lines of one square and layer.
void Write_Block(Source_File& Out, NLines Lines) {
    const Geo Ref = Centre_Of(Lines.front().Square);
    const Double Lat = Round_6(Ref.Lat), Lon = Round_6(Ref.Lon);
    Out.Line("Area( B ", Lat, " ", Lon, " 40 )");
    Out.Line("LayerCall32( :TagLayer ", Lines.front().Attr->LayerScasm, " )");
    Out.Line("Jump( : )");
    Out.Line(":TagLayer");
    Out.Line("RefPoint( 7 :TagReturn 1 ", Lat, " ", Lon, " V1= 30000 V2= 0 )");
    Out.Line("IfVarAnd( :TagRef 028C 1 )");
    Out.Line("Jump( : )");
    Out.Line(":TagRef");
    for (const NLine& L : Lines) {
        The_Host().Turn();
        if (L.First_Pt < L.Last_Pt) Write_Road(Out, L, Ref);
    }
    Out.Line(":TagReturn");
    Out.Line("    Return");
    Out.Line("EndA");
}

bool Write_Source(Source_File& Out, NLines Lines) {
    Write_Limits(Out, Lines.front().Square);
    while (!Lines.empty())
        Write_Block(Out, Take_Run(Lines, [](const NLine& A, const NLine& B) {
                        return A.Block() == B.Block();
                    }));
    return Out.Close();
}

void Take_Over(const std::string& Made, const std::string& Bgl) {
    if (!Bgl_Stem().empty()) Bgl_Delete(Bgl);
    if (!Bgl_May_Be_Made(Bgl)) return;
    if (File_Copy(Made, Bgl))
        The_Host().Note_File(File_Event::Written, Bgl);
    else
        Box_Not_Whole(Bgl);
    Output_Delete(Made);
}

// Compiles to a scratch file, so that an output is there only when the compiler made one.
void Compile(const std::string& Source, Long Num) {
    const std::string Made = Source_Path("Tmp.Bgl"), Bgl = Bgl_Path("_9" + Mask_000(Num));
    if (!Bgl_May_Be_Made(Bgl)) return;
    Output_Delete(Made);
    const bool Has_Run =
        Run_Process(Source_Path("scasm.exe") + " \"" + Source + "\" \"" + Made + "\" -l", 0);
    if (File_Exists(Made)) Take_Over(Made, Bgl);
    Bgl_Ended(Bgl, Has_Run);
    if (!Has_Run) Plain_Box("error during Scasm generation");
}

void Night_Write_All() {
    const Table<NLine> Tab_NLine = Sorted_Lines();
    NLines Rest = Tab_NLine.Rows();
    for (Long Nb_Night_Bgl = 1; !Rest.empty(); ++Nb_Night_Bgl) {
        const NLines Of_Area =
            Take_Run(Rest, [](const NLine& A, const NLine& B) { return A.Area() == B.Area(); });
        Source_File Out(Source_Path("TmpRt.Sca"));
        if (Out.Is_Open() && Write_Source(Out, Of_Area)) Compile(Out.Path(), Nb_Night_Bgl);
    }
}

}  // namespace

void Night_Lines_Generate() {
    if (Nb_Obj < First_Obj) return;
    Show_Stage("Night Lines", "BGLC.exe");
    const Work_Lists_Scope Lists;
    Line_Collect({.Takes = [](const Attr& A) { return Has_Line(A) && A.Line_Night != 0; },
                  .May_Close = [](const Attr& A) { return !Is_Coast(A); }});
    if (Nb_WPoly == 0 || !Can_Convert()) return;
    Line_Cut({.Grid = Grid_Lines_Of(Lines_By_Half_Lod10)});
    Night_Write_All();
}
