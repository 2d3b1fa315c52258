;--------------------------------------------------
;  Terrafold (Exclude) : Generated on 2003-10-04 12:00:00
;--------------------------------------------------
include TDFMacros.inc
include TDFHeaders.inc
BGLHeader -35, -38, -13, -16, TerrainHeaderStart, VTPHeader
VTPHeader   label   word
    VTPFileHeader 256, VTPIndexStart, TextureStart, VTPEnd
VTPStart        label   word
    datamark_v0 label   word
        VTPDataArea 31, 0, 31, 13
        VTPLayer 10, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 11, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 12, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 13, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 14, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 15, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 16, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 17, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 18, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 19, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 20, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 21, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 22, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 23, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 24, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 25, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 26, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 27, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 28, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 29, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 30, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 31, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 32, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 33, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 34, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 35, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 36, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 37, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 38, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 39, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 40, 1
        VTPNumTexturesInLayer 0, 0
    datamark_v1 label   word
        VTPDataArea 2, 0, 0, 22
        VTPLayer 5, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 16, 1
        VTPNumTexturesInLayer 0, 0
        VTPDataArea 4, 0, 2, 31
        VTPLayer 0, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 5, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 16, 1
        VTPNumTexturesInLayer 0, 0
        VTPLayer 31, 1
        VTPNumTexturesInLayer 0, 0
    datamark_v2 label   word
;----------------------------------------------
Cellv_351_361    EQU  VTPCellID 0, 351, 361
Cellv_352_361    EQU  VTPCellID 0, 352, 361
;----------------------------------------------
    VTPIndexStart   label   word
    VTPIndexHeader 2, VTPIndexData, VTPStart
    VTPIndexData    label   word
    VTPIndexEntry Cellv_351_361, VTPStart, datamark_v0, datamark_v1
    VTPIndexEntry Cellv_352_361, VTPStart, datamark_v1, datamark_v2
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
