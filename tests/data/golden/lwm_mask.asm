;--------------------------------------------------
;  Terrafold : LWM Generated on 2003-10-04 12:00:00
;--------------------------------------------------
include TDFMacros.inc
include TDFHeaders.inc
BGLHeader 73, 70, -131, -134, LWMHeader , TerrainHeaderStart
LWMHeader   label   word
    LWMFileHeader 513, LWMIndexStart, LWMStart, LWMEnd
LWMStart    label   word
    datamark_0  label   word
      LWMDataAreaFill4x4        0,1,0,1,0,0,0
      LWMDataAreaFill4x4        0,1,0,1,1,0,0
      LWMDataAreaFill4x4        0,1,0,1,2,0,0
      LWMDataAreaFill4x4        0,1,0,1,3,0,0
      LWMDataAreaFill4x4        0,1,0,1,4,0,0
      LWMDataAreaFill4x4        0,1,0,1,5,0,0
      LWMDataAreaFill4x4        0,1,0,1,6,0,0
      LWMDataAreaFill4x4        0,1,0,1,7,0,0
      LWMDataAreaFill1x1        0,1,1,0,4
      LWMDataAreaFill1x1        0,1,1,1,4
      LWMDataAreaFill1x1        0,1,1,2,4
      LWMDataAreaFill1x1        0,1,1,3,4
      LWMDataAreaFill1x1        0,1,1,4,4
      LWMDataAreaFill1x1        0,1,1,5,4
      LWMDataAreaFill1x1        0,1,1,6,4
      LWMDataAreaFill1x1        0,1,1,7,4
      LWMDataAreaFill1x1        0,1,1,8,4
      LWMDataAreaFill1x1        0,1,1,9,4
      LWMDataAreaFill1x1        0,1,1,10,4
      LWMDataAreaFill1x1        0,1,1,11,4
      LWMDataAreaFill1x1        0,1,1,12,4
      LWMDataAreaFill1x1        0,1,1,13,4
      LWMDataAreaFill1x1        0,1,1,14,4
      LWMDataAreaFill1x1        0,1,1,15,4
      LWMDataAreaFill1x1        0,1,1,16,4
      LWMDataAreaFill1x1        0,1,1,17,4
      LWMDataAreaFill1x1        0,1,1,18,4
      LWMDataAreaFill1x1        0,1,1,19,4
      LWMDataAreaFill1x1        0,1,1,20,4
      LWMDataAreaFill1x1        0,1,1,21,4
      LWMDataAreaFill1x1        0,1,1,22,4
      LWMDataAreaFill1x1        0,1,1,23,4
      LWMDataAreaFill1x1        0,1,1,24,4
      LWMDataAreaFill1x1        0,1,1,25,4
      LWMDataAreaFill1x1        0,1,1,26,4
      LWMDataAreaFill1x1        0,1,1,27,4
      LWMDataAreaFill1x1        0,1,1,28,4
      LWMDataAreaFill1x1        0,1,1,29,4
      LWMDataAreaFill1x1        0,1,1,30,4
      LWMDataAreaFill1x1        0,1,1,31,4
      LWMDataAreaFill1x1        0,1,1,0,5
      LWMDataAreaFill1x1        0,1,1,1,5
      LWMDataAreaFill1x1        0,1,1,2,5
        LWMDataAreaDrawPolygons 1,3,1,3,5
; 
; Lac Léman
; 
          LWMPoly2   4,0,0,372,32
            LWMPoint 255,255
            LWMPoint 155,255
            LWMPoint 155,155
            LWMPoint 255,155
        LWMDataAreaDrawPolygons 1,3,1,4,5
