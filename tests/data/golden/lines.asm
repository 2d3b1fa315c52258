;--------------------------------------------------
;  Terrafold Lines : Generated on 2003-10-04 12:00:00
;--------------------------------------------------
include TDFMacros.inc
include TDFHeaders.inc
BGLHeader 73, 71, -131, -134, TerrainHeaderStart, VTPHeader
VTPHeader   label   word
    VTPFileHeader 256, VTPIndexStart, TextureStart, VTPEnd
VTPStart        label   word
    datamark_v0 label   word
        VTPDataArea 2, 1, 4, 18
        VTPLayer 23, 0
        VTPNumTexturesInLayer 2, 0
           VTPTextureId  0, 0 
            VTPPolyCount 2, 0
;
;road
;
             VTPPolyMethod2 7, 1, 0
               VTPWidePoint 4180, 1, 4180, 0
               VTPWidePointWidth 1
               VTPWidePoint 4180, 1, 4180, 0
               VTPWidePointWidth 14
               VTPWidePoint 4180, 0, 4180, 0
               VTPWidePoint 4181, 0, 4180, 0
               VTPWidePoint 4480, 0, 4180, 0
               VTPWidePoint 12240, 0, 4375, 0
               VTPWidePoint 12241, 1, 4375, 0
               VTPWidePointWidth 0
;
;road
;
             VTPPolyMethod2 6, 1, 0
               VTPWidePoint 6080, 1, 6580, 0
               VTPWidePointWidth 1
               VTPWidePoint 6080, 1, 6580, 0
               VTPWidePointWidth 14
               VTPWidePoint 6080, 0, 6580, 0
               VTPWidePoint 6081, 0, 6580, 0
               VTPWidePoint 6179, 0, 6580, 0
               VTPWidePoint 6180, 1, 6580, 0
               VTPWidePointWidth 0
           VTPTextureId  1, 0 
            VTPPolyCount 1, 0
;
;
;
             VTPPolyMethod2 2, 1, 0
               VTPWidePoint 4580, 0, 4580, 0
               VTPWidePoint 4680, 0, 12740, 0
        VTPLayer 32, 0
        VTPNumTexturesInLayer 2, 0
           VTPTextureId  2, 0 
            VTPPolyCount 1, 0
;
;
;
             VTPPolyMethod2 6, 1, 0
               VTPWidePoint 6180, 1, 6380, 0
               VTPWidePointWidth 1
               VTPWidePoint 6180, 1, 6380, 0
               VTPWidePointWidth 64
               VTPWidePoint 6180, 0, 6380, 0
               VTPWidePoint 6180, 0, 6379, 0
               VTPWidePoint 6180, 0, 6080, 0
               VTPWidePoint 6080, 1, 6080, 0
               VTPWidePointWidth 0
           VTPTextureId  3, 0 
            VTPPolyCount 1, 0
;
;
;
             VTPPolyMethod2 8, 1, 0
               VTPWidePoint 5080, 1, 5080, 0
               VTPWidePointWidth 1
               VTPWidePoint 5080, 1, 5080, 0
               VTPWidePointWidth 64
               VTPWidePoint 5080, 0, 5080, 0
               VTPWidePoint 5081, 0, 5080, 0
               VTPWidePoint 5280, 0, 5080, 0
               VTPWidePoint 5280, 0, 5280, 0
               VTPWidePoint 5081, 0, 5081, 0
               VTPWidePoint 5080, 1, 5080, 0
               VTPWidePointWidth 0
    datamark_v1 label   word
        VTPDataArea 1, 1, 5, 18
        VTPLayer 23, 0
        VTPNumTexturesInLayer 1, 0
           VTPTextureId  0, 0 
            VTPPolyCount 1, 0
;
;road
;
             VTPPolyMethod2 6, 1, 0
               VTPWidePoint 4079, 1, 4374, 0
               VTPWidePointWidth 1
               VTPWidePoint 4079, 1, 4374, 0
               VTPWidePointWidth 14
               VTPWidePoint 4079, 0, 4374, 0
               VTPWidePoint 4080, 0, 4375, 0
               VTPWidePoint 4279, 0, 4379, 0
               VTPWidePoint 4280, 1, 4380, 0
               VTPWidePointWidth 0
    datamark_v2 label   word
;----------------------------------------------
Cellv_100_50    EQU  VTPCellID 0, 100, 50
Cellv_101_50    EQU  VTPCellID 0, 101, 50
;----------------------------------------------
    VTPIndexStart   label   word
    VTPIndexHeader 2, VTPIndexData, VTPStart
    VTPIndexData    label   word
    VTPIndexEntry Cellv_100_50, VTPStart, datamark_v0, datamark_v1
    VTPIndexEntry Cellv_101_50, VTPStart, datamark_v1, datamark_v2
;-----------------------------
TextureStart    label   word
    VTPTextureListHeader 4, TextureIndexStart, TextureDataStart, TextureDataEnd
TextureIndexStart   label   word
    VTPTextureListEntry TextureDataStart, texturemark_0, texturemark_1
    VTPTextureListEntry TextureDataStart, texturemark_1, texturemark_2
    VTPTextureListEntry TextureDataStart, texturemark_2, texturemark_3
    VTPTextureListEntry TextureDataStart, texturemark_3, texturemark_4
TextureDataStart    label   word
    texturemark_0   label   word
        VTPTextureName "1134"
        VTPTextureType 0, 0, 0, 0
    texturemark_1   label   word
        VTPTextureName "1213"
        VTPTextureType 0, 0, 0, 0
    texturemark_2   label   word
        VTPTextureName "1024"
        VTPTextureType 0, 0, 0, 0
    texturemark_3   label   word
        VTPTextureName "ShoreSU.bmp"
        VTPTextureType 2, 1, 0, 4
         BYTE "fx_surf"
         BYTE 0
    texturemark_4   label   word
TextureDataEnd  label   word
; ------------------------------
VTPEnd      label   word
