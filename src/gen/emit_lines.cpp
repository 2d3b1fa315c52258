// gen/emit_lines.cpp - the text of the lines, Area by Area.
#include "gen/emit_lines.h"

#include <algorithm>
#include <vector>

#include "core/attr_kinds.h"
#include "gen/emitter.h"
#include "gen/line_length.h"
#include "gen/own_lines.h"
#include "gen/source_frame.h"
#include "gen/vlines.h"
#include "shapes/line/line_collect.h"
#include "shapes/line/line_cut.h"

namespace {

// A data area of the file holds at most this many layers, a layer this many blocks of lines, a
// block this many lines.
constexpr Long Max_Layers = 31;
constexpr Long Max_Blocks = 127;
constexpr Long Max_Lines = 127;

// The short form of a line's head has five bits for the number of points; lines with widths
// keep to one less.
constexpr Long Max_Short_Bare = 31;
constexpr Long Max_Short_Wide = 30;
constexpr Long Long_Form = 31;

// The point that begins a line with widths stands there twice more.
constexpr Long Width_Points = 2;

void Write_Point(Source_File& Out, VLinePt P, bool Ends) {
    Out.Line("               VTPWidePoint ", P.X, Ends ? ", 1, " : ", 0, ", P.Y, ", 0");
}

void Write_Head(Source_File& Out, Long Nb, Long Max_Short) {
    if (Nb <= Max_Short) {
        Out.Line("             VTPPolyMethod2 ", Nb, ", 1, 0");
    } else {
        Out.Line("             VTPPolyMethod2 ", Long_Form, ", 1, 0");
        Out.Line("             VTPPolyMethod2Ex ", Nb - Long_Form);
    }
}

void Write_Line(Source_File& Out, const VLine_Lists& V, const VLine& L) {
    const bool Wide = !Is_Bare_Line(*L.Attr);
    Out.Line(";");
    Out.Line(";", L.Attr->Text_Rt);
    Out.Line(";");
    if (Wide) {
        const VLinePt First = V.Points[L.First_Pt];
        Write_Head(Out, L.Nb_Pts + Width_Points, Max_Short_Wide);
        Write_Point(Out, First, true);
        Out.Line("               VTPWidePointWidth 1");
        Write_Point(Out, First, true);
        Out.Line("               VTPWidePointWidth ", L.Attr->Largeur);
    } else {
        Write_Head(Out, L.Nb_Pts, Max_Short_Bare);
    }
    for (Long I = L.First_Pt; I <= L.Last_Pt; ++I)
        Write_Point(Out, V.Points[I], Wide && I == L.Last_Pt);
    if (Wide) Out.Line("               VTPWidePointWidth 0");
}

// As many blocks as a group needs.
Long Nb_Blocks(const VLine_Lists::VGroup& G) {
    return (G.Last_Line - G.First_Line) / Max_Lines + 1;
}

void Write_Block(Source_File& Out, const VLine_Lists& V, Int Tex_Index, Long First, Long Last) {
    // This number alone keeps the blank of its sign.
    Out.Line("           VTPTextureId ", Str(Long{Tex_Index} - 1), ", 0 ");
    Out.Line("            VTPPolyCount ", Last - First + 1, ", 0");
    for (Long I = First; I <= Last; ++I) Write_Line(Out, V, V.Lines[I]);
}

void Write_Layer(Source_File& Out, const VLine_Lists& V, const VLine_Lists::VLayer& L) {
    Long Left = 0;
    for (Long G = L.First_Group; G <= L.Last_Group; ++G) Left += Nb_Blocks(V.Groups[G]);
    Left = std::min(Left, Max_Blocks);
    Out.Line("        VTPLayer ", L.Layer, ", 0");
    Out.Line("        VTPNumTexturesInLayer ", Left, ", 0");
    for (Long I = L.First_Group; I <= L.Last_Group; ++I) {
        const VLine_Lists::VGroup& G = V.Groups[I];
        for (Long First = G.First_Line; First <= G.Last_Line && Left > 0; First += Max_Lines) {
            Write_Block(Out, V, G.Tex_Index, First, std::min(First + Max_Lines - 1, G.Last_Line));
            --Left;
        }
    }
}

void Write_Area(Source_File& Out, const VLine_Lists& V, const VLine_Lists::VCell& C) {
    const Long Nb = std::min(C.Last_Layer - C.First_Layer + 1, Max_Layers);
    Out.Line("        VTPDataArea ", Nb, ", 1, ", static_cast<Long>(C.AreaLon % 32), ", ",
             static_cast<Long>(C.AreaLat % 32));
    for (Long L = C.First_Layer; L < C.First_Layer + Nb; ++L) Write_Layer(Out, V, V.Layers[L]);
}

void Write_Texture(Source_File& Out, const Own_Lines& Own, Int LineType) {
    if (FS_CFS == For_CFS) {
        Out.Line("        VTPTextureName \"", Own.Line_First_Texture(LineType), "\"");
        return;
    }
    if (LineType < First_Own_Line) {
        Out.Line("        VTPTextureName \"", LineType, "\"");
        Out.Line("        VTPTextureType 0, 0, 0, 0");
        return;
    }
    const Own_Line K = Own.Kind(LineType);
    const bool Has_Effect = !K.Effect.empty();
    Out.Line("        VTPTextureName \"", K.Textures, "\"");
    Out.Line("        VTPTextureType ", K.Type, ", ", Has_Effect ? "1" : "0", ", 0, ", K.Size);
    if (!Has_Effect) return;
    Out.Line("         BYTE \"", K.Effect, "\"");
    Out.Line("         BYTE 0");
}

bool Line_Write_Asm(const std::string& Path, const VLine_Lists& V) {
    Source_File Out(Path);
    if (!Out.Is_Open()) return false;
    const VLine_Lists::VCell& First = V.Cells[1];
    const VLine_Lists::VCell& Last = V.Cells[V.Cells.Nb()];
    Source_Frame(Out, ";  Terrafold Lines : Generated on ",
                 Limits_Of_Areas(First.AreaLon, First.AreaLat, Last.AreaLon, Last.AreaLat),
                 ", TerrainHeaderStart, VTPHeader");
    std::vector<Vtp_Area> Index;
    for (const auto& C : V.Cells.Rows()) Index.push_back({C.AreaLon, C.AreaLat});
    const Own_Lines Own;
    Vtp_Skeleton(
        Out, Index, [&](Long I) { Write_Area(Out, V, V.Cells[I]); }, V.Tex_List.Nb(),
        [&](Long K) { Write_Texture(Out, Own, V.Tex_List[K]); });
    return Out.Close();
}

// Whether the source has been written.
bool Convert(const std::string& Path) {
    const Work_Lists_Scope Lists;
    Line_Collect({.Takes = [](const Attr& A) { return Has_Line(A) && A.Vtp1_Line != 1; },
                  .May_Close = [](const Attr& A) { return !Is_Coast(A) && !Is_Bare_Line(A); },
                  .Has_Tags = true,
                  .Turns = true});
    if (Nb_WPoly == 0 || !Can_Convert()) return false;
    Line_Cut({.Grid = Grid_Lines_Of(Lines_By_Area),
              .Tags_Cuts = true,
              .Skips_Rows = Is_Bare_Line,
              .Fits = Bare_Line_Fits});
    Line_Limit_Length();
    return Line_Write_Asm(Path, VLine_Build());
}

}  // namespace

void ShoreLines_Generate() {
    if (Nb_Obj < First_Obj) return;
    Show_Stage("ShoreLines", "BGLC.exe");
    const std::string Source = Source_Path("Terrafold$_Lines.ASM");
    if (!Convert(Source)) return;
    Show_Stage(NameBgl, "lines : BGLC.exe");
    Compile_Source(Source, Bgl_Path("_9"), "BGLC.exe not found");
}
