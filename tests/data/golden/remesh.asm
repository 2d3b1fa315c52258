;--------------------------------------------------
;  Terrafold : ReMesh LWM Generated on 2003-10-04 12:00:00
;--------------------------------------------------
include TDFMacros.inc
include TDFHeaders.inc
BGLHeader 73, 70, -131, -134, LWMHeader , TerrainHeaderStart
LWMHeader   label   word
    LWMFileHeader 513, LWMIndexStart, LWMStart, LWMEnd
LWMStart    label   word
    datamark_0  label   word
        LWMDataAreaDrawPolygons 4,3,1,0,0
          LWMPoly2   2,0,1,2,0
            LWMPoint 100,20
            LWMPoint 100,20
          LWMPoly2   2,0,1,11,0
            LWMPoint 100,20
            LWMPoint 100,20
          LWMPoly2   2,0,1,3,0
            LWMPoint 100,90
            LWMPoint 100,90
          LWMPoly2   2,0,1,-3,64
            LWMPoint 200,90
            LWMPoint 200,90
        LWMDataAreaDrawPolygons 1,3,1,0,1
          LWMPoly2   2,0,1,5,0
            LWMPoint 10,10
            LWMPoint 10,10
    datamark_1  label   word
        LWMDataAreaDrawPolygons 1,3,1,0,0
          LWMPoly2   2,0,1,7,32
            LWMPoint 30,40
            LWMPoint 30,40
    datamark_2  label   word
        LWMDataAreaDrawPolygons 1,3,1,0,3
          LWMPoly2   2,0,1,9,0
            LWMPoint 10,0
            LWMPoint 10,0
    datamark_3  label   word
;-----------------------------------------
    Cell_100_50    EQU    LWMCellID 0,0,3,100,50
    Cell_101_50    EQU    LWMCellID 0,0,3,101,50
    Cell_100_51    EQU    LWMCellID 0,0,3,100,51
    LWMIndexStart       Label   Word
         LWMIndexHeader 3,LWMIndexData
    LWMIndexData       Label   Word
        LWMIndexEntry   Cell_100_50,LWMStart,datamark_0,datamark_1
        LWMIndexEntry   Cell_101_50,LWMStart,datamark_1,datamark_2
        LWMIndexEntry   Cell_100_51,LWMStart,datamark_2,datamark_3
LWMEnd          Label   Word