; 
; Lac Léman
; 
          LWMPoly2   4,0,0,372,32
            LWMPoint 0,155
            LWMPoint 100,155
            LWMPoint 100,255
            LWMPoint 0,255
      LWMDataAreaFill1x1        0,1,1,5,5
      LWMDataAreaFill1x1        0,1,1,6,5
      LWMDataAreaFill1x1        0,1,1,7,5
      LWMDataAreaFill1x1        0,1,1,8,5
      LWMDataAreaFill1x1        0,1,1,9,5
      LWMDataAreaFill1x1        0,1,1,10,5
      LWMDataAreaFill1x1        0,1,1,11,5
      LWMDataAreaFill1x1        0,1,1,12,5
      LWMDataAreaFill1x1        0,1,1,13,5
      LWMDataAreaFill1x1        0,1,1,14,5
      LWMDataAreaFill1x1        0,1,1,15,5
      LWMDataAreaFill1x1        0,1,1,16,5
      LWMDataAreaFill1x1        0,1,1,17,5
      LWMDataAreaFill1x1        0,1,1,18,5
      LWMDataAreaFill1x1        0,1,1,19,5
      LWMDataAreaFill1x1        0,1,1,20,5
      LWMDataAreaFill1x1        0,1,1,21,5
      LWMDataAreaFill1x1        0,1,1,22,5
      LWMDataAreaFill1x1        0,1,1,23,5
      LWMDataAreaFill1x1        0,1,1,24,5
      LWMDataAreaFill1x1        0,1,1,25,5
      LWMDataAreaFill1x1        0,1,1,26,5
      LWMDataAreaFill1x1        0,1,1,27,5
      LWMDataAreaFill1x1        0,1,1,28,5
      LWMDataAreaFill1x1        0,1,1,29,5
      LWMDataAreaFill1x1        0,1,1,30,5
      LWMDataAreaFill1x1        0,1,1,31,5
      LWMDataAreaFill1x1        0,1,1,0,6
      LWMDataAreaFill1x1        0,1,1,1,6
      LWMDataAreaFill1x1        0,1,1,2,6
        LWMDataAreaDrawPolygons 1,3,1,3,6
; 
; Lac Léman
; 
          LWMPoly2   4,0,0,372,32
            LWMPoint 255,100
            LWMPoint 155,100
            LWMPoint 155,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,4,6
; 
; shore
; 
          LWMPoly2   3,0,0,-1,64
            LWMPoint 26,255
            LWMPoint 130,100
            LWMPoint 204,255
        LWMDataAreaDrawPolygons 2,0,1,4,6
; 
; Lac Léman
; 
          LWMPoly2   4,0,0,372,32
            LWMPoint 0,0
            LWMPoint 100,0
            LWMPoint 100,100
            LWMPoint 0,100
