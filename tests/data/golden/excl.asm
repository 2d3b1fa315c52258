;--------------------------------------------------
;  Terrafold (Exclude) : Generated on 2003-10-04 12:00:00
;--------------------------------------------------
include TDFMacros.inc
include TDFHeaders.inc
BGLHeader 55, 53, -84, -40, TerrainHeaderStart, VTPHeader
VTPHeader   label   word
    VTPFileHeader 256, VTPIndexStart, TextureStart, VTPEnd
VTPStart        label   word
    datamark_v0 label   word
        VTPDataArea 1, 0, 3, 1
        VTPLayer 6, 1
        VTPNumTexturesInLayer 0, 0
        VTPDataArea 1, 0, 2, 2
        VTPLayer 1, 1
        VTPNumTexturesInLayer 0, 0
        VTPDataArea 3, 0, 31, 2
        VTPLayer 0, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 5, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 100, 1
        VTPNumTexturesInLayer 0, 0
    datamark_v1 label   word
        VTPDataArea 1, 0, 4, 8
        VTPLayer 2, 1
        VTPNumTexturesInLayer 0, 0
        VTPDataArea 2, 0, 4, 9
        VTPLayer 3, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 7, 1
        VTPNumTexturesInLayer 0, 0
    datamark_v2 label   word
;----------------------------------------------
Cellv_300_100    EQU  VTPCellID 0, 300, 100
Cellv_200_101    EQU  VTPCellID 0, 200, 101
;----------------------------------------------
    VTPIndexStart   label   word
    VTPIndexHeader 2, VTPIndexData, VTPStart
    VTPIndexData    label   word
    VTPIndexEntry Cellv_300_100, VTPStart, datamark_v0, datamark_v1
    VTPIndexEntry Cellv_200_101, VTPStart, datamark_v1, datamark_v2
;-----------------------------
TextureStart    label   word
    VTPTextureListHeader 1, TextureIndexStart, TextureDataStart, TextureDataEnd
TextureIndexStart   label   word
    VTPTextureListEntry TextureDataStart, texturemark_0, texturemark_1
TextureDataStart    label   word
    texturemark_0   label   word
        VTPTextureName "1162"
        VTPTextureType 2, 0, 0, 4
    texturemark_1   label   word
TextureDataEnd  label   word
; ------------------------------
VTPEnd      label   word
