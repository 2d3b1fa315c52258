;--------------------------------------------------
;  Terrafold Polys VTP2 : Generated on 2003-10-04 12:00:00
;--------------------------------------------------
include TDFMacros.inc
include TDFHeaders.inc
BGLHeader 73, 70, -131, -134, TerrainHeaderStart, VTPHeader
VTPHeader   label   word
    VTPFileHeader 256, VTPIndexStart, TextureStart, VTPEnd
VTPStart        label   word
    datamark_v0 label   word
        VTPDataArea 2, 1, 4, 18
        VTPLayer 3, 0
        VTPNumTexturesInLayer 1, 0
           VTPTextureId  1, 0 
            VTPPolyCount 2, 0
;
;
;
             VTPPolyMethod2 4, 0, 0
               VTPPointXY2 4180, 4180
               VTPPointXY2 4240, 4180
               VTPPointXY2 4240, 4240
               VTPPointXY2 4180, 4240
;
;
;
             VTPPolyMethod2 4, 0, 0
               VTPPointXY2 4200, 4200
               VTPPointXY2 4220, 4200
               VTPPointXY2 4220, 4220
               VTPPointXY2 4200, 4220
        VTPLayer 4, 0
        VTPNumTexturesInLayer 1, 0
           VTPTextureId  0, 0 
            VTPPolyCount 2, 0
;
;field
;
             VTPPolyMethod2 4, 0, 0
               VTPPointXY2 12240, 4260
               VTPPointXY2 12200, 4260
               VTPPointXY2 12200, 4180
               VTPPointXY2 12240, 4180
;
;
;
             VTPPolyMethod2 4, 0, 0
               VTPPointXY2 4380, 4180
               VTPPointXY2 4440, 4180
               VTPPointXY2 4440, 4240
               VTPPointXY2 4380, 4240
    datamark_v1 label   word
        VTPDataArea 1, 1, 5, 18
        VTPLayer 4, 0
        VTPNumTexturesInLayer 1, 0
           VTPTextureId  0, 0 
            VTPPolyCount 1, 0
;
;field
;
             VTPPolyMethod2 4, 0, 0
               VTPPointXY2 4080, 4180
               VTPPointXY2 4120, 4180
               VTPPointXY2 4120, 4260
               VTPPointXY2 4080, 4260
    datamark_v2 label   word
        VTPDataArea 1, 1, 4, 19
        VTPLayer 4, 0
        VTPNumTexturesInLayer 1, 0
           VTPTextureId  2, 0 
            VTPPolyCount 1, 0
;
;
;
             VTPPolyMethod2 4, 0, 0
               VTPPointXY2 4180, 4180
               VTPPointXY2 4240, 4180
               VTPPointXY2 4240, 4240
               VTPPointXY2 4180, 4240
    datamark_v3 label   word
;----------------------------------------------
Cellv_100_50    EQU  VTPCellID 0, 100, 50
Cellv_101_50    EQU  VTPCellID 0, 101, 50
Cellv_100_51    EQU  VTPCellID 0, 100, 51
;----------------------------------------------
    VTPIndexStart   label   word
    VTPIndexHeader 3, VTPIndexData, VTPStart
    VTPIndexData    label   word
    VTPIndexEntry Cellv_100_50, VTPStart, datamark_v0, datamark_v1
    VTPIndexEntry Cellv_101_50, VTPStart, datamark_v1, datamark_v2
    VTPIndexEntry Cellv_100_51, VTPStart, datamark_v2, datamark_v3
;-----------------------------
TextureStart    label   word
    VTPTextureListHeader 3, TextureIndexStart, TextureDataStart, TextureDataEnd
TextureIndexStart   label   word
    VTPTextureListEntry TextureDataStart, texturemark_0, texturemark_1
    VTPTextureListEntry TextureDataStart, texturemark_1, texturemark_2
    VTPTextureListEntry TextureDataStart, texturemark_2, texturemark_3
TextureDataStart    label   word
    texturemark_0   label   word
        VTPTextureName "135"
        VTPTextureType 0, 0, 0, 0
    texturemark_1   label   word
        VTPTextureName "wood su.bmp;wood su.bmp;b.bmp"
        VTPTextureType 0, 0, 0, 4
    texturemark_2   label   word
        VTPTextureName "004b2su1.bmp"
        VTPTextureType 0, 0, 0, 4
    texturemark_3   label   word
TextureDataEnd  label   word
; ------------------------------
VTPEnd      label   word
