// gen/emit_lwm_poly.cpp - the text of the mask: fills and lists of pieces, block by block.
#include "gen/emit_lwm_poly.h"

#include <vector>

#include "core/attr_kinds.h"
#include "core/host.h"
#include "gen/coast_generate.h"
#include "gen/emit_lines.h"
#include "gen/emitter.h"
#include "gen/lwm_blocks.h"
#include "gen/lwm_text.h"
#include "gen/source_frame.h"
#include "grid/terrain_grid.h"
#include "shapes/poly/poly_prepare.h"

namespace {

// Mask value of a list that draws on whatever lies below it.
constexpr Int Mask_Polygon = 3;

// The short form of a polygon's line has six bits for the number of points.
constexpr Long Max_Short_Poly = 62;

/// Writes blocks, and knows whether anything came of them.
struct Block_Writer {
    Source_File& Out;
    const Table<LCell>& Cells;
    bool Wrote = false;

    void Write(const LSub& B);

private:
    void Write_Fill(const LSub& B);
    void Write_Coasts(const LCell& C);
    void Write_Polygons(const LCell& C);
};

void Write_Head(Source_File& Out, Long Nb, Int Attrib, Double Alti) {
    if (FS_CFS == For_CFS) {
        Out.Line("          LWMPoly1 ", Nb, ",0,", Attrib);
        if (Nb > Max_Short_Poly) Plain_Box("LWM poly/CFS : more than 62 points");
        return;
    }
    const Height H = Height_Pair(Alti);
    if (Nb <= Max_Short_Poly)
        Out.Line("          LWMPoly2   ", Nb, ",0,", Attrib, ",", H.H_Int, ",", H.H_Frac);
    else
        Out.Line("          LWMPoly2Ex ", Max_Short_Poly + 1, ",0,", Attrib, ",", H.H_Int, ",",
                 H.H_Frac, ",", Nb - (Max_Short_Poly + 1));
}

void Write_Piece(Source_File& Out, const CPoly& P, const Table<CPt>& Points, Int Attrib,
                 Double Alti) {
    Out.Line("; ");
    Out.Line("; ", P.Attr->Text_Rt);
    Out.Line("; ");
    Write_Head(Out, P.Nb, Attrib, Alti);
    for (Long I = P.First; I <= P.Last; ++I) Lwm_Point(Out, Points[I].LocX, Points[I].LocY);
}

void Block_Writer::Write_Fill(const LSub& B) {
    Wrote = true;
    const char* Gap = B.Size > 1 ? "0," : "";
    Out.Line("      LWMDataAreaFill", B.Size, "x", B.Size, "        0,", B.Fill, ",", Gap, "1,",
             B.SubX, ",", Gap, B.SubY);
    if (FS_CFS != For_FS || B.Size != 1 || B.Cell_Ix == -1 || B.Fill == Fill_Land) return;
    const Height H = Height_Pair(Cells[B.Cell_Ix].Alti);
    Out.Line("      LWMDataAreaHeight        ", H.H_Int, ",", H.H_Frac);
}

void Block_Writer::Write_Coasts(const LCell& C) {
    Wrote = true;
    Lwm_List_Line(Out, C.Last_Coast - C.First_Coast + 1, Mask_Polygon, C);
    for (Long I = C.First_Coast; I <= C.Last_Coast; ++I)
        Write_Piece(Out, Tab_CCoast[I], Tab_CCoastPt, 0, Tab_CCoast[I].Attr->Alt_Coast);
}

void Block_Writer::Write_Polygons(const LCell& C) {
    Wrote = true;
    const Int Mask = C.InvertMask == 1 ? C.InvertMaskValue : Mask_Polygon;
    Lwm_List_Line(Out, C.Last_Poly - C.First_Poly + 1, Mask, C);
    for (Long I = C.First_Poly; I <= C.Last_Poly; ++I) {
        const CPoly& P = Tab_CPoly[I];
        Write_Piece(Out, P, Tab_CPt, P.Attr->Attrib, P.Attr->Alti);
    }
}

// Coasts come first: polygons are drawn over them.
void Block_Writer::Write(const LSub& B) {
    if (B.Fill != Fill_Nothing) Write_Fill(B);
    if (B.Size != 1 || B.Cell_Ix == -1) return;
    const LCell& C = Cells[B.Cell_Ix];
    if (C.Has_Coast != 0) Write_Coasts(C);
    if (C.Has_Poly != 0) Write_Polygons(C);
}

// Whether a data block holds anything.
bool Write_Data(Source_File& Out, const Lwm_Lists& Lists) {
    std::vector<Lwm_Area> Index;
    for (const LArea& A : Lists.Areas.Rows())
        Index.push_back({A.AreaLon, A.AreaLat, A.Attrib, A.Has_Data});
    Block_Writer Writer{.Out = Out, .Cells = Lists.Cells};
    std::vector<LSub> Blocks;
    const auto Write_Area = [&](Long I) {
        Lwm_Blocks(Lists.Areas[I], Lists.Cells, Blocks);
        for (const LSub& B : Blocks) Writer.Write(B);
    };
    Lwm_Skeleton(Out, FS_CFS == For_CFS ? Lwm_Version_CFS : Lwm_Version_FS, Index, Write_Area);
    return Writer.Wrote;
}

enum class Source_End { Failed, No_Data, Has_Data };

Source_End Write_Source(const std::string& Path) {
    const Lwm_Lists Lists = Lwm_Collect();
    Source_File Out(Path);
    if (!Out.Is_Open()) return Source_End::Failed;
    Source_Frame(Out, ";  Terrafold : LWM Generated on ", Limits_Of_Project(),
                 ", LWMHeader , TerrainHeaderStart");
    const bool Has_Data = Write_Data(Out, Lists);
    if (!Out.Close()) return Source_End::Failed;
    return Has_Data ? Source_End::Has_Data : Source_End::No_Data;
}

// Refused polygons leave Tab_CPoly empty.
void Prepare_Polygons() {
    if (!Any_Polygon(Technique_LWM)) return;
    Poly_Prepare(Mode_LWM);
    if (Has_Imbric != 0 || Has_Auto != 0) Poly_To_Cells(Mode_LWM);
}

Source_End Convert(const std::string& Path) {
    const Work_Lists_Scope Lists;
    if ((Any_Coast() || Any_Polygon(Technique_LWM)) && !Can_Convert()) return Source_End::Failed;
    Coast_Generate();
    The_Host().Set_Caption("LCompile", "LWM Polygons : BGLC.exe");
    The_Host().Refresh();
    Prepare_Polygons();
    return Write_Source(Path);
}

}  // namespace

void Emit_LWM_Poly() {
    const std::string Bgl = Bgl_Path("_3");
    The_Host().Set_Caption("LCompileNom", Bgl);
    const Hourglass Busy;
    const std::string Source = Source_Path("Terrafold$_Poly_LWM.asm");
    const Source_End End = Convert(Source);
    if (End == Source_End::Failed) return;
    if (End == Source_End::Has_Data && !Compile_Source(Source, Bgl, "pb Terrafold generation 2"))
        return;
    ShoreLines_Generate();
}
