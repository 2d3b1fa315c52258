;--------------------------------------------------
;  Terrafold (Exclude) : Generated on 2003-10-04 12:00:00
;--------------------------------------------------
include TDFMacros.inc
include TDFHeaders.inc
BGLHeader 90, 88, -178, -180, TerrainHeaderStart, VTPHeader
VTPHeader   label   word
    VTPFileHeader 256, VTPIndexStart, TextureStart, VTPEnd
VTPStart        label   word
    datamark_v0 label   word
        VTPDataArea 1, 0, 0, 0
        VTPLayer 1, 1
        VTPNumTexturesInLayer 0, 0
    datamark_v1 label   word
;----------------------------------------------
Cellv_0_0    EQU  VTPCellID 0, 0, 0
;----------------------------------------------
    VTPIndexStart   label   word
    VTPIndexHeader 1, VTPIndexData, VTPStart
    VTPIndexData    label   word
    VTPIndexEntry Cellv_0_0, VTPStart, datamark_v0, datamark_v1
;-----------------------------
TextureStart    label   word
    VTPTextureListHeader 1, TextureIndexStart, TextureDataStart, TextureDataEnd
TextureIndexStart   label   word
    VTPTextureListEntry TextureDataStart, texturemark_0, texturemark_1
TextureDataStart    label   word
    texturemark_0   label   word
        VTPTextureName "1162"
    texturemark_1   label   word
TextureDataEnd  label   word
; ------------------------------
VTPEnd      label   word
