;--------------------------------------------------
;  Terrafold Polys VTP2 : Generated on 2003-10-04 12:00:00
;--------------------------------------------------
include TDFMacros.inc
include TDFHeaders.inc
BGLHeader -35, -38, -13, -16, TerrainHeaderStart, VTPHeader
VTPHeader   label   word
    VTPFileHeader 256, VTPIndexStart, TextureStart, VTPEnd
VTPStart        label   word
    datamark_v0 label   word
        VTPDataArea 2, 1, 31, 9
        VTPLayer 8, 0
        VTPNumTexturesInLayer 1, 0
           VTPTextureId  0, 0 
            VTPPolyCount 4, 0
;
;Pine wood
;
             VTPPolyMethod2 6, 0, 0
               VTPPointXY2 12240, 7982
               VTPPointXY2 12124, 7995
               VTPPointXY2 12006, 7982
               VTPPointXY2 11900, 7947
               VTPPointXY2 11805, 7902
               VTPPointXY2 12240, 7916
;
;Pine wood
;
             VTPPolyMethod2 5, 0, 0
               VTPPointXY2 11540, 7662
               VTPPointXY2 11498, 7591
               VTPPointXY2 11464, 7515
               VTPPointXY2 11493, 7439
               VTPPointXY2 11541, 7369
;
;Pine wood
;
             VTPPolyMethod2 7, 0, 0
               VTPPointXY2 12240, 7161
               VTPPointXY2 11723, 7181
               VTPPointXY2 11809, 7131
               VTPPointXY2 11902, 7086
               VTPPointXY2 12010, 7056
               VTPPointXY2 12125, 7039
               VTPPointXY2 12240, 7035
;
;Pine wood
;
             VTPPolyMethod2 11, 0, 0
               VTPPointXY2 12240, 7916
               VTPPointXY2 11805, 7902
               VTPPointXY2 11709, 7858
               VTPPointXY2 11617, 7808
               VTPPointXY2 11563, 7738
               VTPPointXY2 11540, 7662
               VTPPointXY2 11541, 7369
               VTPPointXY2 11574, 7296
               VTPPointXY2 11634, 7231
               VTPPointXY2 11723, 7181
               VTPPointXY2 12240, 7161
        VTPLayer 10, 0
        VTPNumTexturesInLayer 1, 0
           VTPTextureId  1, 0 
            VTPPolyCount 6, 0
;
;Fields
;
             VTPPolyMethod2 5, 0, 0
               VTPPointXY2 10486, 11436
               VTPPointXY2 10423, 11496
               VTPPointXY2 10357, 11557
               VTPPointXY2 10252, 11592
               VTPPointXY2 10124, 11594
;
;Fields
;
             VTPPolyMethod2 6, 0, 0
               VTPPointXY2 10014, 11602
               VTPPointXY2 9915, 11636
               VTPPointXY2 9805, 11666
               VTPPointXY2 9687, 11665
               VTPPointXY2 9574, 11646
               VTPPointXY2 9462, 11625
;
;Fields
;
             VTPPolyMethod2 8, 0, 0
               VTPPointXY2 9094, 11448
               VTPPointXY2 9020, 11388
               VTPPointXY2 8970, 11320
               VTPPointXY2 8965, 11245
               VTPPointXY2 8975, 11172
               VTPPointXY2 8999, 11103
               VTPPointXY2 9075, 11043
               VTPPointXY2 9172, 10999
;
;Fields
;
             VTPPolyMethod2 10, 0, 0
               VTPPointXY2 9236, 10952
               VTPPointXY2 9280, 10899
               VTPPointXY2 9342, 10851
               VTPPointXY2 9419, 10811
               VTPPointXY2 9507, 10780
               VTPPointXY2 9606, 10764
               VTPPointXY2 9706, 10760
               VTPPointXY2 9805, 10763
               VTPPointXY2 9899, 10776
               VTPPointXY2 9990, 10791