; 
; 
; 
          LWMPoly2   3,0,1,-9999,0
            LWMPoint 20,20
            LWMPoint 50,20
            LWMPoint 20,60
      LWMDataAreaFill1x1        0,1,1,5,6
      LWMDataAreaFill1x1        0,1,1,6,6
      LWMDataAreaFill1x1        0,1,1,7,6
      LWMDataAreaFill1x1        0,1,1,8,6
      LWMDataAreaFill1x1        0,0,1,9,6
      LWMDataAreaHeight        123,32
      LWMDataAreaFill1x1        0,1,1,10,6
      LWMDataAreaFill1x1        0,1,1,11,6
      LWMDataAreaFill1x1        0,1,1,12,6
      LWMDataAreaFill1x1        0,1,1,13,6
      LWMDataAreaFill1x1        0,1,1,14,6
      LWMDataAreaFill1x1        0,1,1,15,6
      LWMDataAreaFill1x1        0,1,1,16,6
      LWMDataAreaFill1x1        0,1,1,17,6
      LWMDataAreaFill1x1        0,1,1,18,6
      LWMDataAreaFill1x1        0,1,1,19,6
      LWMDataAreaFill1x1        0,1,1,20,6
      LWMDataAreaFill1x1        0,1,1,21,6
      LWMDataAreaFill1x1        0,1,1,22,6
      LWMDataAreaFill1x1        0,1,1,23,6
      LWMDataAreaFill1x1        0,1,1,24,6
      LWMDataAreaFill1x1        0,1,1,25,6
      LWMDataAreaFill1x1        0,1,1,26,6
      LWMDataAreaFill1x1        0,1,1,27,6
      LWMDataAreaFill1x1        0,1,1,28,6
      LWMDataAreaFill1x1        0,1,1,29,6
      LWMDataAreaFill1x1        0,1,1,30,6
      LWMDataAreaFill1x1        0,1,1,31,6
      LWMDataAreaFill1x1        0,1,1,0,7
      LWMDataAreaFill1x1        0,1,1,1,7
      LWMDataAreaFill1x1        0,1,1,2,7
      LWMDataAreaFill1x1        0,1,1,3,7
      LWMDataAreaFill1x1        0,1,1,4,7
      LWMDataAreaFill1x1        0,1,1,5,7
      LWMDataAreaFill1x1        0,1,1,6,7
      LWMDataAreaFill1x1        0,1,1,7,7
      LWMDataAreaFill1x1        0,1,1,8,7
      LWMDataAreaFill1x1        0,1,1,9,7
      LWMDataAreaFill1x1        0,1,1,10,7
      LWMDataAreaFill1x1        0,1,1,11,7
      LWMDataAreaFill1x1        0,1,1,12,7
      LWMDataAreaFill1x1        0,1,1,13,7
      LWMDataAreaFill1x1        0,1,1,14,7
      LWMDataAreaFill1x1        0,1,1,15,7
      LWMDataAreaFill1x1        0,1,1,16,7
      LWMDataAreaFill1x1        0,1,1,17,7
      LWMDataAreaFill1x1        0,1,1,18,7
      LWMDataAreaFill1x1        0,1,1,19,7
      LWMDataAreaFill1x1        0,1,1,20,7
      LWMDataAreaFill1x1        0,1,1,21,7
      LWMDataAreaFill1x1        0,1,1,22,7
      LWMDataAreaFill1x1        0,1,1,23,7
      LWMDataAreaFill1x1        0,1,1,24,7
      LWMDataAreaFill1x1        0,1,1,25,7
      LWMDataAreaFill1x1        0,1,1,26,7
      LWMDataAreaFill1x1        0,1,1,27,7
      LWMDataAreaFill1x1        0,1,1,28,7
      LWMDataAreaFill1x1        0,1,1,29,7
      LWMDataAreaFill1x1        0,1,1,30,7
      LWMDataAreaFill1x1        0,1,1,31,7
      LWMDataAreaFill8x8        0,1,0,1,0,0,1
      LWMDataAreaFill8x8        0,1,0,1,1,0,1
      LWMDataAreaFill8x8        0,1,0,1,2,0,1
      LWMDataAreaFill8x8        0,1,0,1,3,0,1
      LWMDataAreaFill16x16        0,1,0,1,0,0,1
      LWMDataAreaFill16x16        0,1,0,1,1,0,1
    datamark_1  label   word
      LWMDataAreaFill1x1        0,2,1,31,0
      LWMDataAreaHeight        -9999,0
    datamark_2  label   word
    datamark_3  label   word
;-----------------------------------------
    Cell_100_50    EQU    LWMCellID 0,0,3,100,50
    Cell_101_50    EQU    LWMCellID 0,0,3,101,50
    Cell_101_51    EQU    LWMCellID 0,0,2,101,51
    LWMIndexStart       Label   Word
         LWMIndexHeader 3,LWMIndexData
    LWMIndexData       Label   Word
        LWMIndexEntry   Cell_100_50,LWMStart,datamark_0,datamark_1
        LWMIndexEntry   Cell_101_50,LWMStart,datamark_1,datamark_2
        LWMIndexEntry   Cell_101_51,LWMStart,LWMStart,LWMStart
LWMEnd          Label   Word
