// gen/emit_vtp2_poly.cpp - the text of the textured polygons, Area by Area.
#include "gen/emit_vtp2_poly.h"

#include <algorithm>
#include <vector>

#include "core/attr_kinds.h"
#include "core/host.h"
#include "gen/emitter.h"
#include "gen/source_frame.h"
#include "gen/vtp2_lists.h"
#include "shapes/poly/poly_prepare.h"

namespace {

// A data area of the file holds at most this many layers; the lowest win.
constexpr Long Max_Layers = 31;

// The short form of a polygon's line has five bits for the number of points.
constexpr Long Max_Short_Poly = 30;

void Write_Polygon(Source_File& Out, const CPoly& P) {
    Out.Line(";");
    Out.Line(";", P.Attr->Text_Rt);
    Out.Line(";");
    if (P.Nb <= Max_Short_Poly) {
        Out.Line("             VTPPolyMethod2 ", P.Nb, ", 0, 0");
    } else {
        Out.Line("             VTPPolyMethod2 ", Max_Short_Poly + 1, ", 0, 1");
        Out.Line("             VTPPolyMethod2Ex ", P.Nb - (Max_Short_Poly + 1));
    }
    for (Long I = P.First; I <= P.Last; ++I)
        Out.Line("               VTPPointXY2 ", Tab_CPt[I].LocX, ", ", Tab_CPt[I].LocY);
}

void Write_Group(Source_File& Out, Long Tex_Index, const VGroup& G) {
    // This number alone keeps the blank of its sign.
    Out.Line("           VTPTextureId ", Str(Tex_Index - 1), ", 0 ");
    Out.Line("            VTPPolyCount ", G.Last - G.First + 1, ", 0");
    for (Long I = G.First; I <= G.Last; ++I) Write_Polygon(Out, Tab_CPoly[I]);
}

// There are no more groups in a layer than group numbers, and those have been counted.
void Write_Layer(Source_File& Out, const Vtp2_Lists& V, const VLayer& L) {
    Check(L.Nb_Group <= Max_Textures, "the groups of a layer can be counted");
    Out.Line("        VTPLayer ", L.Layer_Vtp2, ", 0");
    Out.Line("        VTPNumTexturesInLayer ", L.Nb_Group, ", 0");
    for (Long T = L.First; T <= L.Last; ++T)
        for (Long G = V.Texs[T].First; G <= V.Texs[T].Last; ++G)
            Write_Group(Out, V.Texs[T].Tex_Index, V.Groups[G]);
}

void Write_Area(Source_File& Out, const Vtp2_Lists& V, const VArea& A) {
    for (Long C = A.First; C <= A.Last; ++C) {
        const VCell& Cell = V.Cells[C];
        const Long Nb = std::min(Cell.Last - Cell.First + 1, Max_Layers);
        Out.Line("        VTPDataArea ", Nb, ", 1, ", static_cast<Long>(A.AreaLon % 32), ", ",
                 static_cast<Long>(A.AreaLat % 32));
        for (Long L = Cell.First; L < Cell.First + Nb; ++L) Write_Layer(Out, V, V.Layers[L]);
    }
}

void Write_Texture(Source_File& Out, const Tex& T) {
    if (T.LandClass == 0) {
        Out.Line("        VTPTextureName \"", T.LC, "\"");
        Out.Line("        VTPTextureType 0, 0, 0, 0");
    } else {
        Out.Line("        VTPTextureName \"", T.Name, "\"");
        Out.Line("        VTPTextureType 0, 0, 0, ", T.Tex_Type);
    }
}

bool Write_Source(const std::string& Path, const Vtp2_Lists& V, const Table<Tex>& Textures) {
    Source_File Out(Path);
    if (!Out.Is_Open()) return false;
    const VArea& First = V.Areas[1];
    const VArea& Last = V.Areas[V.Areas.Nb()];
    Source_Frame(Out, ";  Terrafold Polys VTP2 : Generated on ",
                 Limits_Of_Areas(First.AreaLon, First.AreaLat, Last.AreaLon, Last.AreaLat),
                 ", TerrainHeaderStart, VTPHeader");
    std::vector<Vtp_Area> Index;
    for (const VArea& A : V.Areas.Rows()) Index.push_back({A.AreaLon, A.AreaLat});
    Vtp_Skeleton(
        Out, Index, [&](Long I) { Write_Area(Out, V, V.Areas[I]); }, Textures.Nb(),
        [&](Long K) { Write_Texture(Out, Textures[K]); });
    return Out.Close();
}

// Whether there are pieces to write.
bool Prepare_Pieces() {
    if (!Any_Polygon(Technique_VTP2) || !Can_Convert()) return false;
    Poly_Prepare(Mode_VTP2);
    if (Has_Imbric == 0 && Has_Auto == 0) return false;
    Poly_To_Cells(Mode_VTP2);
    return Nb_CPoly != 0;
}

// Whether the source has been written.
bool Convert(const std::string& Path) {
    const Work_Lists_Scope Lists;
    if (!Prepare_Pieces()) return false;
    Tex_List Textures;
    Vtp2_Sort(Textures);
    if (Vtp2_Overflow(Textures.Tab_Tex().Nb()) > Max_Textures) {
        Plain_Box("More than 127 generated textures in VTP2 polys, please create an other project");
        return false;
    }
    return Write_Source(Path, Vtp2_Nest(), Textures.Tab_Tex());
}

}  // namespace

void Emit_VTP2_Poly() {
    const std::string Bgl = Bgl_Path("_5");
    Show_Stage(Bgl, "VTP2 Polygons : BGLC.exe");
    const Hourglass Busy;
    const std::string Source = Source_Path("Terrafold$_VTP2.ASM");
    if (!Convert(Source)) return;
    Show_Stage(Bgl, "VTP2 Polys : BGLC.exe");
    Compile_Source(Source, Bgl, "BGLC.exe not found");
}