;
;Fields
;
             VTPPolyMethod2 5, 0, 0
               VTPPointXY2 10259, 10856
               VTPPointXY2 10365, 10880
               VTPPointXY2 10483, 10910
               VTPPointXY2 10559, 10965
               VTPPointXY2 10596, 11032
;
;Fields
;
             VTPPolyMethod2 20, 0, 0
               VTPPointXY2 10259, 10856
               VTPPointXY2 10596, 11032
               VTPPointXY2 10637, 11100
               VTPPointXY2 10662, 11172
               VTPPointXY2 10642, 11245
               VTPPointXY2 10600, 11313
               VTPPointXY2 10550, 11378
               VTPPointXY2 10486, 11436
               VTPPointXY2 10124, 11594
               VTPPointXY2 10014, 11602
               VTPPointXY2 9462, 11625
               VTPPointXY2 9345, 11604
               VTPPointXY2 9237, 11567
               VTPPointXY2 9159, 11510
               VTPPointXY2 9094, 11448
               VTPPointXY2 9172, 10999
               VTPPointXY2 9236, 10952
               VTPPointXY2 9990, 10791
               VTPPointXY2 10085, 10803
               VTPPointXY2 10175, 10825
    datamark_v1 label   word
        VTPDataArea 1, 1, 0, 9
        VTPLayer 8, 0
        VTPNumTexturesInLayer 1, 0
           VTPTextureId  0, 0 
            VTPPolyCount 5, 0
;
;Pine wood
;
             VTPPolyMethod2 5, 0, 0
               VTPPointXY2 4080, 7916
               VTPPointXY2 4288, 7923
               VTPPointXY2 4190, 7951
               VTPPointXY2 4082, 7981
               VTPPointXY2 4080, 7982
;
;Pine wood
;
             VTPPolyMethod2 4, 0, 0
               VTPPointXY2 4744, 7515
               VTPPointXY2 4748, 7583
               VTPPointXY2 4738, 7652
               VTPPointXY2 4703, 7719
;
;Pine wood
;
             VTPPolyMethod2 14, 0, 0
               VTPPointXY2 4080, 7161
               VTPPointXY2 4502, 7144
               VTPPointXY2 4594, 7187
               VTPPointXY2 4675, 7238
               VTPPointXY2 4718, 7307
               VTPPointXY2 4738, 7378
               VTPPointXY2 4745, 7448
               VTPPointXY2 4744, 7515
               VTPPointXY2 4703, 7719
               VTPPointXY2 4672, 7791
               VTPPointXY2 4626, 7864
               VTPPointXY2 4396, 7911
               VTPPointXY2 4288, 7923
               VTPPointXY2 4080, 7916
;
;Pine wood
;
             VTPPolyMethod2 3, 0, 0
               VTPPointXY2 4396, 7911
               VTPPointXY2 4626, 7864
               VTPPointXY2 4523, 7905
;
;Pine wood
;
             VTPPolyMethod2 7, 0, 0
               VTPPointXY2 4080, 7035
               VTPPointXY2 4082, 7035
               VTPPointXY2 4199, 7042
               VTPPointXY2 4313, 7059
               VTPPointXY2 4415, 7096
               VTPPointXY2 4502, 7144
               VTPPointXY2 4080, 7161
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
    VTPTextureListHeader 2, TextureIndexStart, TextureDataStart, TextureDataEnd
TextureIndexStart   label   word
    VTPTextureListEntry TextureDataStart, texturemark_0, texturemark_1
    VTPTextureListEntry TextureDataStart, texturemark_1, texturemark_2
TextureDataStart    label   word
    texturemark_0   label   word
        VTPTextureName "24"
        VTPTextureType 0, 0, 0, 0
    texturemark_1   label   word
        VTPTextureName "Fieldsu1.bmp;Fieldsu1.bmp;Fieldwi1.bmp"
        VTPTextureType 0, 0, 0, 4
    texturemark_2   label   word
TextureDataEnd  label   word
; ------------------------------
VTPEnd      label   word
