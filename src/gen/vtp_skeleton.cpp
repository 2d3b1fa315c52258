// gen/vtp_skeleton.cpp - the lines of a VTP source round the data of its Areas and textures.
#include "gen/source_frame.h"

namespace {

void Write_Data(Source_File& Out, Long Nb_Areas, const std::function<void(Long)>& Write_Area) {
    Out.Line("VTPHeader   label   word");
    Out.Line("    VTPFileHeader 256, VTPIndexStart, TextureStart, VTPEnd");
    Out.Line("VTPStart        label   word");
    Out.Line("    datamark_v0 label   word");
    for (Long I = 1; I <= Nb_Areas; ++I) {
        Write_Area(I);
        Out.Line("    datamark_v", I, " label   word");
    }
    Out.Line(";----------------------------------------------");
}

void Write_Index(Source_File& Out, std::span<const Vtp_Area> Areas) {
    for (const Vtp_Area& A : Areas)
        Out.Line("Cellv_", A.AreaLon, "_", A.AreaLat, "    EQU  VTPCellID 0, ", A.AreaLon, ", ",
                 A.AreaLat);
    Out.Line(";----------------------------------------------");
    Out.Line("    VTPIndexStart   label   word");
    Out.Line("    VTPIndexHeader ", static_cast<Long>(Areas.size()), ", VTPIndexData, VTPStart");
    Out.Line("    VTPIndexData    label   word");
    Long Mark = 0;
    for (const Vtp_Area& A : Areas) {
        Out.Line("    VTPIndexEntry Cellv_", A.AreaLon, "_", A.AreaLat, ", VTPStart, datamark_v",
                 Mark, ", datamark_v", Mark + 1);
        ++Mark;
    }
    Out.Line(";-----------------------------");
}

void Write_Textures(Source_File& Out, Long Nb, const std::function<void(Long)>& Write_Texture) {
    Out.Line("TextureStart    label   word");
    Out.Line("    VTPTextureListHeader ", Nb,
             ", TextureIndexStart, TextureDataStart, TextureDataEnd");
    Out.Line("TextureIndexStart   label   word");
    for (Long K = 1; K <= Nb; ++K)
        Out.Line("    VTPTextureListEntry TextureDataStart, texturemark_", K - 1, ", texturemark_",
                 K);
    Out.Line("TextureDataStart    label   word");
    Out.Line("    texturemark_0   label   word");
    for (Long K = 1; K <= Nb; ++K) {
        Write_Texture(K);
        Out.Line("    texturemark_", K, "   label   word");
    }
    Out.Line("TextureDataEnd  label   word");
    Out.Line("; ------------------------------");
    Out.Line("VTPEnd      label   word");
}

}  // namespace

void Vtp_Skeleton(Source_File& Out, std::span<const Vtp_Area> Areas,
                  const std::function<void(Long)>& Write_Area, Long Nb_Textures,
                  const std::function<void(Long)>& Write_Texture) {
    Write_Data(Out, static_cast<Long>(Areas.size()), Write_Area);
    Write_Index(Out, Areas);
    Write_Textures(Out, Nb_Textures, Write_Texture);
}
