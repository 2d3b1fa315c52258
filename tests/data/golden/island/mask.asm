;--------------------------------------------------
;  Terrafold : LWM Generated on 2003-10-04 12:00:00
;--------------------------------------------------
include TDFMacros.inc
include TDFHeaders.inc
BGLHeader -35, -38, -13, -16, LWMHeader , TerrainHeaderStart
LWMHeader   label   word
    LWMFileHeader 513, LWMIndexStart, LWMStart, LWMEnd
LWMStart    label   word
    datamark_0  label   word
      LWMDataAreaFill16x16        0,0,0,1,0,0,0
      LWMDataAreaFill16x16        0,0,0,1,1,0,0
      LWMDataAreaFill8x8        0,0,0,1,0,0,2
      LWMDataAreaFill8x8        0,0,0,1,1,0,2
      LWMDataAreaFill8x8        0,0,0,1,2,0,2
      LWMDataAreaFill8x8        0,0,0,1,3,0,2
      LWMDataAreaFill4x4        0,0,0,1,0,0,6
      LWMDataAreaFill4x4        0,0,0,1,1,0,6
      LWMDataAreaFill4x4        0,0,0,1,2,0,6
      LWMDataAreaFill4x4        0,0,0,1,3,0,6
      LWMDataAreaFill4x4        0,0,0,1,4,0,6
      LWMDataAreaFill4x4        0,0,0,1,5,0,6
      LWMDataAreaFill4x4        0,0,0,1,6,0,6
      LWMDataAreaFill4x4        0,0,0,1,7,0,6
      LWMDataAreaFill2x2        0,0,0,1,0,0,14
      LWMDataAreaFill2x2        0,0,0,1,1,0,14
      LWMDataAreaFill2x2        0,0,0,1,2,0,14
      LWMDataAreaFill2x2        0,0,0,1,3,0,14
      LWMDataAreaFill2x2        0,0,0,1,4,0,14
      LWMDataAreaFill2x2        0,0,0,1,5,0,14
      LWMDataAreaFill2x2        0,0,0,1,6,0,14
      LWMDataAreaFill2x2        0,0,0,1,7,0,14
      LWMDataAreaFill2x2        0,0,0,1,8,0,14
      LWMDataAreaFill2x2        0,0,0,1,9,0,14
      LWMDataAreaFill2x2        0,0,0,1,10,0,14
      LWMDataAreaFill2x2        0,0,0,1,11,0,14
      LWMDataAreaFill2x2        0,0,0,1,12,0,14
      LWMDataAreaFill2x2        0,0,0,1,13,0,14
      LWMDataAreaFill2x2        0,0,0,1,14,0,14
      LWMDataAreaFill2x2        0,0,0,1,15,0,14
      LWMDataAreaFill1x1        0,0,1,0,30
      LWMDataAreaFill1x1        0,0,1,1,30
      LWMDataAreaFill1x1        0,0,1,2,30
      LWMDataAreaFill1x1        0,0,1,3,30
      LWMDataAreaFill1x1        0,0,1,4,30
      LWMDataAreaFill1x1        0,0,1,5,30
      LWMDataAreaFill1x1        0,0,1,6,30
      LWMDataAreaFill1x1        0,0,1,7,30
      LWMDataAreaFill1x1        0,0,1,8,30
      LWMDataAreaFill1x1        0,0,1,9,30
      LWMDataAreaFill1x1        0,0,1,10,30
      LWMDataAreaFill1x1        0,0,1,11,30
      LWMDataAreaFill1x1        0,0,1,12,30
      LWMDataAreaFill1x1        0,0,1,13,30
      LWMDataAreaFill1x1        0,0,1,14,30
      LWMDataAreaFill1x1        0,0,1,15,30
      LWMDataAreaFill1x1        0,0,1,16,30
      LWMDataAreaFill1x1        0,0,1,17,30
      LWMDataAreaFill1x1        0,0,1,18,30
      LWMDataAreaFill1x1        0,0,1,19,30
      LWMDataAreaFill1x1        0,0,1,20,30
      LWMDataAreaFill1x1        0,0,1,21,30
      LWMDataAreaFill1x1        0,0,1,22,30
      LWMDataAreaFill1x1        0,0,1,23,30
      LWMDataAreaFill1x1        0,0,1,24,30
      LWMDataAreaFill1x1        0,0,1,25,30
      LWMDataAreaFill1x1        0,0,1,26,30
      LWMDataAreaFill1x1        0,0,1,27,30
      LWMDataAreaFill1x1        0,0,1,28,30
      LWMDataAreaFill1x1        0,0,1,29,30
      LWMDataAreaFill1x1        0,0,1,30,30
      LWMDataAreaFill1x1        0,0,1,31,30
      LWMDataAreaFill1x1        0,0,1,0,31
      LWMDataAreaFill1x1        0,0,1,1,31
      LWMDataAreaFill1x1        0,0,1,2,31
      LWMDataAreaFill1x1        0,0,1,3,31
      LWMDataAreaFill1x1        0,0,1,4,31
      LWMDataAreaFill1x1        0,0,1,5,31
      LWMDataAreaFill1x1        0,0,1,6,31
      LWMDataAreaFill1x1        0,0,1,7,31
      LWMDataAreaFill1x1        0,0,1,8,31
      LWMDataAreaFill1x1        0,0,1,9,31
      LWMDataAreaFill1x1        0,0,1,10,31
        LWMDataAreaDrawPolygons 4,3,1,11,31
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 158,255
            LWMPoint 166,249
            LWMPoint 161,255
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 166,249
            LWMPoint 185,130
            LWMPoint 255,59
; 
; Mainland, north-west cape
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 255,255
            LWMPoint 168,255
            LWMPoint 166,249
            LWMPoint 255,59
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 161,255
            LWMPoint 166,249
            LWMPoint 168,255
        LWMDataAreaDrawPolygons 1,3,1,12,31
; 
; Mainland, north-west cape
; 
          LWMPoly2   6,0,0,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,59
            LWMPoint 27,31
            LWMPoint 104,0
            LWMPoint 255,0
      LWMDataAreaFill1x1        0,0,1,13,31
      LWMDataAreaFill1x1        0,0,1,14,31
      LWMDataAreaFill1x1        0,0,1,15,31
      LWMDataAreaFill1x1        0,0,1,16,31
      LWMDataAreaFill1x1        0,0,1,17,31
      LWMDataAreaFill1x1        0,0,1,18,31
      LWMDataAreaFill1x1        0,0,1,19,31
      LWMDataAreaFill1x1        0,0,1,20,31
      LWMDataAreaFill1x1        0,0,1,21,31
      LWMDataAreaFill1x1        0,0,1,22,31
      LWMDataAreaFill1x1        0,0,1,23,31
      LWMDataAreaFill1x1        0,0,1,24,31
      LWMDataAreaFill1x1        0,0,1,25,31
      LWMDataAreaFill1x1        0,0,1,26,31
      LWMDataAreaFill1x1        0,0,1,27,31
      LWMDataAreaFill1x1        0,0,1,28,31
      LWMDataAreaFill1x1        0,0,1,29,31
      LWMDataAreaFill1x1        0,0,1,30,31
      LWMDataAreaFill1x1        0,0,1,31,31
    datamark_1  label   word
    datamark_2  label   word
        LWMDataAreaDrawPolygons 1,3,1,10,0
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 255,255
            LWMPoint 197,255
            LWMPoint 255,180
        LWMDataAreaDrawPolygons 3,3,1,11,0
; 
; Mainland, north-west cape
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 161,0
            LWMPoint 0,180
            LWMPoint 107,41
            LWMPoint 158,0
; 
; Mainland, north-west cape
; 
          LWMPoly2   5,0,0,0,0
            LWMPoint 0,180
            LWMPoint 161,0
            LWMPoint 168,0
            LWMPoint 253,255
            LWMPoint 0,255
; 
; Mainland, north-west cape
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 255,255
            LWMPoint 253,255
            LWMPoint 168,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,9,1
; 
; Mainland, north-west cape
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 255,241
            LWMPoint 244,255
            LWMPoint 222,255
            LWMPoint 255,207
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 222,255
            LWMPoint 249,215
            LWMPoint 255,207
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 255,255
            LWMPoint 244,255
            LWMPoint 255,241
        LWMDataAreaDrawPolygons 3,3,1,10,1
; 
; Mainland, north-west cape
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 255,185
            LWMPoint 170,35
            LWMPoint 197,0
            LWMPoint 255,0
; 
; Mainland, north-west cape
; 
          LWMPoly2   5,0,0,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,241
            LWMPoint 170,35
            LWMPoint 255,185
; 
; Mainland, north-west cape
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 0,207
            LWMPoint 70,111
            LWMPoint 170,35
            LWMPoint 0,241
        LWMDataAreaDrawPolygons 3,3,1,9,2
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 244,0
            LWMPoint 116,155
            LWMPoint 222,0
; 
; Mainland, north-west cape
; 
          LWMPoly2   5,0,0,0,0
            LWMPoint 255,255
            LWMPoint 219,255
            LWMPoint 116,155
            LWMPoint 244,0
            LWMPoint 255,0
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 15,255
            LWMPoint 116,155
            LWMPoint 219,255
        LWMDataAreaDrawPolygons 2,3,1,6,3
; 
; Mainland, north-west cape
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 255,255
            LWMPoint 253,255
            LWMPoint 207,255
            LWMPoint 255,245
; 
; Mainland, north-west cape
; 
          LWMPoly2   5,0,0,0,0
            LWMPoint 255,245
            LWMPoint 207,255
            LWMPoint 79,255
            LWMPoint 103,243
            LWMPoint 255,232
        LWMDataAreaDrawPolygons 5,3,1,7,3
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 0,232
            LWMPoint 95,226
            LWMPoint 0,245
; 
; Mainland, north-west cape
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 0,255
            LWMPoint 95,226
            LWMPoint 255,193
            LWMPoint 31,255
; 
; Mainland, north-west cape
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 255,195
            LWMPoint 36,255
            LWMPoint 31,255
            LWMPoint 255,193
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 0,245
            LWMPoint 95,226
            LWMPoint 0,255
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 255,255
            LWMPoint 36,255
            LWMPoint 255,195
        LWMDataAreaDrawPolygons 5,3,1,8,3
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 0,193
            LWMPoint 32,186
            LWMPoint 0,195
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 255,33
            LWMPoint 245,25
            LWMPoint 255,15
; 
; Mainland, north-west cape
; 
          LWMPoly2   5,0,0,0,0
            LWMPoint 255,255
            LWMPoint 156,255
            LWMPoint 32,186
            LWMPoint 245,25
            LWMPoint 255,33
; 
; Mainland, north-west cape
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 0,195
            LWMPoint 32,186
            LWMPoint 156,255
            LWMPoint 0,255
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 255,15
            LWMPoint 245,25
            LWMPoint 255,15
        LWMDataAreaDrawPolygons 3,3,1,9,3
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 255,34
            LWMPoint 219,0
            LWMPoint 255,0
; 
; Mainland, north-west cape
; 
          LWMPoly2   6,0,0,0,0
            LWMPoint 255,230
            LWMPoint 0,33
            LWMPoint 0,15
            LWMPoint 15,0
            LWMPoint 219,0
            LWMPoint 255,34
; 
; Mainland, north-west cape
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,33
            LWMPoint 255,230
        LWMDataAreaDrawPolygons 2,3,1,3,4
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 255,193
            LWMPoint 11,255
            LWMPoint 255,133
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 255,255
            LWMPoint 11,255
            LWMPoint 255,193
        LWMDataAreaDrawPolygons 3,3,1,4,4
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 255,255
            LWMPoint 232,255
            LWMPoint 255,231
; 
; Mainland, north-west cape
; 
          LWMPoly2   6,0,0,0,0
            LWMPoint 255,231
            LWMPoint 232,255
            LWMPoint 0,255
            LWMPoint 0,193
            LWMPoint 230,134
            LWMPoint 255,131
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 0,133
            LWMPoint 230,134
            LWMPoint 0,193
        LWMDataAreaDrawPolygons 5,3,1,5,4
; 
; Mainland, north-west cape
; 
          LWMPoly2   5,0,0,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,231
            LWMPoint 105,121
            LWMPoint 255,80
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 255,80
            LWMPoint 105,121
            LWMPoint 255,79
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 0,131
            LWMPoint 105,121
            LWMPoint 0,231
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 255,76
            LWMPoint 105,121
            LWMPoint 255,42
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 255,79
            LWMPoint 105,121
            LWMPoint 255,76
        LWMDataAreaDrawPolygons 5,3,1,6,4
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 207,0
            LWMPoint 0,42
            LWMPoint 79,0
; 
; Mainland, north-west cape
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 0,42
            LWMPoint 207,0
            LWMPoint 253,0
            LWMPoint 0,76
; 
; Mainland, north-west cape
; 
          LWMPoly2   5,0,0,0,0
            LWMPoint 255,9
            LWMPoint 0,79
            LWMPoint 0,76
            LWMPoint 253,0
            LWMPoint 255,0
; 
; Mainland, north-west cape
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 255,10
            LWMPoint 0,80
            LWMPoint 0,79
            LWMPoint 255,9
; 
; Mainland, north-west cape
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,80
            LWMPoint 255,10
        LWMDataAreaDrawPolygons 2,3,1,3,5
; 
; Mainland, north-west cape
; 
          LWMPoly2   6,0,0,0,0
            LWMPoint 255,243
            LWMPoint 244,255
            LWMPoint 0,255
            LWMPoint 0,5
            LWMPoint 11,0
            LWMPoint 255,0
; 
; Mainland, north-west cape
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 255,255
            LWMPoint 244,255
            LWMPoint 255,243
        LWMDataAreaDrawPolygons 1,3,1,19,9
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 7,255
            LWMPoint 105,224
            LWMPoint 233,196
            LWMPoint 255,193
        LWMDataAreaDrawPolygons 1,3,1,20,9
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,193
            LWMPoint 111,177
            LWMPoint 248,166
            LWMPoint 255,166
        LWMDataAreaDrawPolygons 1,3,1,21,9
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,166
            LWMPoint 131,163
            LWMPoint 255,166
        LWMDataAreaDrawPolygons 1,3,1,22,9
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,166
            LWMPoint 16,166
            LWMPoint 154,174
            LWMPoint 255,183
        LWMDataAreaDrawPolygons 2,3,1,23,9
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 255,242
            LWMPoint 234,255
            LWMPoint 0,255
            LWMPoint 0,183
            LWMPoint 36,186
            LWMPoint 169,199
            LWMPoint 255,208
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 234,255
            LWMPoint 255,242
        LWMDataAreaDrawPolygons 3,3,1,24,9
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,242
            LWMPoint 44,213
            LWMPoint 170,225
            LWMPoint 125,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,208
            LWMPoint 44,213
            LWMPoint 0,242
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 125,255
            LWMPoint 170,225
            LWMPoint 255,232
        LWMDataAreaDrawPolygons 4,3,1,25,9
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,232
            LWMPoint 36,235
            LWMPoint 6,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 6,255
            LWMPoint 36,235
            LWMPoint 152,242
            LWMPoint 133,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,251
            LWMPoint 249,255
            LWMPoint 133,255
            LWMPoint 152,242
            LWMPoint 255,245
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 249,255
            LWMPoint 255,251
        LWMDataAreaDrawPolygons 4,3,1,26,9
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,245
            LWMPoint 10,245
            LWMPoint 0,251
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,240
            LWMPoint 223,237
            LWMPoint 255,234
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,251
            LWMPoint 10,245
            LWMPoint 118,243
            LWMPoint 253,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 253,255
            LWMPoint 118,243
            LWMPoint 223,237
            LWMPoint 255,240
        LWMDataAreaDrawPolygons 4,3,1,27,9
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 171,255
            LWMPoint 0,240
            LWMPoint 0,234
            LWMPoint 71,228
            LWMPoint 255,244
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,244
            LWMPoint 71,228
            LWMPoint 173,216
            LWMPoint 255,223
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,240
            LWMPoint 171,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,223
            LWMPoint 173,216
            LWMPoint 255,205
        LWMDataAreaDrawPolygons 3,3,1,28,9
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,244
            LWMPoint 132,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 132,255
            LWMPoint 0,244
            LWMPoint 0,223
            LWMPoint 255,244
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 255,244
            LWMPoint 0,223
            LWMPoint 0,205
            LWMPoint 18,203
            LWMPoint 119,190
            LWMPoint 219,179
            LWMPoint 255,177
        LWMDataAreaDrawPolygons 2,3,1,29,9
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,244
            LWMPoint 133,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 255,255
            LWMPoint 133,255
            LWMPoint 0,244
            LWMPoint 0,177
            LWMPoint 65,172
            LWMPoint 167,170
            LWMPoint 255,173
        LWMDataAreaDrawPolygons 1,3,1,30,9
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,173
            LWMPoint 14,173
            LWMPoint 115,184
            LWMPoint 216,201
            LWMPoint 255,209
        LWMDataAreaDrawPolygons 1,3,1,31,9
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,209
            LWMPoint 61,224
            LWMPoint 160,252
            LWMPoint 171,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,17,10
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 94,255
            LWMPoint 179,179
            LWMPoint 255,126
        LWMDataAreaDrawPolygons 1,3,1,18,10
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,126
            LWMPoint 19,112
            LWMPoint 125,55
            LWMPoint 239,7
            LWMPoint 255,2
        LWMDataAreaDrawPolygons 1,3,1,19,10
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,2
            LWMPoint 7,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,20,10
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,21,10
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,22,10
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,153
            LWMPoint 99,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 247,255
            LWMPoint 255,249
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,249
            LWMPoint 247,255
            LWMPoint 99,255
            LWMPoint 255,153
        LWMDataAreaDrawPolygons 4,3,1,23,10
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,82
            LWMPoint 0,249
            LWMPoint 0,153
            LWMPoint 234,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 131,255
            LWMPoint 255,173
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,173
            LWMPoint 131,255
            LWMPoint 0,255
            LWMPoint 0,249
            LWMPoint 255,82
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 234,0
            LWMPoint 0,153
        LWMDataAreaDrawPolygons 5,3,1,24,10
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,4
            LWMPoint 0,173
            LWMPoint 0,82
            LWMPoint 125,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,166
            LWMPoint 122,255
            LWMPoint 4,255
            LWMPoint 255,88
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,88
            LWMPoint 4,255
            LWMPoint 0,255
            LWMPoint 0,173
            LWMPoint 255,4
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 125,0
            LWMPoint 0,82
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 122,255
            LWMPoint 255,166
        LWMDataAreaDrawPolygons 4,3,1,25,10
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,4
            LWMPoint 6,0
            LWMPoint 133,0
            LWMPoint 0,88
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,88
            LWMPoint 133,0
            LWMPoint 249,0
            LWMPoint 0,166
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,166
            LWMPoint 249,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 6,0
            LWMPoint 0,4
        LWMDataAreaDrawPolygons 1,3,1,26,10
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 253,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,27,10
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,7
            LWMPoint 171,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,22
            LWMPoint 0,0
            LWMPoint 171,0
            LWMPoint 255,7
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,22
        LWMDataAreaDrawPolygons 4,3,1,28,10
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,30
            LWMPoint 0,7
            LWMPoint 0,0
            LWMPoint 132,0
            LWMPoint 255,11
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,11
            LWMPoint 132,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,45
            LWMPoint 0,22
            LWMPoint 0,7
            LWMPoint 255,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,22
            LWMPoint 255,45
        LWMDataAreaDrawPolygons 5,3,1,29,10
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,32
            LWMPoint 0,11
            LWMPoint 0,0
            LWMPoint 133,0
            LWMPoint 255,10
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,67
            LWMPoint 0,45
            LWMPoint 0,30
            LWMPoint 255,52
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,52
            LWMPoint 0,30
            LWMPoint 0,11
            LWMPoint 255,32
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,10
            LWMPoint 133,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,45
            LWMPoint 255,67
        LWMDataAreaDrawPolygons 5,3,1,30,10
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,54
            LWMPoint 0,32
            LWMPoint 0,10
            LWMPoint 255,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,31
            LWMPoint 0,10
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,74
            LWMPoint 0,52
            LWMPoint 0,32
            LWMPoint 255,54
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,67
            LWMPoint 255,89
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,89
            LWMPoint 0,67
            LWMPoint 0,52
            LWMPoint 255,74
        LWMDataAreaDrawPolygons 5,3,1,31,10
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,53
            LWMPoint 0,31
            LWMPoint 0,0
            LWMPoint 171,0
            LWMPoint 255,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,111
            LWMPoint 0,89
            LWMPoint 0,74
            LWMPoint 255,96
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,89
            LWMPoint 255,111
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,76
            LWMPoint 0,54
            LWMPoint 0,31
            LWMPoint 255,53
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,96
            LWMPoint 0,74
            LWMPoint 0,54
            LWMPoint 255,76
        LWMDataAreaDrawPolygons 1,3,1,16,11
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 170,255
            LWMPoint 212,176
            LWMPoint 255,113
        LWMDataAreaDrawPolygons 1,3,1,17,11
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,113
            LWMPoint 20,84
            LWMPoint 94,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,18,11
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,19,11
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,20,11
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 218,255
            LWMPoint 255,231
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,231
            LWMPoint 218,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,21,11
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,64
            LWMPoint 0,231
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 114,255
            LWMPoint 255,162
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,162
            LWMPoint 114,255
            LWMPoint 0,255
            LWMPoint 0,231
            LWMPoint 255,64
        LWMDataAreaDrawPolygons 6,3,1,22,11
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 99,0
            LWMPoint 0,64
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,64
            LWMPoint 99,0
            LWMPoint 247,0
            LWMPoint 0,162
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,172
            LWMPoint 131,255
            LWMPoint 0,255
            LWMPoint 255,86
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 250,255
            LWMPoint 255,252
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,252
            LWMPoint 250,255
            LWMPoint 131,255
            LWMPoint 255,172
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,86
            LWMPoint 0,255
            LWMPoint 0,162
            LWMPoint 247,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,23,11
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,3
            LWMPoint 0,172
            LWMPoint 0,86
            LWMPoint 131,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 131,0
            LWMPoint 0,86
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,252
            LWMPoint 255,82
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,82
            LWMPoint 0,252
            LWMPoint 0,172
            LWMPoint 255,3
        LWMDataAreaDrawPolygons 3,3,1,24,11
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,3
            LWMPoint 4,0
            LWMPoint 122,0
            LWMPoint 0,82
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,82
            LWMPoint 122,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 4,0
            LWMPoint 0,3
        LWMDataAreaDrawPolygons 1,3,1,25,11
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,26,11
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,27,11
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,28,11
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,29,11
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,252
            LWMPoint 246,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 246,255
            LWMPoint 255,252
        LWMDataAreaDrawPolygons 2,3,1,30,11
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,252
            LWMPoint 255,161
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,161
            LWMPoint 0,252
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,31,11
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,71
            LWMPoint 0,161
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,161
            LWMPoint 255,71
        LWMDataAreaDrawPolygons 1,3,1,16,12
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 255,255
            LWMPoint 84,255
            LWMPoint 88,230
            LWMPoint 119,123
            LWMPoint 160,19
            LWMPoint 170,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,12
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,18,12
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,19,12
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 236,255
            LWMPoint 255,242
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,242
            LWMPoint 236,255
            LWMPoint 83,255
            LWMPoint 255,142
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,142
            LWMPoint 83,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,20,12
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 124,255
            LWMPoint 255,169
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,169
            LWMPoint 124,255
            LWMPoint 0,255
            LWMPoint 0,242
            LWMPoint 255,75
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 218,0
            LWMPoint 0,142
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,75
            LWMPoint 0,242
            LWMPoint 0,142
            LWMPoint 218,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 5,3,1,21,12
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,75
            LWMPoint 114,0
            LWMPoint 255,0
            LWMPoint 0,169
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,87
            LWMPoint 2,255
            LWMPoint 0,255
            LWMPoint 0,169
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 114,0
            LWMPoint 0,75
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 123,255
            LWMPoint 255,167
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,167
            LWMPoint 123,255
            LWMPoint 2,255
            LWMPoint 255,87
        LWMDataAreaDrawPolygons 3,3,1,22,12
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,87
            LWMPoint 131,0
            LWMPoint 250,0
            LWMPoint 0,167
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,167
            LWMPoint 250,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 131,0
            LWMPoint 0,87
        LWMDataAreaDrawPolygons 1,3,1,23,12
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,24,12
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,25,12
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,26,12
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,27,12
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 39,255
            LWMPoint 255,178
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,178
            LWMPoint 39,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,28,12
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,88
            LWMPoint 0,178
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,178
            LWMPoint 255,88
        LWMDataAreaDrawPolygons 2,3,1,29,12
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,88
            LWMPoint 246,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 246,0
            LWMPoint 0,88
        LWMDataAreaDrawPolygons 1,3,1,30,12
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,31,12
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,13
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 49,255
            LWMPoint 53,197
            LWMPoint 67,85
            LWMPoint 84,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,17,13
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 202,255
            LWMPoint 255,220
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,220
            LWMPoint 202,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,18,13
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,155
            LWMPoint 103,255
            LWMPoint 0,255
            LWMPoint 0,220
            LWMPoint 255,54
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 249,255
            LWMPoint 255,251
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,54
            LWMPoint 0,220
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,251
            LWMPoint 249,255
            LWMPoint 103,255
            LWMPoint 255,155
        LWMDataAreaDrawPolygons 6,3,1,19,13
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 251,255
            LWMPoint 255,252
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,252
            LWMPoint 251,255
            LWMPoint 129,255
            LWMPoint 255,171
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,171
            LWMPoint 129,255
            LWMPoint 0,255
            LWMPoint 0,251
            LWMPoint 255,82
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,82
            LWMPoint 0,251
            LWMPoint 0,155
            LWMPoint 236,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 83,0
            LWMPoint 0,54
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,54
            LWMPoint 83,0
            LWMPoint 236,0
            LWMPoint 0,155
        LWMDataAreaDrawPolygons 4,3,1,20,13
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,2
            LWMPoint 0,171
            LWMPoint 0,82
            LWMPoint 124,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,82
            LWMPoint 0,252
            LWMPoint 0,171
            LWMPoint 255,2
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 124,0
            LWMPoint 0,82
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,252
            LWMPoint 255,82
        LWMDataAreaDrawPolygons 3,3,1,21,13
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 2,0
            LWMPoint 0,2
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,82
            LWMPoint 123,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,2
            LWMPoint 2,0
            LWMPoint 123,0
            LWMPoint 0,82
        LWMDataAreaDrawPolygons 1,3,1,22,13
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,23,13
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,24,13
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,195
            LWMPoint 86,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 86,255
            LWMPoint 255,195
        LWMDataAreaDrawPolygons 2,3,1,25,13
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,195
            LWMPoint 255,104
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,104
            LWMPoint 0,195
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,26,13
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,14
            LWMPoint 0,104
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,104
            LWMPoint 255,14
        LWMDataAreaDrawPolygons 2,3,1,27,13
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,14
            LWMPoint 39,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 39,0
            LWMPoint 0,14
        LWMDataAreaDrawPolygons 1,3,1,28,13
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,29,13
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,30,13
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,31,13
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,16,14
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,235
            LWMPoint 225,255
            LWMPoint 66,255
            LWMPoint 255,132
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 255,132
            LWMPoint 66,255
            LWMPoint 39,255
            LWMPoint 41,164
            LWMPoint 45,54
            LWMPoint 49,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 225,255
            LWMPoint 255,235
        LWMDataAreaDrawPolygons 4,3,1,17,14
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,67
            LWMPoint 0,235
            LWMPoint 0,132
            LWMPoint 202,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 118,255
            LWMPoint 255,165
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,165
            LWMPoint 118,255
            LWMPoint 0,255
            LWMPoint 0,235
            LWMPoint 255,67
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 202,0
            LWMPoint 0,132
        LWMDataAreaDrawPolygons 5,3,1,18,14
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,67
            LWMPoint 103,0
            LWMPoint 249,0
            LWMPoint 0,165
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,168
            LWMPoint 124,255
            LWMPoint 0,255
            LWMPoint 255,86
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 124,255
            LWMPoint 255,168
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,86
            LWMPoint 0,255
            LWMPoint 0,165
            LWMPoint 249,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 103,0
            LWMPoint 0,67
        LWMDataAreaDrawPolygons 3,3,1,19,14
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,168
            LWMPoint 251,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,86
            LWMPoint 129,0
            LWMPoint 251,0
            LWMPoint 0,168
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 129,0
            LWMPoint 0,86
        LWMDataAreaDrawPolygons 1,3,1,20,14
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,21,14
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,212
            LWMPoint 134,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 134,255
            LWMPoint 255,212
        LWMDataAreaDrawPolygons 2,3,1,22,14
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,212
            LWMPoint 255,121
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,121
            LWMPoint 0,212
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,23,14
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,31
            LWMPoint 0,121
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,121
            LWMPoint 255,31
        LWMDataAreaDrawPolygons 2,3,1,24,14
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,31
            LWMPoint 86,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 86,0
            LWMPoint 0,31
        LWMDataAreaDrawPolygons 1,3,1,25,14
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,26,14
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,27,14
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,28,14
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,29,14
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,30,14
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,31,14
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 6,3,1,16,15
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 225,0
            LWMPoint 38,123
            LWMPoint 39,18
            LWMPoint 66,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 252,255
            LWMPoint 255,253
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,253
            LWMPoint 252,255
            LWMPoint 126,255
            LWMPoint 255,170
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,78
            LWMPoint 34,224
            LWMPoint 38,123
            LWMPoint 225,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 66,0
            LWMPoint 39,18
            LWMPoint 39,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,170
            LWMPoint 126,255
            LWMPoint 31,255
            LWMPoint 34,224
            LWMPoint 255,78
        LWMDataAreaDrawPolygons 4,3,1,17,15
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,253
            LWMPoint 255,83
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 118,0
            LWMPoint 0,78
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,78
            LWMPoint 118,0
            LWMPoint 255,0
            LWMPoint 0,170
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,83
            LWMPoint 0,253
            LWMPoint 0,170
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,18,15
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,229
            LWMPoint 181,255
            LWMPoint 0,255
            LWMPoint 0,83
            LWMPoint 124,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 124,0
            LWMPoint 0,83
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 181,255
            LWMPoint 255,229
        LWMDataAreaDrawPolygons 2,3,1,19,15
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,138
            LWMPoint 0,229
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,229
            LWMPoint 255,138
        LWMDataAreaDrawPolygons 2,3,1,20,15
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,138
            LWMPoint 255,48
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,48
            LWMPoint 0,138
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,21,15
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 134,0
            LWMPoint 0,48
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,48
            LWMPoint 134,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,22,15
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,23,15
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,24,15
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,25,15
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,26,15
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,27,15
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,28,15
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,234
            LWMPoint 53,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 53,255
            LWMPoint 255,234
        LWMDataAreaDrawPolygons 2,3,1,29,15
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,234
            LWMPoint 255,207
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,207
            LWMPoint 0,234
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,30,15
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,180
            LWMPoint 0,207
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,207
            LWMPoint 255,180
        LWMDataAreaDrawPolygons 2,3,1,31,15
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,180
            LWMPoint 255,153
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,153
            LWMPoint 0,180
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,15,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 246,255
            LWMPoint 248,248
            LWMPoint 255,246
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,246
            LWMPoint 248,248
            LWMPoint 255,218
        LWMDataAreaDrawPolygons 4,3,1,16,16
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 126,0
            LWMPoint 26,67
            LWMPoint 31,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,246
            LWMPoint 255,155
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 252,0
            LWMPoint 13,160
            LWMPoint 26,67
            LWMPoint 126,0
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,155
            LWMPoint 0,246
            LWMPoint 0,218
            LWMPoint 13,160
            LWMPoint 252,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,17,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,155
            LWMPoint 255,64
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,64
            LWMPoint 0,155
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,18,16
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,248
            LWMPoint 192,255
            LWMPoint 0,255
            LWMPoint 0,64
            LWMPoint 181,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 181,0
            LWMPoint 0,64
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 192,255
            LWMPoint 255,248
        LWMDataAreaDrawPolygons 2,3,1,19,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,221
            LWMPoint 0,248
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,248
            LWMPoint 255,221
        LWMDataAreaDrawPolygons 2,3,1,20,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,221
            LWMPoint 255,194
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,194
            LWMPoint 0,221
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,21,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,167
            LWMPoint 0,194
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,194
            LWMPoint 255,167
        LWMDataAreaDrawPolygons 2,3,1,22,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,167
            LWMPoint 255,140
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,140
            LWMPoint 0,167
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,23,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,114
            LWMPoint 0,140
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,140
            LWMPoint 255,114
        LWMDataAreaDrawPolygons 3,3,1,24,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,114
            LWMPoint 255,87
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,87
            LWMPoint 0,114
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 255,255
            LWMPoint 223,255
            LWMPoint 255,243
        LWMDataAreaDrawPolygons 3,3,1,25,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,87
            LWMPoint 255,60
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,60
            LWMPoint 0,87
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   6,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,243
            LWMPoint 61,221
            LWMPoint 166,212
            LWMPoint 255,222
        LWMDataAreaDrawPolygons 4,3,1,26,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,60
            LWMPoint 255,33
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,33
            LWMPoint 0,60
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 0,222
            LWMPoint 18,224
            LWMPoint 120,243
            LWMPoint 27,255
            LWMPoint 0,255
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 27,255
            LWMPoint 120,243
            LWMPoint 188,255
        LWMDataAreaDrawPolygons 2,3,1,27,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,6
            LWMPoint 0,33
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,33
            LWMPoint 255,6
        LWMDataAreaDrawPolygons 2,3,1,28,16
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,6
            LWMPoint 53,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 53,0
            LWMPoint 0,6
        LWMDataAreaDrawPolygons 1,3,1,29,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,30,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,31,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,15,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,74
            LWMPoint 221,78
            LWMPoint 246,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 139,255
            LWMPoint 143,238
            LWMPoint 186,159
            LWMPoint 163,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 163,255
            LWMPoint 186,159
            LWMPoint 221,78
            LWMPoint 255,74
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 133,255
            LWMPoint 143,238
            LWMPoint 139,255
        LWMDataAreaDrawPolygons 2,3,1,16,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,47
            LWMPoint 0,74
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,74
            LWMPoint 255,47
        LWMDataAreaDrawPolygons 2,3,1,17,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,47
            LWMPoint 255,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,20
            LWMPoint 0,47
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,18,17
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 192,0
            LWMPoint 0,20
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,20
            LWMPoint 192,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,19,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,20,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,21,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,22,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   6,0,0,212,64
            LWMPoint 255,247
            LWMPoint 241,255
            LWMPoint 85,255
            LWMPoint 142,210
            LWMPoint 245,169
            LWMPoint 255,167
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 255,255
            LWMPoint 241,255
            LWMPoint 255,247
        LWMDataAreaDrawPolygons 3,3,1,23,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,247
            LWMPoint 212,124
            LWMPoint 255,110
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 0,167
            LWMPoint 103,144
            LWMPoint 212,124
            LWMPoint 0,247
        LWMDataAreaDrawPolygons 4,3,1,24,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,110
            LWMPoint 50,94
            LWMPoint 255,136
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,35
            LWMPoint 134,50
            LWMPoint 219,1
            LWMPoint 223,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,136
            LWMPoint 50,94
            LWMPoint 134,50
            LWMPoint 255,35
        LWMDataAreaDrawPolygons 4,3,1,25,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,3
            LWMPoint 0,35
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,187
            LWMPoint 0,136
            LWMPoint 0,35
            LWMPoint 255,3
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,136
            LWMPoint 255,187
        LWMDataAreaDrawPolygons 4,3,1,26,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 0,0
            LWMPoint 27,0
            LWMPoint 0,3
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,187
            LWMPoint 255,238
; 
; Upper lake
; 
          LWMPoly2   7,0,0,212,64
            LWMPoint 255,238
            LWMPoint 0,187
            LWMPoint 0,3
            LWMPoint 27,0
            LWMPoint 188,0
            LWMPoint 219,5
            LWMPoint 255,12
        LWMDataAreaDrawPolygons 3,3,1,27,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 0,238
            LWMPoint 85,255
            LWMPoint 0,255
; 
; Upper lake
; 
          LWMPoly2   8,0,0,212,64
            LWMPoint 255,255
            LWMPoint 85,255
            LWMPoint 0,238
            LWMPoint 0,12
            LWMPoint 61,23
            LWMPoint 153,52
            LWMPoint 235,94
            LWMPoint 255,107
        LWMDataAreaDrawPolygons 2,3,1,28,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   6,0,0,212,64
            LWMPoint 0,107
            LWMPoint 53,144
            LWMPoint 121,193
            LWMPoint 186,242
            LWMPoint 201,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,29,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,30,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,31,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,14,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 228,255
            LWMPoint 238,214
            LWMPoint 255,191
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 207,255
            LWMPoint 238,214
            LWMPoint 228,255
        LWMDataAreaDrawPolygons 5,3,1,15,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 101,255
            LWMPoint 163,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 12,255
            LWMPoint 40,137
            LWMPoint 94,61
            LWMPoint 48,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 78,255
            LWMPoint 139,0
            LWMPoint 163,0
            LWMPoint 101,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,191
            LWMPoint 40,137
            LWMPoint 12,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 48,255
            LWMPoint 94,61
            LWMPoint 133,0
            LWMPoint 139,0
            LWMPoint 78,255
        LWMDataAreaDrawPolygons 1,3,1,16,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,18,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,19,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,20,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,21,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 255,139
            LWMPoint 212,165
            LWMPoint 255,100
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 128,255
            LWMPoint 149,236
            LWMPoint 152,255
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,255
            LWMPoint 152,255
            LWMPoint 149,236
            LWMPoint 212,165
            LWMPoint 255,139
        LWMDataAreaDrawPolygons 3,3,1,22,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,139
            LWMPoint 241,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   6,0,0,212,64
            LWMPoint 0,100
            LWMPoint 7,90
            LWMPoint 64,16
            LWMPoint 85,0
            LWMPoint 241,0
            LWMPoint 0,139
        LWMDataAreaDrawPolygons 2,3,1,23,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,24,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,25,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Hermit's islet
; 
          LWMPoly2   4,0,1,214,32
            LWMPoint 255,255
            LWMPoint 178,255
            LWMPoint 194,246
            LWMPoint 255,220
        LWMDataAreaDrawPolygons 4,3,1,26,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Hermit's islet
; 
          LWMPoly2   4,0,1,214,32
            LWMPoint 0,220
            LWMPoint 23,210
            LWMPoint 175,255
            LWMPoint 0,255
; 
; Hermit's islet
; 
          LWMPoly2   4,0,1,214,32
            LWMPoint 175,255
            LWMPoint 23,210
            LWMPoint 114,229
            LWMPoint 180,255
        LWMDataAreaDrawPolygons 3,3,1,27,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 85,0
            LWMPoint 255,34
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 255,34
            LWMPoint 85,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,28,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 255,255
            LWMPoint 182,255
            LWMPoint 255,207
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,207
            LWMPoint 182,255
            LWMPoint 0,255
            LWMPoint 0,34
            LWMPoint 255,85
; 
; Upper lake
; 
          LWMPoly2   6,0,0,212,64
            LWMPoint 255,85
            LWMPoint 0,34
            LWMPoint 0,0
            LWMPoint 201,0
            LWMPoint 244,38
            LWMPoint 255,50
        LWMDataAreaDrawPolygons 5,3,1,29,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 0,85
            LWMPoint 39,93
            LWMPoint 92,145
            LWMPoint 0,207
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 0,50
            LWMPoint 39,93
            LWMPoint 0,85
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 0,207
            LWMPoint 92,145
            LWMPoint 162,189
            LWMPoint 193,255
            LWMPoint 0,255
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,255
            LWMPoint 193,255
            LWMPoint 162,189
            LWMPoint 246,233
            LWMPoint 255,240
        LWMDataAreaDrawPolygons 2,3,1,30,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 0,240
            LWMPoint 20,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,31,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,14,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,200
            LWMPoint 242,255
            LWMPoint 207,255
            LWMPoint 255,52
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 34,255
            LWMPoint 68,197
            LWMPoint 122,116
            LWMPoint 179,37
            LWMPoint 207,0
            LWMPoint 228,0
            LWMPoint 169,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,52
            LWMPoint 207,255
            LWMPoint 169,255
            LWMPoint 228,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 242,255
            LWMPoint 255,200
        LWMDataAreaDrawPolygons 5,3,1,15,19
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,200
            LWMPoint 48,0
            LWMPoint 78,0
            LWMPoint 16,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 39,255
            LWMPoint 101,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 16,255
            LWMPoint 78,0
            LWMPoint 101,0
            LWMPoint 39,255
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 12,0
            LWMPoint 0,52
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,52
            LWMPoint 12,0
            LWMPoint 48,0
            LWMPoint 0,200
        LWMDataAreaDrawPolygons 1,3,1,16,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,18,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,19,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,20,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,255
            LWMPoint 188,255
            LWMPoint 192,220
            LWMPoint 245,132
            LWMPoint 255,122
        LWMDataAreaDrawPolygons 3,3,1,21,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   6,0,0,212,64
            LWMPoint 0,122
            LWMPoint 69,53
            LWMPoint 128,0
            LWMPoint 152,0
            LWMPoint 204,255
            LWMPoint 0,255
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 204,255
            LWMPoint 152,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,22,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,23,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,24,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Hermit's islet
; 
          LWMPoly2   6,0,1,214,32
            LWMPoint 255,255
            LWMPoint 193,255
            LWMPoint 194,248
            LWMPoint 219,186
            LWMPoint 250,122
            LWMPoint 255,117
        LWMDataAreaDrawPolygons 4,3,1,25,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Hermit's islet
; 
          LWMPoly2   5,0,1,214,32
            LWMPoint 255,255
            LWMPoint 111,255
            LWMPoint 121,31
            LWMPoint 178,0
            LWMPoint 255,0
; 
; Hermit's islet
; 
          LWMPoly2   5,0,1,214,32
            LWMPoint 0,117
            LWMPoint 50,69
            LWMPoint 121,31
            LWMPoint 111,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 5,3,1,26,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Hermit's islet
; 
          LWMPoly2   6,0,1,214,32
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 175,0
            LWMPoint 195,6
            LWMPoint 255,29
; 
; Hermit's islet
; 
          LWMPoly2   3,0,1,214,32
            LWMPoint 180,0
            LWMPoint 195,6
            LWMPoint 175,0
; 
; Tarn on the islet
; 
          LWMPoly2   4,0,0,215,0
            LWMPoint 90,255
            LWMPoint 118,239
            LWMPoint 167,243
            LWMPoint 205,255
        LWMDataAreaDrawPolygons 4,3,1,27,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 255,255
            LWMPoint 55,255
            LWMPoint 255,122
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,122
            LWMPoint 55,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Hermit's islet
; 
          LWMPoly2   8,0,1,214,32
            LWMPoint 0,29
            LWMPoint 16,35
            LWMPoint 73,84
            LWMPoint 114,140
            LWMPoint 154,193
            LWMPoint 175,253
            LWMPoint 175,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 3,3,1,28,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,122
            LWMPoint 182,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 0,0
            LWMPoint 182,0
            LWMPoint 0,122
        LWMDataAreaDrawPolygons 3,3,1,29,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 193,0
            LWMPoint 255,133
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 255,133
            LWMPoint 193,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,30,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   7,0,0,212,64
            LWMPoint 0,0
            LWMPoint 20,0
            LWMPoint 64,32
            LWMPoint 95,100
            LWMPoint 81,176
            LWMPoint 53,247
            LWMPoint 0,133
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 0,133
            LWMPoint 53,247
            LWMPoint 53,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,31,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,20
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 185,255
            LWMPoint 200,198
            LWMPoint 233,110
            LWMPoint 255,65
        LWMDataAreaDrawPolygons 6,3,1,14,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 147,255
            LWMPoint 207,0
            LWMPoint 242,0
            LWMPoint 181,255
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 0,65
            LWMPoint 19,25
            LWMPoint 34,0
            LWMPoint 169,0
            LWMPoint 110,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,163
            LWMPoint 233,255
            LWMPoint 210,255
            LWMPoint 255,68
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 233,255
            LWMPoint 255,163
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,68
            LWMPoint 210,255
            LWMPoint 181,255
            LWMPoint 242,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 110,255
            LWMPoint 169,0
            LWMPoint 207,0
            LWMPoint 147,255
        LWMDataAreaDrawPolygons 3,3,1,15,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,68
            LWMPoint 16,0
            LWMPoint 39,0
            LWMPoint 0,163
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 16,0
            LWMPoint 0,68
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,163
            LWMPoint 39,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,18,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,19,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,20,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 226,255
            LWMPoint 224,245
            LWMPoint 232,255
; 
; Upper lake
; 
          LWMPoly2   7,0,0,212,64
            LWMPoint 255,255
            LWMPoint 232,255
            LWMPoint 224,245
            LWMPoint 201,153
            LWMPoint 182,59
            LWMPoint 188,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,21,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 255,250
            LWMPoint 204,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 204,0
            LWMPoint 255,250
        LWMDataAreaDrawPolygons 3,3,1,22,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,255
            LWMPoint 1,255
            LWMPoint 0,250
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 0,250
            LWMPoint 1,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 2,3,1,23,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,24,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Hermit's islet
; 
          LWMPoly2   6,0,1,214,32
            LWMPoint 255,206
            LWMPoint 226,186
            LWMPoint 200,124
            LWMPoint 184,59
            LWMPoint 193,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 5,3,1,25,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,207
            LWMPoint 183,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 255,255
            LWMPoint 183,255
            LWMPoint 255,207
; 
; Hermit's islet
; 
          LWMPoly2   6,0,1,214,32
            LWMPoint 0,0
            LWMPoint 111,0
            LWMPoint 99,255
            LWMPoint 87,255
            LWMPoint 34,229
            LWMPoint 0,206
; 
; Hermit's islet
; 
          LWMPoly2   4,0,1,214,32
            LWMPoint 255,255
            LWMPoint 99,255
            LWMPoint 111,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 5,3,1,26,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,207
            LWMPoint 255,37
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,37
            LWMPoint 0,207
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Hermit's islet
; 
          LWMPoly2   4,0,1,214,32
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Tarn on the islet
; 
          LWMPoly2   15,0,0,215,0
            LWMPoint 255,72
            LWMPoint 238,106
            LWMPoint 207,133
            LWMPoint 166,148
            LWMPoint 119,150
            LWMPoint 75,136
            LWMPoint 44,107
            LWMPoint 39,70
            LWMPoint 51,35
            LWMPoint 78,7
            LWMPoint 90,0
            LWMPoint 205,0
            LWMPoint 212,2
            LWMPoint 243,32
            LWMPoint 255,66
        LWMDataAreaDrawPolygons 6,3,1,27,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 0,0
            LWMPoint 55,0
            LWMPoint 0,37
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,37
            LWMPoint 55,0
            LWMPoint 255,0
; 
; Hermit's islet
; 
          LWMPoly2   7,0,1,214,32
            LWMPoint 0,0
            LWMPoint 175,0
            LWMPoint 170,59
            LWMPoint 148,179
            LWMPoint 133,245
            LWMPoint 124,255
            LWMPoint 0,255
; 
; Hermit's islet
; 
          LWMPoly2   3,0,1,214,32
            LWMPoint 170,59
            LWMPoint 166,119
            LWMPoint 148,179
; 
; Tarn on the islet
; 
          LWMPoly2   3,0,0,215,0
            LWMPoint 0,66
            LWMPoint 1,70
            LWMPoint 0,72
        LWMDataAreaDrawPolygons 2,3,1,28,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,29,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,30,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 0,0
            LWMPoint 53,0
            LWMPoint 53,59
            LWMPoint 26,255
            LWMPoint 0,255
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 26,255
            LWMPoint 53,59
            LWMPoint 88,129
            LWMPoint 84,255
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 84,255
            LWMPoint 88,129
            LWMPoint 134,205
            LWMPoint 147,255
        LWMDataAreaDrawPolygons 1,3,1,31,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,21
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 255,255
            LWMPoint 158,255
            LWMPoint 157,212
            LWMPoint 163,121
            LWMPoint 177,31
            LWMPoint 185,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 6,3,1,14,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 171,255
            LWMPoint 233,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 120,255
            LWMPoint 181,0
            LWMPoint 210,0
            LWMPoint 149,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 87,255
            LWMPoint 147,0
            LWMPoint 181,0
            LWMPoint 120,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 149,255
            LWMPoint 210,0
            LWMPoint 233,0
            LWMPoint 171,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 51,255
            LWMPoint 110,0
            LWMPoint 147,0
            LWMPoint 87,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 110,0
            LWMPoint 51,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,15,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,18,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,19,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,20,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,141
            LWMPoint 241,83
            LWMPoint 226,0
            LWMPoint 232,0
            LWMPoint 255,32
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 255,32
            LWMPoint 232,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,21,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 0,32
            LWMPoint 161,255
            LWMPoint 58,255
            LWMPoint 9,176
            LWMPoint 0,141
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,255
            LWMPoint 161,255
            LWMPoint 0,32
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,22,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 0,0
            LWMPoint 1,0
            LWMPoint 53,255
            LWMPoint 0,255
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 53,255
            LWMPoint 1,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,23,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,24,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 255,255
            LWMPoint 56,255
            LWMPoint 255,122
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,122
            LWMPoint 56,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 6,3,1,25,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 0,0
            LWMPoint 183,0
            LWMPoint 0,122
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,122
            LWMPoint 183,0
            LWMPoint 255,0
; 
; Hermit's islet
; 
          LWMPoly2   5,0,1,214,32
            LWMPoint 255,50
            LWMPoint 158,37
            LWMPoint 99,6
            LWMPoint 99,0
            LWMPoint 255,0
; 
; Hermit's islet
; 
          LWMPoly2   4,0,1,214,32
            LWMPoint 255,106
            LWMPoint 212,82
            LWMPoint 158,37
            LWMPoint 255,50
; 
; Hermit's islet
; 
          LWMPoly2   3,0,1,214,32
            LWMPoint 99,0
            LWMPoint 99,6
            LWMPoint 87,0
        LWMDataAreaDrawPolygons 4,3,1,26,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Hermit's islet
; 
          LWMPoly2   4,0,1,214,32
            LWMPoint 255,83
            LWMPoint 0,50
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Hermit's islet
; 
          LWMPoly2   7,0,1,214,32
            LWMPoint 255,97
            LWMPoint 202,132
            LWMPoint 113,137
            LWMPoint 28,122
            LWMPoint 0,106
            LWMPoint 0,50
            LWMPoint 255,83
        LWMDataAreaDrawPolygons 4,3,1,27,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Hermit's islet
; 
          LWMPoly2   3,0,1,214,32
            LWMPoint 0,83
            LWMPoint 17,86
            LWMPoint 0,97
; 
; Hermit's islet
; 
          LWMPoly2   5,0,1,214,32
            LWMPoint 0,0
            LWMPoint 124,0
            LWMPoint 84,45
            LWMPoint 17,86
            LWMPoint 0,83
        LWMDataAreaDrawPolygons 2,3,1,28,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,29,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 255,255
            LWMPoint 247,255
            LWMPoint 255,194
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,194
            LWMPoint 247,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,30,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 0,0
            LWMPoint 26,0
            LWMPoint 0,194
; 
; Upper lake
; 
          LWMPoly2   7,0,0,212,64
            LWMPoint 74,255
            LWMPoint 84,0
            LWMPoint 147,0
            LWMPoint 155,31
            LWMPoint 142,108
            LWMPoint 109,183
            LWMPoint 76,255
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 0,194
            LWMPoint 26,0
            LWMPoint 84,0
            LWMPoint 74,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,31,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,13,22
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 247,255
            LWMPoint 255,222
; 
; Main island
; 
          LWMPoly2   8,0,1,0,0
            LWMPoint 255,222
            LWMPoint 247,255
            LWMPoint 186,255
            LWMPoint 181,229
            LWMPoint 168,138
            LWMPoint 160,48
            LWMPoint 158,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 6,3,1,14,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 87,255
            LWMPoint 149,0
            LWMPoint 171,0
            LWMPoint 110,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 27,255
            LWMPoint 87,0
            LWMPoint 120,0
            LWMPoint 60,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 60,255
            LWMPoint 120,0
            LWMPoint 149,0
            LWMPoint 87,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,222
            LWMPoint 51,0
            LWMPoint 87,0
            LWMPoint 27,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 110,255
            LWMPoint 171,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 51,0
            LWMPoint 0,222
        LWMDataAreaDrawPolygons 1,3,1,15,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,18,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,19,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,20,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,21,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 255,131
            LWMPoint 161,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   6,0,0,212,64
            LWMPoint 255,133
            LWMPoint 153,77
            LWMPoint 63,7
            LWMPoint 58,0
            LWMPoint 161,0
            LWMPoint 255,131
        LWMDataAreaDrawPolygons 5,3,1,22,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 255,255
            LWMPoint 184,255
            LWMPoint 255,208
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 0,0
            LWMPoint 53,0
            LWMPoint 93,196
            LWMPoint 3,135
            LWMPoint 0,131
; 
; Upper lake
; 
          LWMPoly2   6,0,0,212,64
            LWMPoint 255,208
            LWMPoint 184,255
            LWMPoint 144,255
            LWMPoint 93,196
            LWMPoint 53,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 0,131
            LWMPoint 3,135
            LWMPoint 0,133
        LWMDataAreaDrawPolygons 3,3,1,23,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,208
            LWMPoint 255,37
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,37
            LWMPoint 0,208
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,24,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 0,0
            LWMPoint 56,0
            LWMPoint 0,37
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,37
            LWMPoint 56,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,25,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,26,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,27,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,28,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,29,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,175
            LWMPoint 213,254
            LWMPoint 247,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 0,0
            LWMPoint 247,0
            LWMPoint 213,254
            LWMPoint 212,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 3,3,1,30,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 76,0
            LWMPoint 74,3
            LWMPoint 74,0
; 
; Upper lake
; 
          LWMPoly2   6,0,0,212,64
            LWMPoint 0,0
            LWMPoint 74,0
            LWMPoint 74,3
            LWMPoint 42,84
            LWMPoint 4,168
            LWMPoint 0,175
        LWMDataAreaDrawPolygons 1,3,1,31,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,13,23
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,117
            LWMPoint 226,241
            LWMPoint 212,152
            LWMPoint 247,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,251
            LWMPoint 254,255
            LWMPoint 227,255
            LWMPoint 226,241
            LWMPoint 255,117
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 247,0
            LWMPoint 212,152
            LWMPoint 197,63
            LWMPoint 186,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 254,255
            LWMPoint 255,251
        LWMDataAreaDrawPolygons 5,3,1,14,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 26,255
            LWMPoint 87,0
            LWMPoint 110,0
            LWMPoint 48,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 48,255
            LWMPoint 110,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,117
            LWMPoint 27,0
            LWMPoint 60,0
            LWMPoint 0,251
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 27,0
            LWMPoint 0,117
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,251
            LWMPoint 60,0
            LWMPoint 87,0
            LWMPoint 26,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,15,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,18,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,19,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,20,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,21,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,22,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,144
            LWMPoint 219,105
            LWMPoint 158,17
            LWMPoint 184,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 184,0
            LWMPoint 158,17
            LWMPoint 144,0
        LWMDataAreaDrawPolygons 2,3,1,23,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   7,0,0,212,64
            LWMPoint 255,255
            LWMPoint 151,255
            LWMPoint 141,251
            LWMPoint 40,187
            LWMPoint 0,144
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,24,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,25,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,26,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,223
            LWMPoint 90,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 255,255
            LWMPoint 90,255
            LWMPoint 255,223
        LWMDataAreaDrawPolygons 3,3,1,27,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,223
            LWMPoint 255,174
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,174
            LWMPoint 0,223
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,28,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,124
            LWMPoint 0,174
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,174
            LWMPoint 255,124
        LWMDataAreaDrawPolygons 3,3,1,29,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 0,124
            LWMPoint 163,93
            LWMPoint 110,200
            LWMPoint 77,255
            LWMPoint 0,255
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 0,0
            LWMPoint 212,0
            LWMPoint 163,93
            LWMPoint 0,124
        LWMDataAreaDrawPolygons 1,3,1,30,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,31,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,13,24
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 254,0
            LWMPoint 236,75
            LWMPoint 227,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,199
            LWMPoint 242,255
            LWMPoint 242,164
            LWMPoint 255,109
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,109
            LWMPoint 242,164
            LWMPoint 236,75
            LWMPoint 254,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 242,255
            LWMPoint 255,199
        LWMDataAreaDrawPolygons 3,3,1,14,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,109
            LWMPoint 26,0
            LWMPoint 48,0
            LWMPoint 0,199
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 26,0
            LWMPoint 0,109
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,199
            LWMPoint 48,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,15,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,18,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,19,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,20,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,21,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,22,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,23,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 255,45
            LWMPoint 151,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,24,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,150
            LWMPoint 240,145
            LWMPoint 118,93
            LWMPoint 255,67
; 
; Upper lake
; 
          LWMPoly2   5,0,0,212,64
            LWMPoint 255,67
            LWMPoint 118,93
            LWMPoint 0,45
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,25,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 255,17
            LWMPoint 0,67
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   6,0,0,212,64
            LWMPoint 255,218
            LWMPoint 253,218
            LWMPoint 115,189
            LWMPoint 0,150
            LWMPoint 0,67
            LWMPoint 255,17
        LWMDataAreaDrawPolygons 3,3,1,26,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   6,0,0,212,64
            LWMPoint 255,235
            LWMPoint 142,230
            LWMPoint 0,218
            LWMPoint 0,17
            LWMPoint 90,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   3,0,0,212,64
            LWMPoint 0,0
            LWMPoint 90,0
            LWMPoint 0,17
        LWMDataAreaDrawPolygons 2,3,1,27,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   6,0,0,212,64
            LWMPoint 255,224
            LWMPoint 183,235
            LWMPoint 33,236
            LWMPoint 0,235
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,28,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   6,0,0,212,64
            LWMPoint 255,100
            LWMPoint 201,153
            LWMPoint 74,213
            LWMPoint 0,224
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,29,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Upper lake
; 
          LWMPoly2   4,0,0,212,64
            LWMPoint 0,0
            LWMPoint 77,0
            LWMPoint 43,57
            LWMPoint 0,100
        LWMDataAreaDrawPolygons 1,3,1,30,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,31,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,13,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 213,255
            LWMPoint 225,185
            LWMPoint 255,210
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,107
            LWMPoint 236,91
            LWMPoint 242,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,210
            LWMPoint 225,185
            LWMPoint 236,91
            LWMPoint 255,107
        LWMDataAreaDrawPolygons 3,3,1,14,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,107
            LWMPoint 179,255
            LWMPoint 55,255
            LWMPoint 0,210
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 179,255
            LWMPoint 0,107
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,210
            LWMPoint 55,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,15,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,18,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,19,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,20,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,21,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,22,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,23,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,24,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,25,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,26,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,27,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,28,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,29,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,30,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,31,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,13,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,176
            LWMPoint 190,124
            LWMPoint 209,26
            LWMPoint 255,63
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 163,255
            LWMPoint 169,224
            LWMPoint 190,124
            LWMPoint 255,176
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,63
            LWMPoint 209,26
            LWMPoint 213,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 5,3,1,14,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,63
            LWMPoint 237,255
            LWMPoint 99,255
            LWMPoint 0,176
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 237,255
            LWMPoint 0,63
            LWMPoint 0,0
            LWMPoint 55,0
            LWMPoint 255,163
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,63
            LWMPoint 179,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,163
            LWMPoint 55,0
            LWMPoint 179,0
            LWMPoint 255,63
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,176
            LWMPoint 99,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 3,3,1,15,26
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 233,255
            LWMPoint 0,63
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,163
            LWMPoint 112,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,63
            LWMPoint 233,255
            LWMPoint 112,255
            LWMPoint 0,163
        LWMDataAreaDrawPolygons 1,3,1,16,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,18,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,19,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,20,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,21,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,22,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,23,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,24,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,25,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,26,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,27,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,28,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,29,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,30,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,31,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,27
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 119,255
            LWMPoint 130,176
            LWMPoint 148,72
            LWMPoint 163,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,14,27
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,14
            LWMPoint 237,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,124
            LWMPoint 99,0
            LWMPoint 237,0
            LWMPoint 255,14
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 99,0
            LWMPoint 255,124
        LWMDataAreaDrawPolygons 5,3,1,15,27
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 164,255
            LWMPoint 0,124
            LWMPoint 0,14
            LWMPoint 255,221
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,221
            LWMPoint 0,14
            LWMPoint 0,0
            LWMPoint 112,0
            LWMPoint 255,117
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,117
            LWMPoint 112,0
            LWMPoint 233,0
            LWMPoint 255,18
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,124
            LWMPoint 164,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,18
            LWMPoint 233,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,16,27
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,221
            LWMPoint 43,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,228
            LWMPoint 0,18
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,117
            LWMPoint 169,255
            LWMPoint 43,255
            LWMPoint 0,221
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 169,255
            LWMPoint 0,117
            LWMPoint 0,18
            LWMPoint 255,228
        LWMDataAreaDrawPolygons 2,3,1,17,27
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 32,255
            LWMPoint 0,228
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,228
            LWMPoint 32,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,18,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,19,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,20,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,21,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,22,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,23,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,24,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,25,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,26,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,27,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,28,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,29,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,30,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,31,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,28
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 255,255
            LWMPoint 106,255
            LWMPoint 105,239
            LWMPoint 106,133
            LWMPoint 115,27
            LWMPoint 119,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,14,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,15,28
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 164,0
            LWMPoint 255,73
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,73
            LWMPoint 164,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,16,28
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,70
            LWMPoint 169,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,73
            LWMPoint 228,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 228,255
            LWMPoint 0,73
            LWMPoint 0,0
            LWMPoint 43,0
            LWMPoint 255,172
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,172
            LWMPoint 43,0
            LWMPoint 169,0
            LWMPoint 255,70
        LWMDataAreaDrawPolygons 4,3,1,17,28
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,184
            LWMPoint 32,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,172
            LWMPoint 103,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,70
            LWMPoint 226,255
            LWMPoint 103,255
            LWMPoint 0,172
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 226,255
            LWMPoint 0,70
            LWMPoint 0,0
            LWMPoint 32,0
            LWMPoint 255,184
        LWMDataAreaDrawPolygons 2,3,1,18,28
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 86,255
            LWMPoint 0,184
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,184
            LWMPoint 86,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,19,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,20,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,21,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,22,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,23,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,24,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,25,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,26,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,27,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,28,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,29,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,30,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,31,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,29
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 142,255
            LWMPoint 126,193
            LWMPoint 111,89
            LWMPoint 106,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,14,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,15,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,16,29
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,21
            LWMPoint 228,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 228,0
            LWMPoint 255,21
        LWMDataAreaDrawPolygons 4,3,1,17,29
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,225
            LWMPoint 0,21
            LWMPoint 0,0
            LWMPoint 103,0
            LWMPoint 255,123
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,21
            LWMPoint 255,225
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,24
            LWMPoint 226,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,123
            LWMPoint 103,0
            LWMPoint 226,0
            LWMPoint 255,24
        LWMDataAreaDrawPolygons 5,3,1,18,29
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,225
            LWMPoint 38,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 163,255
            LWMPoint 0,123
            LWMPoint 0,24
            LWMPoint 255,233
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,139
            LWMPoint 86,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,233
            LWMPoint 0,24
            LWMPoint 0,0
            LWMPoint 86,0
            LWMPoint 255,139
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,123
            LWMPoint 163,255
            LWMPoint 38,255
            LWMPoint 0,225
        LWMDataAreaDrawPolygons 3,3,1,19,29
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,233
            LWMPoint 27,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 140,255
            LWMPoint 0,139
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,139
            LWMPoint 140,255
            LWMPoint 27,255
            LWMPoint 0,233
        LWMDataAreaDrawPolygons 1,3,1,20,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,21,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,22,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,23,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,24,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,25,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,26,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,27,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,28,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,29,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,30,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,31,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,30
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 255,255
            LWMPoint 239,255
            LWMPoint 229,236
            LWMPoint 185,139
            LWMPoint 151,40
            LWMPoint 142,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,14,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,15,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,18,30
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,74
            LWMPoint 163,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 38,0
            LWMPoint 255,173
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,173
            LWMPoint 38,0
            LWMPoint 163,0
            LWMPoint 255,74
        LWMDataAreaDrawPolygons 5,3,1,19,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,186
            LWMPoint 27,0
            LWMPoint 140,0
            LWMPoint 255,95
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 224,255
            LWMPoint 0,74
            LWMPoint 0,0
            LWMPoint 27,0
            LWMPoint 255,186
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,74
            LWMPoint 224,255
            LWMPoint 102,255
            LWMPoint 0,173
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,95
            LWMPoint 140,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,173
            LWMPoint 102,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 3,3,1,20,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,95
            LWMPoint 194,255
            LWMPoint 84,255
            LWMPoint 0,186
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,186
            LWMPoint 84,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 194,255
            LWMPoint 0,95
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,21,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,22,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,23,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,24,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,25,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,26,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,27,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,28,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,29,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,30,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,31,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,31
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,28
            LWMPoint 239,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,14,31
; 
; Main island
; 
          LWMPoly2   8,0,1,0,0
            LWMPoint 255,255
            LWMPoint 156,255
            LWMPoint 152,251
            LWMPoint 85,164
            LWMPoint 26,74
            LWMPoint 0,28
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,15,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,18,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,19,31
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,25
            LWMPoint 224,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 102,0
            LWMPoint 255,122
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,122
            LWMPoint 102,0
            LWMPoint 224,0
            LWMPoint 255,25
        LWMDataAreaDrawPolygons 5,3,1,20,31
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,50
            LWMPoint 194,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,232
            LWMPoint 0,25
            LWMPoint 0,0
            LWMPoint 84,0
            LWMPoint 255,140
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 167,255
            LWMPoint 0,122
            LWMPoint 0,25
            LWMPoint 255,232
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,122
            LWMPoint 167,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,140
            LWMPoint 84,0
            LWMPoint 194,0
            LWMPoint 255,50
        LWMDataAreaDrawPolygons 4,3,1,21,31
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,232
            LWMPoint 29,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,50
            LWMPoint 248,255
            LWMPoint 141,255
            LWMPoint 0,140
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 248,255
            LWMPoint 0,50
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,140
            LWMPoint 141,255
            LWMPoint 29,255
            LWMPoint 0,232
        LWMDataAreaDrawPolygons 1,3,1,22,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,23,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,24,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,25,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,26,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,27,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,28,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,29,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,30,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,31,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
    datamark_3  label   word
        LWMDataAreaDrawPolygons 1,3,1,18,8
; 
; North-east islet
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 231,255
            LWMPoint 237,246
            LWMPoint 255,231
        LWMDataAreaDrawPolygons 1,3,1,19,8
; 
; North-east islet
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,231
            LWMPoint 77,167
            LWMPoint 193,111
            LWMPoint 255,87
        LWMDataAreaDrawPolygons 1,3,1,20,8
; 
; North-east islet
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,87
            LWMPoint 54,66
            LWMPoint 171,37
            LWMPoint 255,30
        LWMDataAreaDrawPolygons 1,3,1,21,8
; 
; North-east islet
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,30
            LWMPoint 35,28
            LWMPoint 149,36
            LWMPoint 255,60
        LWMDataAreaDrawPolygons 1,3,1,22,8
; 
; North-east islet
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,60
            LWMPoint 95,84
            LWMPoint 186,110
            LWMPoint 255,146
        LWMDataAreaDrawPolygons 2,3,1,23,8
; 
; North-east islet
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,146
            LWMPoint 9,151
            LWMPoint 83,194
            LWMPoint 146,255
            LWMPoint 0,255
; 
; North-east islet
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 146,255
            LWMPoint 83,194
            LWMPoint 159,234
            LWMPoint 178,255
        LWMDataAreaDrawPolygons 1,3,1,5,9
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 203,255
            LWMPoint 255,249
        LWMDataAreaDrawPolygons 1,3,1,6,9
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 0,249
            LWMPoint 23,246
            LWMPoint 140,244
            LWMPoint 252,255
            LWMPoint 255,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,18,9
; 
; North-east islet
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 101,255
            LWMPoint 113,192
            LWMPoint 171,88
            LWMPoint 231,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,19,9
; 
; North-east islet
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,20,9
; 
; North-east islet
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,21,9
; 
; North-east islet
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Crater pond
; 
          LWMPoly2   7,0,0,41,0
            LWMPoint 255,255
            LWMPoint 41,255
            LWMPoint 40,251
            LWMPoint 56,193
            LWMPoint 110,150
            LWMPoint 175,116
            LWMPoint 255,105
        LWMDataAreaDrawPolygons 2,3,1,22,9
; 
; North-east islet
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Crater pond
; 
          LWMPoly2   7,0,0,41,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,105
            LWMPoint 89,93
            LWMPoint 171,123
            LWMPoint 247,166
            LWMPoint 255,178
        LWMDataAreaDrawPolygons 3,3,1,23,9
; 
; North-east islet
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 146,0
            LWMPoint 251,102
            LWMPoint 255,106
; 
; North-east islet
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 178,0
            LWMPoint 212,37
            LWMPoint 251,102
            LWMPoint 146,0
; 
; Crater pond
; 
          LWMPoly2   4,0,0,41,0
            LWMPoint 0,178
            LWMPoint 35,231
            LWMPoint 40,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,24,9
; 
; North-east islet
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,106
            LWMPoint 46,162
            LWMPoint 77,231
            LWMPoint 83,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 6,3,1,0,10
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,27
            LWMPoint 2,28
            LWMPoint 97,61
            LWMPoint 0,53
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,134
            LWMPoint 0,111
            LWMPoint 0,96
            LWMPoint 255,118
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 199,255
            LWMPoint 255,235
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,118
            LWMPoint 0,96
            LWMPoint 0,76
            LWMPoint 190,92
            LWMPoint 255,112
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,53
            LWMPoint 97,61
            LWMPoint 190,92
            LWMPoint 0,76
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,235
            LWMPoint 199,255
            LWMPoint 0,255
            LWMPoint 0,111
            LWMPoint 255,134
        LWMDataAreaDrawPolygons 4,3,1,1,10
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,112
            LWMPoint 27,121
            LWMPoint 0,118
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,235
            LWMPoint 211,160
            LWMPoint 255,164
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,134
            LWMPoint 119,144
            LWMPoint 211,160
            LWMPoint 0,235
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,118
            LWMPoint 27,121
            LWMPoint 119,144
            LWMPoint 0,134
        LWMDataAreaDrawPolygons 4,3,1,2,10
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,164
            LWMPoint 50,168
            LWMPoint 251,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 251,255
            LWMPoint 50,168
            LWMPoint 146,166
            LWMPoint 255,214
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,214
            LWMPoint 146,166
            LWMPoint 245,156
            LWMPoint 255,160
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,160
            LWMPoint 245,156
            LWMPoint 255,154
        LWMDataAreaDrawPolygons 5,3,1,3,10
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,211
            LWMPoint 94,137
            LWMPoint 202,113
            LWMPoint 255,138
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,138
            LWMPoint 202,113
            LWMPoint 255,99
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,160
            LWMPoint 211,255
            LWMPoint 92,255
            LWMPoint 0,214
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 211,255
            LWMPoint 0,160
            LWMPoint 0,154
            LWMPoint 94,137
            LWMPoint 255,211
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,214
            LWMPoint 92,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 4,3,1,4,10
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 252,255
            LWMPoint 0,138
            LWMPoint 0,99
            LWMPoint 59,84
            LWMPoint 255,177
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,177
            LWMPoint 59,84
            LWMPoint 175,55
            LWMPoint 255,36
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,211
            LWMPoint 96,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,138
            LWMPoint 252,255
            LWMPoint 96,255
            LWMPoint 0,211
        LWMDataAreaDrawPolygons 2,3,1,5,10
; 
; Main island
; 
          LWMPoly2   8,0,1,0,0
            LWMPoint 255,255
            LWMPoint 164,255
            LWMPoint 0,177
            LWMPoint 0,36
            LWMPoint 39,27
            LWMPoint 159,5
            LWMPoint 203,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,177
            LWMPoint 164,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,6,10
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,7,10
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 102,24
            LWMPoint 198,64
            LWMPoint 255,99
        LWMDataAreaDrawPolygons 1,3,1,8,10
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,99
            LWMPoint 30,118
            LWMPoint 106,185
            LWMPoint 165,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,18,10
; 
; North-east islet
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,254
            LWMPoint 247,247
            LWMPoint 145,158
            LWMPoint 91,49
            LWMPoint 101,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,19,10
; 
; North-east islet
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 2,255
            LWMPoint 0,254
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,20,10
; 
; North-east islet
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,21,10
; 
; North-east islet
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Crater pond
; 
          LWMPoly2   7,0,0,41,0
            LWMPoint 255,220
            LWMPoint 189,207
            LWMPoint 137,174
            LWMPoint 96,138
            LWMPoint 53,100
            LWMPoint 54,49
            LWMPoint 255,127
; 
; Crater pond
; 
          LWMPoly2   4,0,0,41,0
            LWMPoint 255,127
            LWMPoint 54,49
            LWMPoint 41,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,22,10
; 
; North-east islet
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Crater pond
; 
          LWMPoly2   4,0,0,41,0
            LWMPoint 0,127
            LWMPoint 114,171
            LWMPoint 64,203
            LWMPoint 0,220
; 
; Crater pond
; 
          LWMPoly2   7,0,0,41,0
            LWMPoint 255,112
            LWMPoint 255,113
            LWMPoint 186,154
            LWMPoint 114,171
            LWMPoint 0,127
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,23,10
; 
; North-east islet
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Crater pond
; 
          LWMPoly2   4,0,0,41,0
            LWMPoint 0,0
            LWMPoint 40,0
            LWMPoint 50,49
            LWMPoint 0,112
        LWMDataAreaDrawPolygons 2,3,1,24,10
; 
; North-east islet
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 14,255
            LWMPoint 96,49
            LWMPoint 134,130
            LWMPoint 149,218
            LWMPoint 137,255
; 
; North-east islet
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,0
            LWMPoint 83,0
            LWMPoint 96,49
            LWMPoint 14,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 2,3,1,0,11
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 199,0
            LWMPoint 0,71
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,71
            LWMPoint 199,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,11
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,2,11
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,2
            LWMPoint 251,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 251,0
            LWMPoint 255,2
        LWMDataAreaDrawPolygons 4,3,1,3,11
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,2
            LWMPoint 255,113
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,20
            LWMPoint 211,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,113
            LWMPoint 0,2
            LWMPoint 0,0
            LWMPoint 92,0
            LWMPoint 255,72
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,72
            LWMPoint 92,0
            LWMPoint 211,0
            LWMPoint 255,20
        LWMDataAreaDrawPolygons 6,3,1,4,11
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,1
            LWMPoint 252,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,185
            LWMPoint 0,72
            LWMPoint 0,20
            LWMPoint 255,134
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,134
            LWMPoint 0,20
            LWMPoint 0,0
            LWMPoint 96,0
            LWMPoint 255,73
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,113
            LWMPoint 255,224
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,224
            LWMPoint 0,113
            LWMPoint 0,72
            LWMPoint 255,185
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,73
            LWMPoint 96,0
            LWMPoint 252,0
            LWMPoint 255,1
        LWMDataAreaDrawPolygonsEx 7,3,1,5,11,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,185
            LWMPoint 159,255
            LWMPoint 72,255
            LWMPoint 0,224
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,224
            LWMPoint 72,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,189
            LWMPoint 0,73
            LWMPoint 0,1
            LWMPoint 255,120
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,43
            LWMPoint 164,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,249
            LWMPoint 0,134
            LWMPoint 0,73
            LWMPoint 255,189
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,120
            LWMPoint 0,1
            LWMPoint 0,0
            LWMPoint 164,0
            LWMPoint 255,43
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 159,255
            LWMPoint 0,185
            LWMPoint 0,134
            LWMPoint 255,249
        LWMDataAreaDrawPolygons 5,3,1,6,11
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,249
            LWMPoint 14,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,164
            LWMPoint 0,43
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,189
            LWMPoint 143,255
            LWMPoint 14,255
            LWMPoint 0,249
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 143,255
            LWMPoint 0,189
            LWMPoint 0,120
            LWMPoint 255,239
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,239
            LWMPoint 0,120
            LWMPoint 0,43
            LWMPoint 255,164
        LWMDataAreaDrawPolygons 3,3,1,7,11
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 192,255
            LWMPoint 0,164
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,164
            LWMPoint 192,255
            LWMPoint 34,255
            LWMPoint 0,239
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,239
            LWMPoint 34,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,8,11
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 165,0
            LWMPoint 172,9
            LWMPoint 228,96
            LWMPoint 255,147
        LWMDataAreaDrawPolygons 1,3,1,9,11
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,147
            LWMPoint 21,188
            LWMPoint 51,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 2,3,1,19,11
; 
; North-east islet
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 237,255
            LWMPoint 199,239
            LWMPoint 139,151
            LWMPoint 83,67
            LWMPoint 255,183
; 
; North-east islet
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,183
            LWMPoint 83,67
            LWMPoint 2,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,20,11
; 
; North-east islet
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,183
            LWMPoint 107,255
            LWMPoint 0,255
; 
; North-east islet
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 107,255
            LWMPoint 0,183
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,21,11
; 
; North-east islet
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,22,11
; 
; North-east islet
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,23,11
; 
; North-east islet
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,34
            LWMPoint 168,252
            LWMPoint 165,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; North-east islet
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,211
            LWMPoint 168,252
            LWMPoint 255,34
        LWMDataAreaDrawPolygons 2,3,1,24,11
; 
; North-east islet
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 0,34
            LWMPoint 14,0
            LWMPoint 137,0
            LWMPoint 122,48
            LWMPoint 84,133
            LWMPoint 12,205
            LWMPoint 0,211
; 
; North-east islet
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 14,0
            LWMPoint 0,34
        LWMDataAreaDrawPolygons 1,3,1,0,12
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,12
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,2,12
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,3,12
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,4,12
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,5,12
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,80
            LWMPoint 72,0
            LWMPoint 159,0
            LWMPoint 255,42
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,42
            LWMPoint 159,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 72,0
            LWMPoint 255,80
        LWMDataAreaDrawPolygons 5,3,1,6,12
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,51
            LWMPoint 143,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,80
            LWMPoint 255,190
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,109
            LWMPoint 14,0
            LWMPoint 143,0
            LWMPoint 255,51
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,155
            LWMPoint 0,42
            LWMPoint 0,0
            LWMPoint 14,0
            LWMPoint 255,109
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,190
            LWMPoint 0,80
            LWMPoint 0,42
            LWMPoint 255,155
        LWMDataAreaDrawPolygonsEx 7,3,1,7,12,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,223
            LWMPoint 0,109
            LWMPoint 0,51
            LWMPoint 255,168
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,155
            LWMPoint 226,255
            LWMPoint 148,255
            LWMPoint 0,190
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 226,255
            LWMPoint 0,155
            LWMPoint 0,109
            LWMPoint 255,223
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,168
            LWMPoint 0,51
            LWMPoint 0,0
            LWMPoint 34,0
            LWMPoint 255,103
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,30
            LWMPoint 192,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,103
            LWMPoint 34,0
            LWMPoint 192,0
            LWMPoint 255,30
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,190
            LWMPoint 148,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 5,3,1,8,12
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,223
            LWMPoint 71,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,222
            LWMPoint 0,103
            LWMPoint 0,30
            LWMPoint 255,151
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 190,255
            LWMPoint 0,168
            LWMPoint 0,103
            LWMPoint 255,222
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,168
            LWMPoint 190,255
            LWMPoint 71,255
            LWMPoint 0,223
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,151
            LWMPoint 0,30
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,9,12
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,222
            LWMPoint 71,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,151
            LWMPoint 137,216
            LWMPoint 154,255
            LWMPoint 71,255
            LWMPoint 0,222
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 0,0
            LWMPoint 51,0
            LWMPoint 63,29
            LWMPoint 101,124
            LWMPoint 137,216
            LWMPoint 0,151
        LWMDataAreaDrawPolygons 1,3,1,19,12
; 
; North-east islet
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,7
            LWMPoint 237,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,20,12
; 
; North-east islet
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,0
            LWMPoint 107,0
            LWMPoint 179,49
            LWMPoint 56,30
            LWMPoint 0,7
; 
; North-east islet
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,94
            LWMPoint 179,49
            LWMPoint 107,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,21,12
; 
; North-east islet
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,189
            LWMPoint 127,175
            LWMPoint 20,107
            LWMPoint 255,88
; 
; North-east islet
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,88
            LWMPoint 20,107
            LWMPoint 0,94
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,22,12
; 
; North-east islet
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,69
            LWMPoint 0,88
            LWMPoint 0,0
            LWMPoint 255,0
; 
; North-east islet
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,128
            LWMPoint 246,135
            LWMPoint 127,172
            LWMPoint 0,189
            LWMPoint 0,88
            LWMPoint 255,69
        LWMDataAreaDrawPolygons 2,3,1,23,12
; 
; North-east islet
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,69
            LWMPoint 84,62
            LWMPoint 0,128
; 
; North-east islet
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 165,0
            LWMPoint 84,62
            LWMPoint 0,69
        LWMDataAreaDrawPolygons 1,3,1,0,13
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,13
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,2,13
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,3,13
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,4,13
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,5,13
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,6,13
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,7,13
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,13
            LWMPoint 226,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,46
            LWMPoint 148,0
            LWMPoint 226,0
            LWMPoint 255,13
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 148,0
            LWMPoint 255,46
        LWMDataAreaDrawPolygons 5,3,1,8,13
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,30
            LWMPoint 190,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,125
            LWMPoint 0,13
            LWMPoint 0,0
            LWMPoint 71,0
            LWMPoint 255,83
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,83
            LWMPoint 71,0
            LWMPoint 190,0
            LWMPoint 255,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,157
            LWMPoint 0,46
            LWMPoint 0,13
            LWMPoint 255,125
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,46
            LWMPoint 255,157
        LWMDataAreaDrawPolygons 6,3,1,9,13
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,157
            LWMPoint 225,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,197
            LWMPoint 0,83
            LWMPoint 0,30
            LWMPoint 216,128
            LWMPoint 255,189
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 225,255
            LWMPoint 0,157
            LWMPoint 0,125
            LWMPoint 255,238
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 154,0
            LWMPoint 175,48
            LWMPoint 71,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,238
            LWMPoint 0,125
            LWMPoint 0,83
            LWMPoint 255,197
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,0
            LWMPoint 71,0
            LWMPoint 175,48
            LWMPoint 216,128
            LWMPoint 0,30
        LWMDataAreaDrawPolygons 3,3,1,10,13
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,197
            LWMPoint 8,201
            LWMPoint 53,255
            LWMPoint 39,255
            LWMPoint 0,238
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,189
            LWMPoint 8,201
            LWMPoint 0,197
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,238
            LWMPoint 39,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,0,14
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,14
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,2,14
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,3,14
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,4,14
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,5,14
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 170,255
            LWMPoint 255,246
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,246
            LWMPoint 170,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,6,14
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,219
            LWMPoint 0,246
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,246
            LWMPoint 255,219
        LWMDataAreaDrawPolygons 2,3,1,7,14
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,219
            LWMPoint 255,192
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,192
            LWMPoint 0,219
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,8,14
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,165
            LWMPoint 0,192
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,192
            LWMPoint 255,165
        LWMDataAreaDrawPolygons 3,3,1,9,14
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,138
            LWMPoint 0,165
            LWMPoint 0,0
            LWMPoint 225,0
            LWMPoint 255,13
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,13
            LWMPoint 225,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,165
            LWMPoint 255,138
        LWMDataAreaDrawPolygons 4,3,1,10,14
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,251
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,138
            LWMPoint 195,117
            LWMPoint 255,151
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,0
            LWMPoint 39,0
            LWMPoint 62,10
            LWMPoint 124,67
            LWMPoint 0,13
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,13
            LWMPoint 124,67
            LWMPoint 195,117
            LWMPoint 0,138
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 53,0
            LWMPoint 62,10
            LWMPoint 39,0
        LWMDataAreaDrawPolygons 4,3,1,11,14
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 156,255
            LWMPoint 106,203
            LWMPoint 198,242
            LWMPoint 222,255
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 222,255
            LWMPoint 198,242
            LWMPoint 229,255
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,151
            LWMPoint 19,162
            LWMPoint 0,251
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,251
            LWMPoint 19,162
            LWMPoint 106,203
            LWMPoint 156,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 2,3,1,0,15
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,153
            LWMPoint 255,126
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,126
            LWMPoint 0,153
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,1,15
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,99
            LWMPoint 0,126
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,126
            LWMPoint 255,99
        LWMDataAreaDrawPolygons 2,3,1,2,15
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,99
            LWMPoint 255,72
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,72
            LWMPoint 0,99
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,3,15
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,45
            LWMPoint 0,72
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,72
            LWMPoint 255,45
        LWMDataAreaDrawPolygons 2,3,1,4,15
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,45
            LWMPoint 255,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,18
            LWMPoint 0,45
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,5,15
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 170,0
            LWMPoint 0,18
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,18
            LWMPoint 170,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,6,15
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,7,15
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,8,15
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,9,15
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,10,15
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 198,255
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 255,0
            LWMPoint 198,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 3,3,1,11,15
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 156,0
            LWMPoint 255,102
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,18
            LWMPoint 222,0
            LWMPoint 229,0
            LWMPoint 255,10
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,102
            LWMPoint 156,0
            LWMPoint 222,0
            LWMPoint 255,18
        LWMDataAreaDrawPolygons 4,3,1,12,15
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,153
            LWMPoint 0,18
            LWMPoint 0,10
            LWMPoint 39,26
            LWMPoint 255,141
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 149,255
            LWMPoint 0,102
            LWMPoint 0,18
            LWMPoint 255,153
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,102
            LWMPoint 149,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,141
            LWMPoint 39,26
            LWMPoint 138,65
            LWMPoint 238,106
            LWMPoint 255,114
        LWMDataAreaDrawPolygons 3,3,1,13,15
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,153
            LWMPoint 193,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,141
            LWMPoint 215,255
            LWMPoint 193,255
            LWMPoint 0,153
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 255,255
            LWMPoint 215,255
            LWMPoint 0,141
            LWMPoint 0,114
            LWMPoint 82,151
            LWMPoint 180,198
            LWMPoint 255,237
        LWMDataAreaDrawPolygons 1,3,1,14,15
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,237
            LWMPoint 21,248
            LWMPoint 33,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,0,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,2,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,3,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,4,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,5,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,6,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,7,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,8,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,9,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,10,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 198,0
            LWMPoint 142,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 142,255
            LWMPoint 198,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,11,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,12,16
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 149,0
            LWMPoint 255,109
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,109
            LWMPoint 149,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,13,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,33
            LWMPoint 193,0
            LWMPoint 215,0
            LWMPoint 255,21
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,21
            LWMPoint 215,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 143,255
            LWMPoint 0,109
            LWMPoint 0,0
            LWMPoint 193,0
            LWMPoint 255,33
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,109
            LWMPoint 143,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 3,3,1,14,16
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,33
            LWMPoint 255,168
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,168
            LWMPoint 0,33
            LWMPoint 0,21
            LWMPoint 255,157
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 255,157
            LWMPoint 0,21
            LWMPoint 0,0
            LWMPoint 33,0
            LWMPoint 115,47
            LWMPoint 209,103
            LWMPoint 255,132
        LWMDataAreaDrawPolygons 3,3,1,15,16
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 0,132
            LWMPoint 47,161
            LWMPoint 141,222
            LWMPoint 193,255
            LWMPoint 184,255
            LWMPoint 0,157
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,157
            LWMPoint 184,255
            LWMPoint 164,255
            LWMPoint 0,168
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,168
            LWMPoint 164,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,0,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,2,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,3,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,4,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,5,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,6,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,7,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,8,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,9,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,10,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 142,0
            LWMPoint 86,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 86,255
            LWMPoint 142,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,11,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,12,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,13,17
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 143,0
            LWMPoint 255,115
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,115
            LWMPoint 143,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,14,17
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 136,255
            LWMPoint 0,115
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,115
            LWMPoint 136,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 3,3,1,15,17
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,48
            LWMPoint 164,0
            LWMPoint 184,0
            LWMPoint 238,29
            LWMPoint 255,40
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 164,0
            LWMPoint 255,48
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 193,0
            LWMPoint 238,29
            LWMPoint 184,0
        LWMDataAreaDrawPolygons 3,3,1,16,17
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,48
            LWMPoint 82,92
            LWMPoint 186,157
            LWMPoint 252,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 252,255
            LWMPoint 186,157
            LWMPoint 255,199
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,40
            LWMPoint 82,92
            LWMPoint 0,48
        LWMDataAreaDrawPolygons 2,3,1,17,17
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,199
            LWMPoint 40,223
            LWMPoint 61,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 61,255
            LWMPoint 40,223
            LWMPoint 92,255
        LWMDataAreaDrawPolygons 1,3,1,0,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,2,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,3,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,4,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,5,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,6,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,7,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,8,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,9,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,10,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 86,0
            LWMPoint 30,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 30,255
            LWMPoint 86,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,11,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,12,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,18
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,14,18
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,122
            LWMPoint 136,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 136,0
            LWMPoint 255,122
        LWMDataAreaDrawPolygons 2,3,1,15,18
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,122
            LWMPoint 129,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 129,255
            LWMPoint 0,122
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,16,18
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,4
            LWMPoint 252,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 252,0
            LWMPoint 255,4
        LWMDataAreaDrawPolygons 3,3,1,17,18
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,4
            LWMPoint 168,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,0
            LWMPoint 61,0
            LWMPoint 234,255
            LWMPoint 168,255
            LWMPoint 0,4
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 234,255
            LWMPoint 61,0
            LWMPoint 92,0
            LWMPoint 152,36
            LWMPoint 255,100
        LWMDataAreaDrawPolygons 1,3,1,18,18
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,100
            LWMPoint 12,107
            LWMPoint 129,181
            LWMPoint 238,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,0,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,2,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,3,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,4,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,5,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,6,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,7,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,8,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,9,19
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 229,255
            LWMPoint 255,138
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,138
            LWMPoint 229,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,10,19
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 30,0
            LWMPoint 0,138
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,138
            LWMPoint 30,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,11,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,12,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,14,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,15,19
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 129,0
            LWMPoint 255,129
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,129
            LWMPoint 129,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,16,19
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 123,255
            LWMPoint 0,129
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,129
            LWMPoint 123,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 3,3,1,17,19
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,131
            LWMPoint 168,0
            LWMPoint 234,0
            LWMPoint 255,30
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,30
            LWMPoint 234,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 168,0
            LWMPoint 255,131
        LWMDataAreaDrawPolygons 3,3,1,18,19
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 255,255
            LWMPoint 152,255
            LWMPoint 0,30
            LWMPoint 0,0
            LWMPoint 238,0
            LWMPoint 244,4
            LWMPoint 255,12
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,131
            LWMPoint 83,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,30
            LWMPoint 152,255
            LWMPoint 83,255
            LWMPoint 0,131
        LWMDataAreaDrawPolygons 1,3,1,19,19
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,12
            LWMPoint 102,86
            LWMPoint 208,173
            LWMPoint 255,217
        LWMDataAreaDrawPolygons 1,3,1,20,19
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,217
            LWMPoint 41,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,0,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,2,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,3,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,4,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,5,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,6,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,7,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,8,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,9,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 229,0
            LWMPoint 173,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 173,255
            LWMPoint 229,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,10,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,11,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,12,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,14,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,15,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,16,20
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,136
            LWMPoint 123,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 123,0
            LWMPoint 255,136
        LWMDataAreaDrawPolygons 2,3,1,17,20
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,136
            LWMPoint 116,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 116,255
            LWMPoint 0,136
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,18,20
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 83,0
            LWMPoint 254,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 254,255
            LWMPoint 83,0
            LWMPoint 152,0
            LWMPoint 255,151
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,151
            LWMPoint 152,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,19,20
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,151
            LWMPoint 70,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 70,255
            LWMPoint 0,151
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,20,20
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 0,0
            LWMPoint 41,0
            LWMPoint 51,9
            LWMPoint 138,104
            LWMPoint 212,204
            LWMPoint 241,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,0,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,2,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,3,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,4,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,5,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,6,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,7,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,8,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,9,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 173,0
            LWMPoint 117,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 117,255
            LWMPoint 173,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,10,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,11,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,12,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,14,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,15,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,17,21
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,143
            LWMPoint 116,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 116,0
            LWMPoint 255,143
        LWMDataAreaDrawPolygons 3,3,1,18,21
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 109,255
            LWMPoint 0,143
            LWMPoint 0,0
            LWMPoint 254,0
            LWMPoint 255,2
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,143
            LWMPoint 109,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,2
            LWMPoint 254,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,19,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 243,255
            LWMPoint 70,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,2
            LWMPoint 169,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,0
            LWMPoint 70,0
            LWMPoint 243,255
            LWMPoint 169,255
            LWMPoint 0,2
        LWMDataAreaDrawPolygons 1,3,1,20,21
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 241,0
            LWMPoint 255,23
        LWMDataAreaDrawPolygons 1,3,1,21,21
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,23
            LWMPoint 17,52
            LWMPoint 62,158
            LWMPoint 91,255
            LWMPoint 0,255
      LWMDataAreaFill1x1        0,1,1,0,22
        LWMDataAreaDrawPolygons 1,3,1,0,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,2,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,3,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,4,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,5,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,6,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,7,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,8,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,9,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 117,0
            LWMPoint 61,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 61,255
            LWMPoint 117,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,10,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,11,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,12,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,14,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,15,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,22
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,18,22
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 109,0
            LWMPoint 255,150
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,150
            LWMPoint 109,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,19,22
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,17
            LWMPoint 243,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 102,255
            LWMPoint 0,150
            LWMPoint 0,0
            LWMPoint 169,0
            LWMPoint 255,129
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,129
            LWMPoint 169,0
            LWMPoint 243,0
            LWMPoint 255,17
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,150
            LWMPoint 102,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 3,3,1,20,22
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 161,255
            LWMPoint 0,17
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,129
            LWMPoint 84,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,17
            LWMPoint 161,255
            LWMPoint 84,255
            LWMPoint 0,129
        LWMDataAreaDrawPolygons 1,3,1,21,22
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 0,0
            LWMPoint 91,0
            LWMPoint 94,10
            LWMPoint 113,119
            LWMPoint 122,229
            LWMPoint 122,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,0,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,2,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,3,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,4,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,5,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,6,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,7,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,8,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,9,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 61,0
            LWMPoint 5,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 5,255
            LWMPoint 61,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,10,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,11,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,12,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,14,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,15,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,18,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,19,23
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 102,0
            LWMPoint 255,157
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,157
            LWMPoint 102,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,20,23
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 84,0
            LWMPoint 161,0
            LWMPoint 255,138
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,157
            LWMPoint 96,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,138
            LWMPoint 161,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,0
            LWMPoint 84,0
            LWMPoint 255,255
            LWMPoint 96,255
            LWMPoint 0,157
        LWMDataAreaDrawPolygons 2,3,1,21,23
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,138
            LWMPoint 79,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 0,0
            LWMPoint 122,0
            LWMPoint 123,83
            LWMPoint 118,193
            LWMPoint 114,255
            LWMPoint 79,255
            LWMPoint 0,138
        LWMDataAreaDrawPolygons 1,3,1,0,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,2,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,3,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,4,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,5,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,255
            LWMPoint 193,255
            LWMPoint 210,253
            LWMPoint 255,248
        LWMDataAreaDrawPolygons 4,3,1,6,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   3,0,0,96,0
            LWMPoint 255,255
            LWMPoint 246,255
            LWMPoint 255,250
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 0,248
            LWMPoint 52,242
            LWMPoint 30,255
            LWMPoint 0,255
; 
; Lower lake
; 
          LWMPoly2   7,0,0,96,0
            LWMPoint 255,250
            LWMPoint 246,255
            LWMPoint 30,255
            LWMPoint 52,242
            LWMPoint 143,230
            LWMPoint 234,220
            LWMPoint 255,219
        LWMDataAreaDrawPolygons 4,3,1,7,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   3,0,0,96,0
            LWMPoint 0,219
            LWMPoint 70,215
            LWMPoint 0,250
; 
; Lower lake
; 
          LWMPoly2   3,0,0,96,0
            LWMPoint 255,228
            LWMPoint 164,206
            LWMPoint 255,198
; 
; Lower lake
; 
          LWMPoly2   6,0,0,96,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,250
            LWMPoint 70,215
            LWMPoint 164,206
            LWMPoint 255,228
        LWMDataAreaDrawPolygons 4,3,1,8,24
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 205,255
            LWMPoint 255,25
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,25
            LWMPoint 205,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   7,0,0,96,0
            LWMPoint 0,198
            LWMPoint 8,197
            LWMPoint 106,206
            LWMPoint 191,244
            LWMPoint 208,255
            LWMPoint 114,255
            LWMPoint 0,228
; 
; Lower lake
; 
          LWMPoly2   3,0,0,96,0
            LWMPoint 0,228
            LWMPoint 114,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 2,3,1,9,24
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 5,0
            LWMPoint 0,25
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,25
            LWMPoint 5,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,10,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,11,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,12,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,14,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,15,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,18,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,19,24
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,20,24
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,163
            LWMPoint 96,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 96,0
            LWMPoint 255,163
        LWMDataAreaDrawPolygons 4,3,1,21,24
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,163
            LWMPoint 89,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 79,0
            LWMPoint 111,48
            LWMPoint 105,157
            LWMPoint 0,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 114,0
            LWMPoint 111,48
            LWMPoint 79,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,0
            LWMPoint 105,157
            LWMPoint 102,255
            LWMPoint 89,255
            LWMPoint 0,163
        LWMDataAreaDrawPolygons 1,3,1,0,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,2,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,3,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   5,0,0,96,0
            LWMPoint 255,255
            LWMPoint 213,255
            LWMPoint 213,251
            LWMPoint 237,167
            LWMPoint 255,151
        LWMDataAreaDrawPolygons 3,3,1,4,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   3,0,0,96,0
            LWMPoint 255,255
            LWMPoint 102,255
            LWMPoint 255,166
; 
; Lower lake
; 
          LWMPoly2   7,0,0,96,0
            LWMPoint 255,166
            LWMPoint 102,255
            LWMPoint 0,255
            LWMPoint 0,151
            LWMPoint 53,104
            LWMPoint 155,62
            LWMPoint 255,34
        LWMDataAreaDrawPolygons 4,3,1,5,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   3,0,0,96,0
            LWMPoint 255,255
            LWMPoint 1,255
            LWMPoint 255,125
; 
; Lower lake
; 
          LWMPoly2   7,0,0,96,0
            LWMPoint 255,17
            LWMPoint 0,166
            LWMPoint 0,34
            LWMPoint 6,32
            LWMPoint 109,11
            LWMPoint 193,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   5,0,0,96,0
            LWMPoint 255,125
            LWMPoint 1,255
            LWMPoint 0,255
            LWMPoint 0,166
            LWMPoint 255,17
        LWMDataAreaDrawPolygons 4,3,1,6,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 0,17
            LWMPoint 30,0
            LWMPoint 246,0
            LWMPoint 0,125
; 
; Lower lake
; 
          LWMPoly2   3,0,0,96,0
            LWMPoint 0,0
            LWMPoint 30,0
            LWMPoint 0,17
; 
; Lower lake
; 
          LWMPoly2   5,0,0,96,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,125
            LWMPoint 246,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,7,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,8,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 149,255
            LWMPoint 205,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 205,0
            LWMPoint 149,255
            LWMPoint 0,255
; 
; Lower lake
; 
          LWMPoly2   5,0,0,96,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 114,0
            LWMPoint 255,34
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,34
            LWMPoint 114,0
            LWMPoint 208,0
            LWMPoint 255,30
        LWMDataAreaDrawPolygons 4,3,1,9,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   3,0,0,96,0
            LWMPoint 0,30
            LWMPoint 10,36
            LWMPoint 0,34
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,168
            LWMPoint 102,63
            LWMPoint 218,78
            LWMPoint 255,92
; 
; Lower lake
; 
          LWMPoly2   6,0,0,96,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,34
            LWMPoint 10,36
            LWMPoint 102,63
            LWMPoint 255,168
        LWMDataAreaDrawPolygons 3,3,1,10,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   3,0,0,96,0
            LWMPoint 0,168
            LWMPoint 127,255
            LWMPoint 0,255
; 
; Lower lake
; 
          LWMPoly2   6,0,0,96,0
            LWMPoint 0,92
            LWMPoint 67,116
            LWMPoint 120,185
            LWMPoint 139,255
            LWMPoint 127,255
            LWMPoint 0,168
        LWMDataAreaDrawPolygons 1,3,1,11,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,12,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,14,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,15,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,18,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,19,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,20,25
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,21,25
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 0,0
            LWMPoint 89,0
            LWMPoint 101,13
            LWMPoint 102,124
            LWMPoint 51,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 51,255
            LWMPoint 102,124
            LWMPoint 108,237
            LWMPoint 101,255
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 102,0
            LWMPoint 101,13
            LWMPoint 89,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 101,255
            LWMPoint 108,237
            LWMPoint 109,255
        LWMDataAreaDrawPolygons 1,3,1,0,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,2,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 5,3,1,3,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   3,0,0,96,0
            LWMPoint 136,255
            LWMPoint 155,228
            LWMPoint 164,255
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,59
            LWMPoint 217,82
            LWMPoint 213,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,131
            LWMPoint 203,157
            LWMPoint 217,82
            LWMPoint 255,59
; 
; Lower lake
; 
          LWMPoly2   5,0,0,96,0
            LWMPoint 255,255
            LWMPoint 164,255
            LWMPoint 155,228
            LWMPoint 203,157
            LWMPoint 255,131
        LWMDataAreaDrawPolygons 4,3,1,4,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   3,0,0,96,0
            LWMPoint 0,0
            LWMPoint 102,0
            LWMPoint 0,59
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,0
            LWMPoint 0,131
            LWMPoint 0,59
            LWMPoint 102,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,131
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,5,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   5,0,0,96,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 1,0
            LWMPoint 255,0
; 
; Two birds: west
; 
          LWMPoly2   6,0,1,98,0
            LWMPoint 255,255
            LWMPoint 146,255
            LWMPoint 148,251
            LWMPoint 199,213
            LWMPoint 251,186
            LWMPoint 255,185
        LWMDataAreaDrawPolygons 3,3,1,6,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Two birds: west
; 
          LWMPoly2   8,0,1,98,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,185
            LWMPoint 52,172
            LWMPoint 114,158
            LWMPoint 185,162
            LWMPoint 236,202
            LWMPoint 255,233
        LWMDataAreaDrawPolygons 5,3,1,7,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Two birds: east
; 
          LWMPoly2   5,0,1,98,0
            LWMPoint 255,255
            LWMPoint 125,255
            LWMPoint 182,225
            LWMPoint 254,222
            LWMPoint 255,223
; 
; Two birds: east
; 
          LWMPoly2   3,0,1,98,0
            LWMPoint 255,223
            LWMPoint 254,222
            LWMPoint 255,222
; 
; Two birds: west
; 
          LWMPoly2   4,0,1,98,0
            LWMPoint 0,233
            LWMPoint 12,252
            LWMPoint 12,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 6,3,1,8,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 149,0
            LWMPoint 93,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 93,255
            LWMPoint 149,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Two birds: east
; 
          LWMPoly2   3,0,1,98,0
            LWMPoint 0,222
            LWMPoint 59,214
            LWMPoint 116,230
; 
; Two birds: east
; 
          LWMPoly2   3,0,1,98,0
            LWMPoint 0,223
            LWMPoint 44,255
            LWMPoint 0,255
; 
; Two birds: east
; 
          LWMPoly2   6,0,1,98,0
            LWMPoint 0,222
            LWMPoint 116,230
            LWMPoint 173,243
            LWMPoint 187,255
            LWMPoint 44,255
            LWMPoint 0,223
        LWMDataAreaDrawPolygons 2,3,1,9,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,10,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   6,0,0,96,0
            LWMPoint 0,0
            LWMPoint 127,0
            LWMPoint 142,10
            LWMPoint 177,82
            LWMPoint 230,255
            LWMPoint 0,255
; 
; Lower lake
; 
          LWMPoly2   3,0,0,96,0
            LWMPoint 139,0
            LWMPoint 142,10
            LWMPoint 127,0
; 
; Lower lake
; 
          LWMPoly2   5,0,0,96,0
            LWMPoint 230,255
            LWMPoint 177,82
            LWMPoint 225,152
            LWMPoint 251,228
            LWMPoint 250,255
        LWMDataAreaDrawPolygons 1,3,1,11,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,12,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,14,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,15,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,18,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,19,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,20,26
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 208,255
            LWMPoint 255,132
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,132
            LWMPoint 208,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 5,3,1,21,26
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 118,255
            LWMPoint 133,213
            LWMPoint 140,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 3,255
            LWMPoint 101,0
            LWMPoint 109,0
            LWMPoint 119,96
            LWMPoint 58,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,132
            LWMPoint 51,0
            LWMPoint 101,0
            LWMPoint 3,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 58,255
            LWMPoint 119,96
            LWMPoint 133,213
            LWMPoint 118,255
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 51,0
            LWMPoint 0,132
        LWMDataAreaDrawPolygons 1,3,1,0,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,2,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,3,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   7,0,0,96,0
            LWMPoint 88,255
            LWMPoint 77,220
            LWMPoint 74,135
            LWMPoint 101,51
            LWMPoint 136,0
            LWMPoint 164,0
            LWMPoint 249,255
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,255
            LWMPoint 249,255
            LWMPoint 164,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,4,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,5,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Two birds: west
; 
          LWMPoly2   7,0,1,98,0
            LWMPoint 255,199
            LWMPoint 233,195
            LWMPoint 176,159
            LWMPoint 146,106
            LWMPoint 128,51
            LWMPoint 146,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,6,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Two birds: west
; 
          LWMPoly2   8,0,1,98,0
            LWMPoint 255,72
            LWMPoint 226,148
            LWMPoint 183,192
            LWMPoint 116,208
            LWMPoint 47,208
            LWMPoint 0,199
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Two birds: west
; 
          LWMPoly2   3,0,1,98,0
            LWMPoint 255,120
            LWMPoint 226,148
            LWMPoint 255,72
        LWMDataAreaDrawPolygons 5,3,1,7,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Two birds: east
; 
          LWMPoly2   10,0,1,98,0
            LWMPoint 255,252
            LWMPoint 248,250
            LWMPoint 185,233
            LWMPoint 129,201
            LWMPoint 97,154
            LWMPoint 77,103
            LWMPoint 87,49
            LWMPoint 123,1
            LWMPoint 125,0
            LWMPoint 255,0
; 
; Two birds: west
; 
          LWMPoly2   4,0,1,98,0
            LWMPoint 0,0
            LWMPoint 12,0
            LWMPoint 8,51
            LWMPoint 0,72
; 
; Two birds: west
; 
          LWMPoly2   4,0,1,98,0
            LWMPoint 0,72
            LWMPoint 8,51
            LWMPoint 14,106
            LWMPoint 0,120
        LWMDataAreaDrawPolygons 5,3,1,8,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 93,0
            LWMPoint 37,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 37,255
            LWMPoint 93,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Two birds: east
; 
          LWMPoly2   7,0,1,98,0
            LWMPoint 255,108
            LWMPoint 244,147
            LWMPoint 44,0
            LWMPoint 187,0
            LWMPoint 214,21
            LWMPoint 253,57
            LWMPoint 255,82
; 
; Two birds: east
; 
          LWMPoly2   8,0,1,98,0
            LWMPoint 0,0
            LWMPoint 44,0
            LWMPoint 244,147
            LWMPoint 236,197
            LWMPoint 199,243
            LWMPoint 156,255
            LWMPoint 14,255
            LWMPoint 0,252
        LWMDataAreaDrawPolygons 3,3,1,9,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Two birds: east
; 
          LWMPoly2   3,0,1,98,0
            LWMPoint 0,82
            LWMPoint 1,103
            LWMPoint 0,108
        LWMDataAreaDrawPolygons 4,3,1,10,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 110,255
            LWMPoint 242,128
            LWMPoint 253,209
            LWMPoint 251,255
; 
; Lower lake
; 
          LWMPoly2   6,0,0,96,0
            LWMPoint 0,0
            LWMPoint 230,0
            LWMPoint 246,51
            LWMPoint 242,128
            LWMPoint 110,255
            LWMPoint 0,255
; 
; Lower lake
; 
          LWMPoly2   3,0,0,96,0
            LWMPoint 250,0
            LWMPoint 246,51
            LWMPoint 230,0
        LWMDataAreaDrawPolygons 1,3,1,11,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,12,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,14,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,15,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,18,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,19,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,20,27
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 208,0
            LWMPoint 109,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,7
            LWMPoint 160,255
            LWMPoint 109,255
            LWMPoint 208,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 216,255
            LWMPoint 255,152
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,152
            LWMPoint 216,255
            LWMPoint 160,255
            LWMPoint 255,7
        LWMDataAreaDrawPolygons 4,3,1,21,27
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 3,0
            LWMPoint 0,7
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,7
            LWMPoint 3,0
            LWMPoint 58,0
            LWMPoint 0,152
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,152
            LWMPoint 58,0
            LWMPoint 118,0
            LWMPoint 21,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 21,255
            LWMPoint 118,0
            LWMPoint 140,0
            LWMPoint 151,78
            LWMPoint 168,199
            LWMPoint 175,255
        LWMDataAreaDrawPolygons 1,3,1,0,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,2,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,3,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   3,0,0,96,0
            LWMPoint 255,19
            LWMPoint 249,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   7,0,0,96,0
            LWMPoint 255,196
            LWMPoint 241,187
            LWMPoint 159,124
            LWMPoint 104,49
            LWMPoint 88,0
            LWMPoint 249,0
            LWMPoint 255,19
        LWMDataAreaDrawPolygons 3,3,1,4,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   6,0,0,96,0
            LWMPoint 255,255
            LWMPoint 94,255
            LWMPoint 74,241
            LWMPoint 0,19
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   3,0,0,96,0
            LWMPoint 0,19
            LWMPoint 74,241
            LWMPoint 0,196
        LWMDataAreaDrawPolygons 2,3,1,5,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,6,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,7,28
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 236,255
            LWMPoint 255,167
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,167
            LWMPoint 236,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,8,28
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,167
            LWMPoint 37,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 37,0
            LWMPoint 0,167
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Two birds: east
; 
          LWMPoly2   4,0,1,98,0
            LWMPoint 156,0
            LWMPoint 130,7
            LWMPoint 59,10
            LWMPoint 14,0
        LWMDataAreaDrawPolygons 3,3,1,9,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   5,0,0,96,0
            LWMPoint 255,106
            LWMPoint 99,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   3,0,0,96,0
            LWMPoint 255,255
            LWMPoint 99,255
            LWMPoint 255,106
        LWMDataAreaDrawPolygons 3,3,1,10,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   9,0,0,96,0
            LWMPoint 0,106
            LWMPoint 110,0
            LWMPoint 251,0
            LWMPoint 250,38
            LWMPoint 206,114
            LWMPoint 136,179
            LWMPoint 64,239
            LWMPoint 39,255
            LWMPoint 0,255
; 
; Lower lake
; 
          LWMPoly2   3,0,0,96,0
            LWMPoint 0,0
            LWMPoint 110,0
            LWMPoint 0,106
        LWMDataAreaDrawPolygons 1,3,1,11,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,12,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,14,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,15,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,18,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,19,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 5,3,1,20,28
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 10,255
            LWMPoint 109,0
            LWMPoint 160,0
            LWMPoint 62,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 109,0
            LWMPoint 10,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 180,255
            LWMPoint 255,56
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,56
            LWMPoint 180,255
            LWMPoint 119,255
            LWMPoint 216,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 62,255
            LWMPoint 160,0
            LWMPoint 216,0
            LWMPoint 119,255
        LWMDataAreaDrawPolygons 2,3,1,21,28
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 21,0
            LWMPoint 0,56
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 0,56
            LWMPoint 21,0
            LWMPoint 175,0
            LWMPoint 183,68
            LWMPoint 193,192
            LWMPoint 193,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,0,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,2,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,3,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,4,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,111
            LWMPoint 228,99
            LWMPoint 152,42
            LWMPoint 255,66
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,66
            LWMPoint 152,42
            LWMPoint 94,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,5,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   6,0,0,96,0
            LWMPoint 255,141
            LWMPoint 181,149
            LWMPoint 67,140
            LWMPoint 0,111
            LWMPoint 0,66
            LWMPoint 255,127
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,127
            LWMPoint 0,66
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 5,3,1,6,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   6,0,0,96,0
            LWMPoint 255,125
            LWMPoint 141,133
            LWMPoint 41,136
            LWMPoint 0,127
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,156
            LWMPoint 231,157
            LWMPoint 141,133
            LWMPoint 255,125
; 
; Lower lake
; 
          LWMPoly2   3,0,0,96,0
            LWMPoint 255,167
            LWMPoint 231,157
            LWMPoint 255,156
; 
; Lower lake
; 
          LWMPoly2   3,0,0,96,0
            LWMPoint 0,127
            LWMPoint 41,136
            LWMPoint 0,141
        LWMDataAreaDrawPolygons 5,3,1,7,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 180,255
            LWMPoint 236,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 236,0
            LWMPoint 180,255
            LWMPoint 0,255
; 
; Lower lake
; 
          LWMPoly2   6,0,0,96,0
            LWMPoint 255,194
            LWMPoint 174,213
            LWMPoint 70,195
            LWMPoint 0,167
            LWMPoint 0,156
            LWMPoint 255,142
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,106
            LWMPoint 0,125
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 255,142
            LWMPoint 0,156
            LWMPoint 0,125
            LWMPoint 255,106
        LWMDataAreaDrawPolygons 4,3,1,8,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   5,0,0,96,0
            LWMPoint 255,80
            LWMPoint 178,94
            LWMPoint 0,106
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 0,142
            LWMPoint 100,137
            LWMPoint 17,189
            LWMPoint 0,194
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 0,106
            LWMPoint 178,94
            LWMPoint 100,137
            LWMPoint 0,142
        LWMDataAreaDrawPolygons 3,3,1,9,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   6,0,0,96,0
            LWMPoint 255,25
            LWMPoint 237,37
            LWMPoint 132,67
            LWMPoint 20,77
            LWMPoint 99,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   4,0,0,96,0
            LWMPoint 0,0
            LWMPoint 99,0
            LWMPoint 20,77
            LWMPoint 0,80
        LWMDataAreaDrawPolygons 2,3,1,10,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Lower lake
; 
          LWMPoly2   3,0,0,96,0
            LWMPoint 0,0
            LWMPoint 39,0
            LWMPoint 0,25
        LWMDataAreaDrawPolygons 1,3,1,11,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,12,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,14,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,15,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,18,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,19,29
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,161
            LWMPoint 219,255
            LWMPoint 166,255
            LWMPoint 255,26
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 219,255
            LWMPoint 255,161
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,26
            LWMPoint 166,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 5,3,1,20,29
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,161
            LWMPoint 62,0
            LWMPoint 119,0
            LWMPoint 21,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 83,255
            LWMPoint 180,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 10,0
            LWMPoint 0,26
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 21,255
            LWMPoint 119,0
            LWMPoint 180,0
            LWMPoint 83,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,26
            LWMPoint 10,0
            LWMPoint 62,0
            LWMPoint 0,161
        LWMDataAreaDrawPolygons 1,3,1,21,29
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 0,0
            LWMPoint 193,0
            LWMPoint 194,61
            LWMPoint 185,184
            LWMPoint 172,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,0,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,2,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,3,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,4,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,5,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,6,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,7,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 124,255
            LWMPoint 180,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 180,0
            LWMPoint 124,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,8,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,9,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,10,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,11,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,12,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,14,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,15,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,18,30
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 5,3,1,19,30
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,56
            LWMPoint 179,255
            LWMPoint 121,255
            LWMPoint 219,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 166,0
            LWMPoint 68,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 68,255
            LWMPoint 166,0
            LWMPoint 219,0
            LWMPoint 121,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,220
            LWMPoint 242,255
            LWMPoint 179,255
            LWMPoint 255,56
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 242,255
            LWMPoint 255,220
        LWMDataAreaDrawPolygons 3,3,1,20,30
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 21,0
            LWMPoint 0,56
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,220
            LWMPoint 83,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,56
            LWMPoint 21,0
            LWMPoint 83,0
            LWMPoint 0,220
        LWMDataAreaDrawPolygons 1,3,1,21,30
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 0,0
            LWMPoint 172,0
            LWMPoint 163,50
            LWMPoint 127,167
            LWMPoint 89,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,0,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
      LWMDataAreaFill1x1        0,2,1,2,31
      LWMDataAreaHeight        64,64
        LWMDataAreaDrawPolygons 1,3,1,2,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,3,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,4,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,5,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,6,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,7,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 68,255
            LWMPoint 124,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 124,0
            LWMPoint 68,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,8,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,9,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,10,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,11,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,12,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,14,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,15,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,31
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,18,31
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,175
            LWMPoint 224,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 224,255
            LWMPoint 255,175
        LWMDataAreaDrawPolygons 5,3,1,19,31
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 68,0
            LWMPoint 0,175
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 82,255
            LWMPoint 179,0
            LWMPoint 242,0
            LWMPoint 145,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 145,255
            LWMPoint 242,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,175
            LWMPoint 68,0
            LWMPoint 121,0
            LWMPoint 23,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 23,255
            LWMPoint 121,0
            LWMPoint 179,0
            LWMPoint 82,255
        LWMDataAreaDrawPolygons 1,3,1,20,31
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,156
            LWMPoint 196,238
            LWMPoint 182,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,21,31
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,0
            LWMPoint 89,0
            LWMPoint 78,26
            LWMPoint 16,134
            LWMPoint 0,156
    datamark_4  label   word
      LWMDataAreaFill1x1        0,0,1,0,0
      LWMDataAreaFill1x1        0,0,1,1,0
      LWMDataAreaFill1x1        0,0,1,2,0
      LWMDataAreaFill1x1        0,0,1,3,0
      LWMDataAreaFill1x1        0,0,1,4,0
      LWMDataAreaFill1x1        0,0,1,5,0
      LWMDataAreaFill1x1        0,0,1,6,0
      LWMDataAreaFill1x1        0,0,1,7,0
      LWMDataAreaFill1x1        0,0,1,8,0
      LWMDataAreaFill1x1        0,0,1,9,0
      LWMDataAreaFill1x1        0,0,1,10,0
      LWMDataAreaFill1x1        0,0,1,11,0
      LWMDataAreaFill1x1        0,0,1,12,0
      LWMDataAreaFill1x1        0,0,1,13,0
        LWMDataAreaDrawPolygons 1,3,1,14,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,109
            LWMPoint 225,79
            LWMPoint 156,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,15,0
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 255,255
            LWMPoint 155,255
            LWMPoint 132,235
            LWMPoint 49,158
            LWMPoint 0,109
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,18,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,19,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,20,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 167,0
            LWMPoint 255,70
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,70
            LWMPoint 167,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 5,3,1,21,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,6
            LWMPoint 248,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 231,255
            LWMPoint 0,70
            LWMPoint 0,0
            LWMPoint 29,0
            LWMPoint 255,183
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,93
            LWMPoint 141,0
            LWMPoint 248,0
            LWMPoint 255,6
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,70
            LWMPoint 231,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,183
            LWMPoint 29,0
            LWMPoint 141,0
            LWMPoint 255,93
        LWMDataAreaDrawPolygons 4,3,1,22,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,183
            LWMPoint 89,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,93
            LWMPoint 198,255
            LWMPoint 89,255
            LWMPoint 0,183
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 198,255
            LWMPoint 0,93
            LWMPoint 0,6
            LWMPoint 255,216
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,216
            LWMPoint 0,6
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,23,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 47,255
            LWMPoint 0,216
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,216
            LWMPoint 47,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,24,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,25,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,26,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,27,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,28,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,29,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,30,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,31,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
      LWMDataAreaFill1x1        0,0,1,0,1
      LWMDataAreaFill1x1        0,0,1,1,1
      LWMDataAreaFill1x1        0,0,1,2,1
      LWMDataAreaFill1x1        0,0,1,3,1
      LWMDataAreaFill1x1        0,0,1,4,1
      LWMDataAreaFill1x1        0,0,1,5,1
      LWMDataAreaFill1x1        0,0,1,6,1
      LWMDataAreaFill1x1        0,0,1,7,1
      LWMDataAreaFill1x1        0,0,1,8,1
      LWMDataAreaFill1x1        0,0,1,9,1
      LWMDataAreaFill1x1        0,0,1,10,1
      LWMDataAreaFill1x1        0,0,1,11,1
      LWMDataAreaFill1x1        0,0,1,12,1
      LWMDataAreaFill1x1        0,0,1,13,1
      LWMDataAreaFill1x1        0,0,1,14,1
        LWMDataAreaDrawPolygons 1,3,1,15,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,82
            LWMPoint 219,54
            LWMPoint 155,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,1
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 255,255
            LWMPoint 240,255
            LWMPoint 147,192
            LWMPoint 54,124
            LWMPoint 0,82
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,18,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,19,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,20,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,21,1
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,19
            LWMPoint 231,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 231,0
            LWMPoint 255,19
        LWMDataAreaDrawPolygons 4,3,1,22,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,19
            LWMPoint 255,222
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,222
            LWMPoint 0,19
            LWMPoint 0,0
            LWMPoint 89,0
            LWMPoint 255,134
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,134
            LWMPoint 89,0
            LWMPoint 198,0
            LWMPoint 255,47
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,47
            LWMPoint 198,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 5,3,1,23,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,47
            LWMPoint 255,255
            LWMPoint 149,255
            LWMPoint 0,134
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,222
            LWMPoint 41,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,47
            LWMPoint 0,0
            LWMPoint 47,0
            LWMPoint 255,171
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,134
            LWMPoint 149,255
            LWMPoint 41,255
            LWMPoint 0,222
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,171
            LWMPoint 47,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,24,1
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 101,255
            LWMPoint 0,171
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,171
            LWMPoint 101,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,25,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,26,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,27,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,28,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,29,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,30,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,31,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
      LWMDataAreaFill1x1        0,0,1,0,2
      LWMDataAreaFill1x1        0,0,1,1,2
      LWMDataAreaFill1x1        0,0,1,2,2
      LWMDataAreaFill1x1        0,0,1,3,2
      LWMDataAreaFill1x1        0,0,1,4,2
      LWMDataAreaFill1x1        0,0,1,5,2
      LWMDataAreaFill1x1        0,0,1,6,2
      LWMDataAreaFill1x1        0,0,1,7,2
      LWMDataAreaFill1x1        0,0,1,8,2
      LWMDataAreaFill1x1        0,0,1,9,2
      LWMDataAreaFill1x1        0,0,1,10,2
      LWMDataAreaFill1x1        0,0,1,11,2
      LWMDataAreaFill1x1        0,0,1,12,2
      LWMDataAreaFill1x1        0,0,1,13,2
      LWMDataAreaFill1x1        0,0,1,14,2
      LWMDataAreaFill1x1        0,0,1,15,2
        LWMDataAreaDrawPolygons 1,3,1,16,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,10
            LWMPoint 243,2
            LWMPoint 240,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,2
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,163
            LWMPoint 187,125
            LWMPoint 86,65
            LWMPoint 0,10
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,18,2
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 255,255
            LWMPoint 175,255
            LWMPoint 137,236
            LWMPoint 34,182
            LWMPoint 0,163
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,19,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,20,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,21,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,22,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,23,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,171
            LWMPoint 41,0
            LWMPoint 149,0
            LWMPoint 255,85
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 41,0
            LWMPoint 255,171
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,85
            LWMPoint 149,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 5,3,1,24,2
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,127
            LWMPoint 101,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 210,255
            LWMPoint 0,85
            LWMPoint 0,0
            LWMPoint 255,209
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,171
            LWMPoint 106,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,85
            LWMPoint 210,255
            LWMPoint 106,255
            LWMPoint 0,171
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,209
            LWMPoint 0,0
            LWMPoint 101,0
            LWMPoint 255,127
        LWMDataAreaDrawPolygons 3,3,1,25,2
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 155,255
            LWMPoint 0,127
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,127
            LWMPoint 155,255
            LWMPoint 56,255
            LWMPoint 0,209
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,209
            LWMPoint 56,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,26,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,27,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,28,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,29,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,30,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,31,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
      LWMDataAreaFill1x1        0,0,1,0,3
      LWMDataAreaFill1x1        0,0,1,1,3
      LWMDataAreaFill1x1        0,0,1,2,3
      LWMDataAreaFill1x1        0,0,1,3,3
      LWMDataAreaFill1x1        0,0,1,4,3
      LWMDataAreaFill1x1        0,0,1,5,3
      LWMDataAreaFill1x1        0,0,1,6,3
      LWMDataAreaFill1x1        0,0,1,7,3
      LWMDataAreaFill1x1        0,0,1,8,3
      LWMDataAreaFill1x1        0,0,1,9,3
      LWMDataAreaFill1x1        0,0,1,10,3
      LWMDataAreaFill1x1        0,0,1,11,3
      LWMDataAreaFill1x1        0,0,1,12,3
      LWMDataAreaFill1x1        0,0,1,13,3
      LWMDataAreaFill1x1        0,0,1,14,3
      LWMDataAreaFill1x1        0,0,1,15,3
      LWMDataAreaFill1x1        0,0,1,16,3
      LWMDataAreaFill1x1        0,0,1,17,3
        LWMDataAreaDrawPolygons 1,3,1,18,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,39
            LWMPoint 243,33
            LWMPoint 175,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,19,3
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,151
            LWMPoint 202,129
            LWMPoint 94,83
            LWMPoint 0,39
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,20,3
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,247
            LWMPoint 166,216
            LWMPoint 56,174
            LWMPoint 0,151
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,21,3
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 22,255
            LWMPoint 0,247
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,22,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,23,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,24,3
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 106,0
            LWMPoint 255,119
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,37
            LWMPoint 210,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,119
            LWMPoint 106,0
            LWMPoint 210,0
            LWMPoint 255,37
        LWMDataAreaDrawPolygons 5,3,1,25,3
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,243
            LWMPoint 0,37
            LWMPoint 0,0
            LWMPoint 56,0
            LWMPoint 255,162
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,119
            LWMPoint 170,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,82
            LWMPoint 155,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 170,255
            LWMPoint 0,119
            LWMPoint 0,37
            LWMPoint 255,243
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,162
            LWMPoint 56,0
            LWMPoint 155,0
            LWMPoint 255,82
        LWMDataAreaDrawPolygons 4,3,1,26,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,82
            LWMPoint 209,255
            LWMPoint 113,255
            LWMPoint 0,162
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,243
            LWMPoint 15,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,162
            LWMPoint 113,255
            LWMPoint 15,255
            LWMPoint 0,243
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 209,255
            LWMPoint 0,82
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,27,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,28,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,29,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,30,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,31,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
      LWMDataAreaFill1x1        0,0,1,0,4
      LWMDataAreaFill1x1        0,0,1,1,4
      LWMDataAreaFill1x1        0,0,1,2,4
      LWMDataAreaFill1x1        0,0,1,3,4
      LWMDataAreaFill1x1        0,0,1,4,4
      LWMDataAreaFill1x1        0,0,1,5,4
      LWMDataAreaFill1x1        0,0,1,6,4
      LWMDataAreaFill1x1        0,0,1,7,4
      LWMDataAreaFill1x1        0,0,1,8,4
      LWMDataAreaFill1x1        0,0,1,9,4
      LWMDataAreaFill1x1        0,0,1,10,4
      LWMDataAreaFill1x1        0,0,1,11,4
      LWMDataAreaFill1x1        0,0,1,12,4
      LWMDataAreaFill1x1        0,0,1,13,4
      LWMDataAreaFill1x1        0,0,1,14,4
      LWMDataAreaFill1x1        0,0,1,15,4
      LWMDataAreaFill1x1        0,0,1,16,4
      LWMDataAreaFill1x1        0,0,1,17,4
      LWMDataAreaFill1x1        0,0,1,18,4
      LWMDataAreaFill1x1        0,0,1,19,4
      LWMDataAreaFill1x1        0,0,1,20,4
        LWMDataAreaDrawPolygons 1,3,1,21,4
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,75
            LWMPoint 245,72
            LWMPoint 133,37
            LWMPoint 22,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,22,4
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,145
            LWMPoint 215,135
            LWMPoint 102,104
            LWMPoint 0,75
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,23,4
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,202
            LWMPoint 186,188
            LWMPoint 73,162
            LWMPoint 0,145
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,24,4
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,249
            LWMPoint 158,233
            LWMPoint 44,211
            LWMPoint 0,202
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,25,4
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 255,255
            LWMPoint 37,255
            LWMPoint 17,252
            LWMPoint 0,249
            LWMPoint 0,0
            LWMPoint 170,0
            LWMPoint 255,68
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,68
            LWMPoint 170,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 5,3,1,26,4
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,38
            LWMPoint 209,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,194
            LWMPoint 15,0
            LWMPoint 113,0
            LWMPoint 255,116
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,68
            LWMPoint 235,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 235,255
            LWMPoint 0,68
            LWMPoint 0,0
            LWMPoint 15,0
            LWMPoint 255,194
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,116
            LWMPoint 113,0
            LWMPoint 209,0
            LWMPoint 255,38
        LWMDataAreaDrawPolygons 4,3,1,27,4
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,248
            LWMPoint 0,38
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,116
            LWMPoint 170,255
            LWMPoint 75,255
            LWMPoint 0,194
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 170,255
            LWMPoint 0,116
            LWMPoint 0,38
            LWMPoint 255,248
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,194
            LWMPoint 75,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 2,3,1,28,4
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,248
            LWMPoint 8,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 8,255
            LWMPoint 0,248
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,29,4
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,30,4
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,31,4
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
      LWMDataAreaFill1x1        0,0,1,0,5
      LWMDataAreaFill1x1        0,0,1,1,5
      LWMDataAreaFill1x1        0,0,1,2,5
      LWMDataAreaFill1x1        0,0,1,3,5
      LWMDataAreaFill1x1        0,0,1,4,5
      LWMDataAreaFill1x1        0,0,1,5,5
      LWMDataAreaFill1x1        0,0,1,6,5
      LWMDataAreaFill1x1        0,0,1,7,5
      LWMDataAreaFill1x1        0,0,1,8,5
      LWMDataAreaFill1x1        0,0,1,9,5
      LWMDataAreaFill1x1        0,0,1,10,5
      LWMDataAreaFill1x1        0,0,1,11,5
      LWMDataAreaFill1x1        0,0,1,12,5
      LWMDataAreaFill1x1        0,0,1,13,5
      LWMDataAreaFill1x1        0,0,1,14,5
      LWMDataAreaFill1x1        0,0,1,15,5
      LWMDataAreaFill1x1        0,0,1,16,5
      LWMDataAreaFill1x1        0,0,1,17,5
      LWMDataAreaFill1x1        0,0,1,18,5
      LWMDataAreaFill1x1        0,0,1,19,5
      LWMDataAreaFill1x1        0,0,1,20,5
      LWMDataAreaFill1x1        0,0,1,21,5
      LWMDataAreaFill1x1        0,0,1,22,5
      LWMDataAreaFill1x1        0,0,1,23,5
      LWMDataAreaFill1x1        0,0,1,24,5
        LWMDataAreaDrawPolygons 1,3,1,25,5
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,32
            LWMPoint 243,30
            LWMPoint 130,14
            LWMPoint 37,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,26,5
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 255,63
            LWMPoint 213,58
            LWMPoint 101,45
            LWMPoint 0,32
            LWMPoint 0,0
            LWMPoint 235,0
            LWMPoint 255,16
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,16
            LWMPoint 235,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,27,5
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,16
            LWMPoint 70,72
            LWMPoint 0,63
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,95
            LWMPoint 181,85
            LWMPoint 75,0
            LWMPoint 170,0
            LWMPoint 255,70
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,0
            LWMPoint 75,0
            LWMPoint 181,85
            LWMPoint 70,72
            LWMPoint 0,16
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,70
            LWMPoint 170,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,28,5
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,130
            LWMPoint 147,114
            LWMPoint 8,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,0
            LWMPoint 8,0
            LWMPoint 147,114
            LWMPoint 36,99
            LWMPoint 0,70
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,70
            LWMPoint 36,99
            LWMPoint 0,95
        LWMDataAreaDrawPolygons 4,3,1,29,5
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,169
            LWMPoint 222,166
            LWMPoint 112,147
            LWMPoint 255,163
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,171
            LWMPoint 222,166
            LWMPoint 255,169
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,158
            LWMPoint 2,130
            LWMPoint 0,130
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,163
            LWMPoint 112,147
            LWMPoint 2,130
            LWMPoint 255,158
        LWMDataAreaDrawPolygons 5,3,1,30,5
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,197
            LWMPoint 0,169
            LWMPoint 0,163
            LWMPoint 255,191
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,216
            LWMPoint 189,204
            LWMPoint 78,185
            LWMPoint 255,204
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,191
            LWMPoint 0,163
            LWMPoint 0,158
            LWMPoint 255,186
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,186
            LWMPoint 0,158
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,204
            LWMPoint 78,185
            LWMPoint 0,171
            LWMPoint 0,169
            LWMPoint 255,197
        LWMDataAreaDrawPolygons 5,3,1,31,5
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,219
            LWMPoint 0,191
            LWMPoint 0,186
            LWMPoint 255,214
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,225
            LWMPoint 0,197
            LWMPoint 0,191
            LWMPoint 255,219
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,214
            LWMPoint 0,186
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,232
            LWMPoint 0,204
            LWMPoint 0,197
            LWMPoint 255,225
; 
; Main island
; 
          LWMPoly2   7,0,1,0,0
            LWMPoint 255,255
            LWMPoint 238,255
            LWMPoint 160,243
            LWMPoint 47,224
            LWMPoint 0,216
            LWMPoint 0,204
            LWMPoint 255,232
      LWMDataAreaFill1x1        0,0,1,0,6
      LWMDataAreaFill1x1        0,0,1,1,6
      LWMDataAreaFill1x1        0,0,1,2,6
      LWMDataAreaFill1x1        0,0,1,3,6
      LWMDataAreaFill1x1        0,0,1,4,6
      LWMDataAreaFill1x1        0,0,1,5,6
      LWMDataAreaFill1x1        0,0,1,6,6
      LWMDataAreaFill1x1        0,0,1,7,6
      LWMDataAreaFill1x1        0,0,1,8,6
      LWMDataAreaFill1x1        0,0,1,9,6
      LWMDataAreaFill1x1        0,0,1,10,6
      LWMDataAreaFill1x1        0,0,1,11,6
      LWMDataAreaFill1x1        0,0,1,12,6
      LWMDataAreaFill1x1        0,0,1,13,6
      LWMDataAreaFill1x1        0,0,1,14,6
      LWMDataAreaFill1x1        0,0,1,15,6
      LWMDataAreaFill1x1        0,0,1,16,6
      LWMDataAreaFill1x1        0,0,1,17,6
      LWMDataAreaFill1x1        0,0,1,18,6
      LWMDataAreaFill1x1        0,0,1,19,6
      LWMDataAreaFill1x1        0,0,1,20,6
      LWMDataAreaFill1x1        0,0,1,21,6
      LWMDataAreaFill1x1        0,0,1,22,6
      LWMDataAreaFill1x1        0,0,1,23,6
      LWMDataAreaFill1x1        0,0,1,24,6
      LWMDataAreaFill1x1        0,0,1,25,6
      LWMDataAreaFill1x1        0,0,1,26,6
      LWMDataAreaFill1x1        0,0,1,27,6
      LWMDataAreaFill1x1        0,0,1,28,6
      LWMDataAreaFill1x1        0,0,1,29,6
      LWMDataAreaFill1x1        0,0,1,30,6
        LWMDataAreaDrawPolygons 1,3,1,31,6
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,3
            LWMPoint 238,0
            LWMPoint 255,0
      LWMDataAreaFill1x1        0,0,1,0,7
      LWMDataAreaFill1x1        0,0,1,1,7
      LWMDataAreaFill1x1        0,0,1,2,7
      LWMDataAreaFill1x1        0,0,1,3,7
      LWMDataAreaFill1x1        0,0,1,4,7
      LWMDataAreaFill1x1        0,0,1,5,7
      LWMDataAreaFill1x1        0,0,1,6,7
      LWMDataAreaFill1x1        0,0,1,7,7
      LWMDataAreaFill1x1        0,0,1,8,7
      LWMDataAreaFill1x1        0,0,1,9,7
      LWMDataAreaFill1x1        0,0,1,10,7
      LWMDataAreaFill1x1        0,0,1,11,7
      LWMDataAreaFill1x1        0,0,1,12,7
      LWMDataAreaFill1x1        0,0,1,13,7
      LWMDataAreaFill1x1        0,0,1,14,7
      LWMDataAreaFill1x1        0,0,1,15,7
      LWMDataAreaFill1x1        0,0,1,16,7
      LWMDataAreaFill1x1        0,0,1,17,7
      LWMDataAreaFill1x1        0,0,1,18,7
      LWMDataAreaFill1x1        0,0,1,19,7
      LWMDataAreaFill1x1        0,0,1,20,7
      LWMDataAreaFill1x1        0,0,1,21,7
      LWMDataAreaFill1x1        0,0,1,22,7
      LWMDataAreaFill1x1        0,0,1,23,7
      LWMDataAreaFill1x1        0,0,1,24,7
      LWMDataAreaFill1x1        0,0,1,25,7
      LWMDataAreaFill1x1        0,0,1,26,7
      LWMDataAreaFill1x1        0,0,1,27,7
      LWMDataAreaFill1x1        0,0,1,28,7
      LWMDataAreaFill1x1        0,0,1,29,7
      LWMDataAreaFill1x1        0,0,1,30,7
      LWMDataAreaFill1x1        0,0,1,31,7
      LWMDataAreaFill8x8        0,0,0,1,0,0,1
      LWMDataAreaFill8x8        0,0,0,1,1,0,1
      LWMDataAreaFill8x8        0,0,0,1,2,0,1
      LWMDataAreaFill8x8        0,0,0,1,3,0,1
      LWMDataAreaFill16x16        0,0,0,1,0,0,1
      LWMDataAreaFill16x16        0,0,0,1,1,0,1
    datamark_5  label   word
        LWMDataAreaDrawPolygons 1,3,1,0,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,2,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,3,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,4,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,5,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,6,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,7,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 68,0
            LWMPoint 12,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 12,255
            LWMPoint 68,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,8,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,9,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,10,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,11,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,12,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,14,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,15,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,18,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,60
            LWMPoint 180,255
            LWMPoint 125,255
            LWMPoint 224,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,215
            LWMPoint 240,255
            LWMPoint 180,255
            LWMPoint 255,60
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 224,0
            LWMPoint 125,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 240,255
            LWMPoint 255,215
        LWMDataAreaDrawPolygons 4,3,1,19,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 23,0
            LWMPoint 0,60
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,194
            LWMPoint 190,255
            LWMPoint 49,255
            LWMPoint 145,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,215
            LWMPoint 82,0
            LWMPoint 145,0
            LWMPoint 49,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,60
            LWMPoint 23,0
            LWMPoint 82,0
            LWMPoint 0,215
        LWMDataAreaDrawPolygons 1,3,1,20,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,0
            LWMPoint 182,0
            LWMPoint 112,82
            LWMPoint 20,176
            LWMPoint 0,194
      LWMDataAreaFill1x1        0,0,1,21,0
      LWMDataAreaFill1x1        0,0,1,22,0
      LWMDataAreaFill1x1        0,0,1,23,0
      LWMDataAreaFill1x1        0,0,1,24,0
      LWMDataAreaFill1x1        0,0,1,25,0
      LWMDataAreaFill1x1        0,0,1,26,0
      LWMDataAreaFill1x1        0,0,1,27,0
      LWMDataAreaFill1x1        0,0,1,28,0
      LWMDataAreaFill1x1        0,0,1,29,0
      LWMDataAreaFill1x1        0,0,1,30,0
      LWMDataAreaFill1x1        0,0,1,31,0
        LWMDataAreaDrawPolygons 1,3,1,0,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,2,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,3,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,4,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,5,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,6,1
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,54
            LWMPoint 211,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 211,255
            LWMPoint 255,54
        LWMDataAreaDrawPolygons 2,3,1,7,1
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,54
            LWMPoint 12,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 12,0
            LWMPoint 0,54
        LWMDataAreaDrawPolygons 1,3,1,8,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,9,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,10,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,11,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,12,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,14,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,15,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,17,1
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 5,3,1,18,1
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,129
            LWMPoint 233,188
            LWMPoint 158,255
            LWMPoint 143,255
            LWMPoint 240,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 27,255
            LWMPoint 125,0
            LWMPoint 180,0
            LWMPoint 82,255
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,169
            LWMPoint 233,188
            LWMPoint 255,129
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 82,255
            LWMPoint 180,0
            LWMPoint 240,0
            LWMPoint 143,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 125,0
            LWMPoint 27,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 2,3,1,19,1
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 0,129
            LWMPoint 49,0
            LWMPoint 190,0
            LWMPoint 177,12
            LWMPoint 78,101
            LWMPoint 0,169
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 49,0
            LWMPoint 0,129
      LWMDataAreaFill1x1        0,0,1,20,1
      LWMDataAreaFill1x1        0,0,1,21,1
      LWMDataAreaFill1x1        0,0,1,22,1
      LWMDataAreaFill1x1        0,0,1,23,1
      LWMDataAreaFill1x1        0,0,1,24,1
      LWMDataAreaFill1x1        0,0,1,25,1
      LWMDataAreaFill1x1        0,0,1,26,1
      LWMDataAreaFill1x1        0,0,1,27,1
      LWMDataAreaFill1x1        0,0,1,28,1
      LWMDataAreaFill1x1        0,0,1,29,1
      LWMDataAreaFill1x1        0,0,1,30,1
      LWMDataAreaFill1x1        0,0,1,31,1
        LWMDataAreaDrawPolygons 1,3,1,0,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,2,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,3,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,4,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,5,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,6,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 211,0
            LWMPoint 155,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 155,255
            LWMPoint 211,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,7,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,8,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,9,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,10,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,11,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,12,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,14,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,15,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,16,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,17,2
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,69
            LWMPoint 204,200
            LWMPoint 153,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,149
            LWMPoint 204,200
            LWMPoint 255,69
        LWMDataAreaDrawPolygons 4,3,1,18,2
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 143,0
            LWMPoint 135,20
            LWMPoint 40,109
            LWMPoint 82,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 27,0
            LWMPoint 0,69
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 158,0
            LWMPoint 135,20
            LWMPoint 143,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,69
            LWMPoint 27,0
            LWMPoint 82,0
            LWMPoint 40,109
            LWMPoint 0,149
      LWMDataAreaFill1x1        0,0,1,19,2
      LWMDataAreaFill1x1        0,0,1,20,2
      LWMDataAreaFill1x1        0,0,1,21,2
      LWMDataAreaFill1x1        0,0,1,22,2
      LWMDataAreaFill1x1        0,0,1,23,2
      LWMDataAreaFill1x1        0,0,1,24,2
      LWMDataAreaFill1x1        0,0,1,25,2
      LWMDataAreaFill1x1        0,0,1,26,2
      LWMDataAreaFill1x1        0,0,1,27,2
      LWMDataAreaFill1x1        0,0,1,28,2
      LWMDataAreaFill1x1        0,0,1,29,2
      LWMDataAreaFill1x1        0,0,1,30,2
      LWMDataAreaFill1x1        0,0,1,31,2
        LWMDataAreaDrawPolygons 1,3,1,0,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,2,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,3,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,4,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,5,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,6,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 155,0
            LWMPoint 99,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 99,255
            LWMPoint 155,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,7,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,8,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,9,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,10,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,11,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,12,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,14,3
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 174,255
            LWMPoint 255,230
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,230
            LWMPoint 174,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,15,3
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 145,255
            LWMPoint 255,221
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,152
            LWMPoint 0,230
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,221
            LWMPoint 145,255
            LWMPoint 0,255
            LWMPoint 0,230
            LWMPoint 255,152
        LWMDataAreaDrawPolygons 4,3,1,16,3
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,174
            LWMPoint 206,232
            LWMPoint 129,255
            LWMPoint 0,255
            LWMPoint 0,221
            LWMPoint 255,144
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 129,255
            LWMPoint 206,232
            LWMPoint 187,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,144
            LWMPoint 0,221
            LWMPoint 0,152
            LWMPoint 255,74
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,74
            LWMPoint 0,152
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,17,3
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,74
            LWMPoint 117,38
            LWMPoint 33,134
            LWMPoint 0,144
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,144
            LWMPoint 33,134
            LWMPoint 0,174
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 153,0
            LWMPoint 117,38
            LWMPoint 0,74
      LWMDataAreaFill1x1        0,0,1,18,3
      LWMDataAreaFill1x1        0,0,1,19,3
      LWMDataAreaFill1x1        0,0,1,20,3
      LWMDataAreaFill1x1        0,0,1,21,3
      LWMDataAreaFill1x1        0,0,1,22,3
      LWMDataAreaFill1x1        0,0,1,23,3
      LWMDataAreaFill1x1        0,0,1,24,3
      LWMDataAreaFill1x1        0,0,1,25,3
      LWMDataAreaFill1x1        0,0,1,26,3
      LWMDataAreaFill1x1        0,0,1,27,3
      LWMDataAreaFill1x1        0,0,1,28,3
      LWMDataAreaFill1x1        0,0,1,29,3
      LWMDataAreaFill1x1        0,0,1,30,3
      LWMDataAreaFill1x1        0,0,1,31,3
        LWMDataAreaDrawPolygons 1,3,1,0,4
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,1,4
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,2,4
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,3,4
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,4,4
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,5,4
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,6,4
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 43,255
            LWMPoint 99,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 99,0
            LWMPoint 43,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 1,3,1,7,4
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,8,4
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,9,4
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,10,4
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,11,4
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 107,255
            LWMPoint 255,210
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,210
            LWMPoint 107,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,12,4
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,132
            LWMPoint 0,210
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,199
            LWMPoint 70,255
            LWMPoint 0,255
            LWMPoint 0,210
            LWMPoint 255,132
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 70,255
            LWMPoint 255,199
        LWMDataAreaDrawPolygons 4,3,1,13,4
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,192
            LWMPoint 46,255
            LWMPoint 0,255
            LWMPoint 0,199
            LWMPoint 255,121
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,121
            LWMPoint 0,199
            LWMPoint 0,132
            LWMPoint 255,53
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 46,255
            LWMPoint 255,192
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,53
            LWMPoint 0,132
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,14,4
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,116
            LWMPoint 0,192
            LWMPoint 0,121
            LWMPoint 255,44
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,192
            LWMPoint 255,116
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 174,0
            LWMPoint 0,53
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,44
            LWMPoint 0,121
            LWMPoint 0,53
            LWMPoint 174,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,15,4
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 145,0
            LWMPoint 0,44
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,219
            LWMPoint 222,255
            LWMPoint 0,255
            LWMPoint 0,116
            LWMPoint 255,39
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,39
            LWMPoint 0,116
            LWMPoint 0,44
            LWMPoint 145,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,16,4
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 0,39
            LWMPoint 129,0
            LWMPoint 187,0
            LWMPoint 124,76
            LWMPoint 40,175
            LWMPoint 0,219
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 129,0
            LWMPoint 0,39
      LWMDataAreaFill1x1        0,0,1,17,4
      LWMDataAreaFill1x1        0,0,1,18,4
      LWMDataAreaFill1x1        0,0,1,19,4
      LWMDataAreaFill1x1        0,0,1,20,4
      LWMDataAreaFill1x1        0,0,1,21,4
      LWMDataAreaFill1x1        0,0,1,22,4
      LWMDataAreaFill1x1        0,0,1,23,4
      LWMDataAreaFill1x1        0,0,1,24,4
      LWMDataAreaFill1x1        0,0,1,25,4
      LWMDataAreaFill1x1        0,0,1,26,4
      LWMDataAreaFill1x1        0,0,1,27,4
      LWMDataAreaFill1x1        0,0,1,28,4
      LWMDataAreaFill1x1        0,0,1,29,4
      LWMDataAreaFill1x1        0,0,1,30,4
      LWMDataAreaFill1x1        0,0,1,31,4
        LWMDataAreaDrawPolygons 5,3,1,0,5
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 210,255
            LWMPoint 0,232
            LWMPoint 0,225
            LWMPoint 255,253
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,232
            LWMPoint 210,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,247
            LWMPoint 0,219
            LWMPoint 0,214
            LWMPoint 255,242
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,253
            LWMPoint 0,225
            LWMPoint 0,219
            LWMPoint 255,247
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,242
            LWMPoint 0,214
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,1,5
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,253
            LWMPoint 20,255
            LWMPoint 0,255
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 115,255
            LWMPoint 0,242
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,247
            LWMPoint 75,255
            LWMPoint 20,255
            LWMPoint 0,253
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,242
            LWMPoint 115,255
            LWMPoint 75,255
            LWMPoint 0,247
        LWMDataAreaDrawPolygons 1,3,1,2,5
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,3,5
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,4,5
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,5,5
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 242,255
            LWMPoint 255,196
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,196
            LWMPoint 242,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 2,3,1,6,5
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 43,0
            LWMPoint 0,196
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,196
            LWMPoint 43,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,7,5
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,8,5
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,253
            LWMPoint 250,255
            LWMPoint 40,255
            LWMPoint 255,189
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 250,255
            LWMPoint 255,253
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,189
            LWMPoint 40,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,9,5
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,255
            LWMPoint 217,255
            LWMPoint 255,244
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,176
            LWMPoint 0,253
            LWMPoint 0,189
            LWMPoint 255,111
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,111
            LWMPoint 0,189
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,244
            LWMPoint 217,255
            LWMPoint 0,255
            LWMPoint 0,253
            LWMPoint 255,176
        LWMDataAreaDrawPolygons 4,3,1,10,5
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,244
            LWMPoint 255,167
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,33
            LWMPoint 0,111
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,167
            LWMPoint 0,244
            LWMPoint 0,176
            LWMPoint 255,99
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,99
            LWMPoint 0,176
            LWMPoint 0,111
            LWMPoint 255,33
        LWMDataAreaDrawPolygons 4,3,1,11,5
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 107,0
            LWMPoint 0,33
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,21
            LWMPoint 0,99
            LWMPoint 0,33
            LWMPoint 107,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,90
            LWMPoint 0,167
            LWMPoint 0,99
            LWMPoint 255,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,167
            LWMPoint 255,90
        LWMDataAreaDrawPolygons 3,3,1,12,5
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,14
            LWMPoint 0,90
            LWMPoint 0,21
            LWMPoint 70,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 70,0
            LWMPoint 0,21
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,90
            LWMPoint 255,14
        LWMDataAreaDrawPolygons 2,3,1,13,5
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 46,0
            LWMPoint 0,14
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,255
            LWMPoint 0,255
            LWMPoint 0,14
            LWMPoint 46,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,14,5
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,205
            LWMPoint 185,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,15,5
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 0,0
            LWMPoint 222,0
            LWMPoint 207,17
            LWMPoint 112,110
            LWMPoint 10,197
            LWMPoint 0,205
      LWMDataAreaFill1x1        0,0,1,16,5
      LWMDataAreaFill1x1        0,0,1,17,5
      LWMDataAreaFill1x1        0,0,1,18,5
      LWMDataAreaFill1x1        0,0,1,19,5
      LWMDataAreaFill1x1        0,0,1,20,5
      LWMDataAreaFill1x1        0,0,1,21,5
      LWMDataAreaFill1x1        0,0,1,22,5
      LWMDataAreaFill1x1        0,0,1,23,5
      LWMDataAreaFill1x1        0,0,1,24,5
      LWMDataAreaFill1x1        0,0,1,25,5
      LWMDataAreaFill1x1        0,0,1,26,5
      LWMDataAreaFill1x1        0,0,1,27,5
        LWMDataAreaDrawPolygons 2,3,1,28,5
; 
; Mainland, south-east point
; 
          LWMPoly2   6,0,0,0,0
            LWMPoint 255,155
            LWMPoint 75,255
            LWMPoint 0,255
            LWMPoint 0,9
            LWMPoint 8,0
            LWMPoint 255,0
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 0,0
            LWMPoint 8,0
            LWMPoint 0,9
      LWMDataAreaFill1x1        0,0,1,29,5
      LWMDataAreaFill1x1        0,0,1,30,5
      LWMDataAreaFill1x1        0,0,1,31,5
        LWMDataAreaDrawPolygons 2,3,1,0,6
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,5
            LWMPoint 210,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   8,0,1,0,0
            LWMPoint 255,37
            LWMPoint 252,36
            LWMPoint 135,22
            LWMPoint 19,6
            LWMPoint 0,3
            LWMPoint 0,0
            LWMPoint 210,0
            LWMPoint 255,5
        LWMDataAreaDrawPolygons 5,3,1,1,6
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,33
            LWMPoint 0,5
            LWMPoint 0,0
            LWMPoint 20,0
            LWMPoint 255,26
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,15
            LWMPoint 115,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,26
            LWMPoint 20,0
            LWMPoint 75,0
            LWMPoint 255,20
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,60
            LWMPoint 233,58
            LWMPoint 114,48
            LWMPoint 0,37
            LWMPoint 0,5
            LWMPoint 255,33
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,20
            LWMPoint 75,0
            LWMPoint 115,0
            LWMPoint 255,15
        LWMDataAreaDrawPolygons 5,3,1,2,6
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,74
            LWMPoint 218,72
            LWMPoint 97,66
            LWMPoint 0,60
            LWMPoint 0,33
            LWMPoint 255,61
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,44
            LWMPoint 0,15
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,48
            LWMPoint 0,20
            LWMPoint 0,15
            LWMPoint 255,44
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,54
            LWMPoint 0,26
            LWMPoint 0,20
            LWMPoint 255,48
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,61
            LWMPoint 0,33
            LWMPoint 0,26
            LWMPoint 255,54
        LWMDataAreaDrawPolygons 5,3,1,3,6
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,72
            LWMPoint 0,44
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,61
            LWMPoint 208,83
            LWMPoint 85,78
            LWMPoint 0,74
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,86
            LWMPoint 208,83
            LWMPoint 0,61
            LWMPoint 0,54
            LWMPoint 255,81
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,81
            LWMPoint 0,54
            LWMPoint 0,48
            LWMPoint 255,76
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,76
            LWMPoint 0,48
            LWMPoint 0,44
            LWMPoint 255,72
        LWMDataAreaDrawPolygons 4,3,1,4,6
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,100
            LWMPoint 0,72
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,102
            LWMPoint 205,98
            LWMPoint 0,76
            LWMPoint 0,72
            LWMPoint 255,100
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,81
            LWMPoint 78,90
            LWMPoint 0,86
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,76
            LWMPoint 205,98
            LWMPoint 78,90
            LWMPoint 0,81
        LWMDataAreaDrawPolygons 3,3,1,5,6
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,0
            LWMPoint 242,0
            LWMPoint 215,122
            LWMPoint 81,109
            LWMPoint 0,100
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,100
            LWMPoint 81,109
            LWMPoint 0,102
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,127
            LWMPoint 215,122
            LWMPoint 242,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 3,3,1,6,6
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,159
            LWMPoint 242,157
            LWMPoint 255,153
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,153
            LWMPoint 242,157
            LWMPoint 99,138
            LWMPoint 255,90
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,90
            LWMPoint 99,138
            LWMPoint 0,127
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 4,3,1,7,6
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,142
            LWMPoint 135,178
            LWMPoint 0,159
            LWMPoint 0,153
            LWMPoint 255,76
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,12
            LWMPoint 0,90
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,76
            LWMPoint 0,153
            LWMPoint 0,90
            LWMPoint 255,12
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 255,195
            LWMPoint 135,178
            LWMPoint 255,142
        LWMDataAreaDrawPolygons 4,3,1,8,6
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 40,0
            LWMPoint 0,12
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,65
            LWMPoint 0,142
            LWMPoint 0,76
            LWMPoint 250,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,229
            LWMPoint 189,221
            LWMPoint 32,200
            LWMPoint 0,195
            LWMPoint 0,142
            LWMPoint 255,65
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,12
            LWMPoint 40,0
            LWMPoint 250,0
            LWMPoint 0,76
        LWMDataAreaDrawPolygons 2,3,1,9,6
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,254
            LWMPoint 94,240
            LWMPoint 0,229
            LWMPoint 0,65
            LWMPoint 217,0
            LWMPoint 255,0
; 
; Main island
; 
          LWMPoly2   3,0,1,0,0
            LWMPoint 0,0
            LWMPoint 217,0
            LWMPoint 0,65
        LWMDataAreaDrawPolygons 1,3,1,10,6
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,255
            LWMPoint 20,255
            LWMPoint 0,255
            LWMPoint 0,254
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,11,6
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,247
            LWMPoint 229,251
            LWMPoint 168,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,12,6
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 255,200
            LWMPoint 128,229
            LWMPoint 0,247
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,13,6
; 
; Main island
; 
          LWMPoly2   6,0,1,0,0
            LWMPoint 255,106
            LWMPoint 159,149
            LWMPoint 20,195
            LWMPoint 0,200
            LWMPoint 0,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,14,6
; 
; Main island
; 
          LWMPoly2   5,0,1,0,0
            LWMPoint 0,0
            LWMPoint 185,0
            LWMPoint 154,21
            LWMPoint 34,91
            LWMPoint 0,106
      LWMDataAreaFill1x1        0,0,1,15,6
      LWMDataAreaFill1x1        0,0,1,16,6
      LWMDataAreaFill1x1        0,0,1,17,6
      LWMDataAreaFill1x1        0,0,1,18,6
      LWMDataAreaFill1x1        0,0,1,19,6
      LWMDataAreaFill1x1        0,0,1,20,6
      LWMDataAreaFill1x1        0,0,1,21,6
      LWMDataAreaFill1x1        0,0,1,22,6
      LWMDataAreaFill1x1        0,0,1,23,6
      LWMDataAreaFill1x1        0,0,1,24,6
      LWMDataAreaFill1x1        0,0,1,25,6
        LWMDataAreaDrawPolygons 5,3,1,26,6
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 255,182
            LWMPoint 35,245
            LWMPoint 255,147
; 
; Mainland, south-east point
; 
          LWMPoly2   6,0,0,0,0
            LWMPoint 255,17
            LWMPoint 35,245
            LWMPoint 18,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 255,147
            LWMPoint 35,245
            LWMPoint 255,17
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 255,182
            LWMPoint 212,206
            LWMPoint 35,245
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 18,255
            LWMPoint 35,245
            LWMPoint 20,255
        LWMDataAreaDrawPolygons 4,3,1,27,6
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 255,42
            LWMPoint 234,54
            LWMPoint 0,182
; 
; Mainland, south-east point
; 
          LWMPoly2   5,0,0,0,0
            LWMPoint 255,33
            LWMPoint 0,147
            LWMPoint 0,17
            LWMPoint 17,0
            LWMPoint 255,0
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 255,42
            LWMPoint 0,182
            LWMPoint 0,147
            LWMPoint 255,33
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 0,0
            LWMPoint 17,0
            LWMPoint 0,17
        LWMDataAreaDrawPolygons 2,3,1,28,6
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 0,0
            LWMPoint 75,0
            LWMPoint 0,33
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 0,33
            LWMPoint 75,0
            LWMPoint 0,42
      LWMDataAreaFill1x1        0,0,1,29,6
      LWMDataAreaFill1x1        0,0,1,30,6
      LWMDataAreaFill1x1        0,0,1,31,6
      LWMDataAreaFill1x1        0,0,1,0,7
      LWMDataAreaFill1x1        0,0,1,1,7
      LWMDataAreaFill1x1        0,0,1,2,7
      LWMDataAreaFill1x1        0,0,1,3,7
      LWMDataAreaFill1x1        0,0,1,4,7
      LWMDataAreaFill1x1        0,0,1,5,7
      LWMDataAreaFill1x1        0,0,1,6,7
      LWMDataAreaFill1x1        0,0,1,7,7
      LWMDataAreaFill1x1        0,0,1,8,7
      LWMDataAreaFill1x1        0,0,1,9,7
        LWMDataAreaDrawPolygons 1,3,1,10,7
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 255,7
            LWMPoint 164,7
            LWMPoint 20,0
            LWMPoint 255,0
        LWMDataAreaDrawPolygons 1,3,1,11,7
; 
; Main island
; 
          LWMPoly2   4,0,1,0,0
            LWMPoint 0,0
            LWMPoint 168,0
            LWMPoint 70,6
            LWMPoint 0,7
      LWMDataAreaFill1x1        0,0,1,12,7
      LWMDataAreaFill1x1        0,0,1,13,7
      LWMDataAreaFill1x1        0,0,1,14,7
      LWMDataAreaFill1x1        0,0,1,15,7
      LWMDataAreaFill1x1        0,0,1,16,7
      LWMDataAreaFill1x1        0,0,1,17,7
      LWMDataAreaFill1x1        0,0,1,18,7
      LWMDataAreaFill1x1        0,0,1,19,7
      LWMDataAreaFill1x1        0,0,1,20,7
      LWMDataAreaFill1x1        0,0,1,21,7
      LWMDataAreaFill1x1        0,0,1,22,7
      LWMDataAreaFill1x1        0,0,1,23,7
        LWMDataAreaDrawPolygons 5,3,1,24,7
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 255,159
            LWMPoint 89,255
            LWMPoint 88,255
            LWMPoint 255,158
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 255,192
            LWMPoint 131,255
            LWMPoint 126,255
            LWMPoint 255,188
; 
; Mainland, south-east point
; 
          LWMPoly2   5,0,0,0,0
            LWMPoint 255,158
            LWMPoint 88,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 255,188
            LWMPoint 126,255
            LWMPoint 89,255
            LWMPoint 255,159
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 131,255
            LWMPoint 255,192
            LWMPoint 166,255
        LWMDataAreaDrawPolygons 4,3,1,25,7
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 255,12
            LWMPoint 0,159
            LWMPoint 0,158
            LWMPoint 255,10
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 255,10
            LWMPoint 0,158
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Mainland, south-east point
; 
          LWMPoly2   5,0,0,0,0
            LWMPoint 255,14
            LWMPoint 20,178
            LWMPoint 0,188
            LWMPoint 0,159
            LWMPoint 255,12
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 0,188
            LWMPoint 20,178
            LWMPoint 0,192
        LWMDataAreaDrawPolygons 3,3,1,26,7
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 0,12
            LWMPoint 20,0
            LWMPoint 0,14
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 0,0
            LWMPoint 18,0
            LWMPoint 0,10
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 0,10
            LWMPoint 18,0
            LWMPoint 20,0
            LWMPoint 0,12
      LWMDataAreaFill1x1        0,0,1,27,7
      LWMDataAreaFill1x1        0,0,1,28,7
      LWMDataAreaFill1x1        0,0,1,29,7
      LWMDataAreaFill1x1        0,0,1,30,7
      LWMDataAreaFill1x1        0,0,1,31,7
      LWMDataAreaFill1x1        0,0,1,0,8
      LWMDataAreaFill1x1        0,0,1,1,8
      LWMDataAreaFill1x1        0,0,1,2,8
      LWMDataAreaFill1x1        0,0,1,3,8
      LWMDataAreaFill1x1        0,0,1,4,8
      LWMDataAreaFill1x1        0,0,1,5,8
      LWMDataAreaFill1x1        0,0,1,6,8
      LWMDataAreaFill1x1        0,0,1,7,8
      LWMDataAreaFill1x1        0,0,1,8,8
      LWMDataAreaFill1x1        0,0,1,9,8
      LWMDataAreaFill1x1        0,0,1,10,8
      LWMDataAreaFill1x1        0,0,1,11,8
      LWMDataAreaFill1x1        0,0,1,12,8
      LWMDataAreaFill1x1        0,0,1,13,8
      LWMDataAreaFill1x1        0,0,1,14,8
      LWMDataAreaFill1x1        0,0,1,15,8
      LWMDataAreaFill1x1        0,0,1,16,8
      LWMDataAreaFill1x1        0,0,1,17,8
      LWMDataAreaFill1x1        0,0,1,18,8
      LWMDataAreaFill1x1        0,0,1,19,8
      LWMDataAreaFill1x1        0,0,1,20,8
      LWMDataAreaFill1x1        0,0,1,21,8
      LWMDataAreaFill1x1        0,0,1,22,8
        LWMDataAreaDrawPolygonsEx 7,3,1,23,8,2
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 0,123
            LWMPoint 45,173
            LWMPoint 6,255
            LWMPoint 0,255
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 255,66
            LWMPoint 45,173
            LWMPoint 255,65
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 255,52
            LWMPoint 45,173
            LWMPoint 255,51
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 255,113
            LWMPoint 45,173
            LWMPoint 255,66
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 12,255
            LWMPoint 45,173
            LWMPoint 15,255
; 
; Mainland, south-east point
; 
          LWMPoly2   5,0,0,0,0
            LWMPoint 255,51
            LWMPoint 45,173
            LWMPoint 0,123
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 6,255
            LWMPoint 45,173
            LWMPoint 10,255
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 255,65
            LWMPoint 45,173
            LWMPoint 255,52
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 10,255
            LWMPoint 45,173
            LWMPoint 12,255
        LWMDataAreaDrawPolygons 5,3,1,24,8
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 0,51
            LWMPoint 88,0
            LWMPoint 89,0
            LWMPoint 0,52
; 
; Mainland, south-east point
; 
          LWMPoly2   5,0,0,0,0
            LWMPoint 0,66
            LWMPoint 131,0
            LWMPoint 166,0
            LWMPoint 9,110
            LWMPoint 0,113
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 0,0
            LWMPoint 88,0
            LWMPoint 0,51
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 0,65
            LWMPoint 126,0
            LWMPoint 131,0
            LWMPoint 0,66
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 0,52
            LWMPoint 89,0
            LWMPoint 126,0
            LWMPoint 0,65
      LWMDataAreaFill1x1        0,0,1,25,8
      LWMDataAreaFill1x1        0,0,1,26,8
      LWMDataAreaFill1x1        0,0,1,27,8
      LWMDataAreaFill1x1        0,0,1,28,8
      LWMDataAreaFill1x1        0,0,1,29,8
      LWMDataAreaFill1x1        0,0,1,30,8
      LWMDataAreaFill1x1        0,0,1,31,8
      LWMDataAreaFill1x1        0,0,1,0,9
      LWMDataAreaFill1x1        0,0,1,1,9
      LWMDataAreaFill1x1        0,0,1,2,9
      LWMDataAreaFill1x1        0,0,1,3,9
      LWMDataAreaFill1x1        0,0,1,4,9
      LWMDataAreaFill1x1        0,0,1,5,9
      LWMDataAreaFill1x1        0,0,1,6,9
      LWMDataAreaFill1x1        0,0,1,7,9
      LWMDataAreaFill1x1        0,0,1,8,9
      LWMDataAreaFill1x1        0,0,1,9,9
      LWMDataAreaFill1x1        0,0,1,10,9
      LWMDataAreaFill1x1        0,0,1,11,9
      LWMDataAreaFill1x1        0,0,1,12,9
      LWMDataAreaFill1x1        0,0,1,13,9
      LWMDataAreaFill1x1        0,0,1,14,9
      LWMDataAreaFill1x1        0,0,1,15,9
      LWMDataAreaFill1x1        0,0,1,16,9
      LWMDataAreaFill1x1        0,0,1,17,9
      LWMDataAreaHeight        0,0
      LWMDataAreaFill1x1        0,0,1,18,9
      LWMDataAreaFill1x1        0,0,1,19,9
      LWMDataAreaFill1x1        0,0,1,20,9
      LWMDataAreaFill1x1        0,0,1,21,9
        LWMDataAreaDrawPolygons 4,3,1,22,9
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 255,24
            LWMPoint 157,255
            LWMPoint 140,255
            LWMPoint 255,13
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 255,40
            LWMPoint 202,183
            LWMPoint 163,255
            LWMPoint 255,29
; 
; Mainland, south-east point
; 
          LWMPoly2   5,0,0,0,0
            LWMPoint 255,13
            LWMPoint 140,255
            LWMPoint 0,255
            LWMPoint 0,0
            LWMPoint 255,0
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 255,29
            LWMPoint 163,255
            LWMPoint 157,255
            LWMPoint 255,24
        LWMDataAreaDrawPolygons 4,3,1,23,9
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 0,29
            LWMPoint 12,0
            LWMPoint 15,0
            LWMPoint 0,40
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 0,0
            LWMPoint 6,0
            LWMPoint 0,13
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 0,13
            LWMPoint 6,0
            LWMPoint 10,0
            LWMPoint 0,24
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 0,24
            LWMPoint 10,0
            LWMPoint 12,0
            LWMPoint 0,29
      LWMDataAreaFill1x1        0,0,1,24,9
      LWMDataAreaFill1x1        0,0,1,25,9
      LWMDataAreaFill1x1        0,0,1,26,9
      LWMDataAreaFill1x1        0,0,1,27,9
      LWMDataAreaFill1x1        0,0,1,28,9
      LWMDataAreaFill1x1        0,0,1,29,9
      LWMDataAreaFill1x1        0,0,1,30,9
      LWMDataAreaFill1x1        0,0,1,31,9
      LWMDataAreaFill1x1        0,0,1,0,10
      LWMDataAreaFill1x1        0,0,1,1,10
      LWMDataAreaFill1x1        0,0,1,2,10
      LWMDataAreaFill1x1        0,0,1,3,10
      LWMDataAreaFill1x1        0,0,1,4,10
      LWMDataAreaFill1x1        0,0,1,5,10
      LWMDataAreaFill1x1        0,0,1,6,10
      LWMDataAreaFill1x1        0,0,1,7,10
      LWMDataAreaFill1x1        0,0,1,8,10
      LWMDataAreaFill1x1        0,0,1,9,10
      LWMDataAreaFill1x1        0,0,1,10,10
      LWMDataAreaFill1x1        0,0,1,11,10
      LWMDataAreaFill1x1        0,0,1,12,10
      LWMDataAreaFill1x1        0,0,1,13,10
      LWMDataAreaFill1x1        0,0,1,14,10
      LWMDataAreaFill1x1        0,0,1,15,10
      LWMDataAreaFill1x1        0,0,1,16,10
      LWMDataAreaFill1x1        0,0,1,17,10
      LWMDataAreaFill1x1        0,0,1,18,10
      LWMDataAreaFill1x1        0,0,1,19,10
      LWMDataAreaFill1x1        0,0,1,20,10
      LWMDataAreaFill1x1        0,0,1,21,10
        LWMDataAreaDrawPolygons 4,3,1,22,10
; 
; Mainland, south-east point
; 
          LWMPoly2   5,0,0,0,0
            LWMPoint 19,255
            LWMPoint 140,0
            LWMPoint 157,0
            LWMPoint 136,50
            LWMPoint 34,255
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 34,255
            LWMPoint 136,50
            LWMPoint 64,255
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 163,0
            LWMPoint 136,50
            LWMPoint 157,0
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 0,0
            LWMPoint 140,0
            LWMPoint 19,255
            LWMPoint 0,255
      LWMDataAreaFill1x1        0,0,1,23,10
      LWMDataAreaFill1x1        0,0,1,24,10
      LWMDataAreaFill1x1        0,0,1,25,10
      LWMDataAreaFill1x1        0,0,1,26,10
      LWMDataAreaFill1x1        0,0,1,27,10
      LWMDataAreaFill1x1        0,0,1,28,10
      LWMDataAreaFill1x1        0,0,1,29,10
      LWMDataAreaFill1x1        0,0,1,30,10
      LWMDataAreaFill1x1        0,0,1,31,10
      LWMDataAreaFill1x1        0,0,1,0,11
      LWMDataAreaFill1x1        0,0,1,1,11
      LWMDataAreaFill1x1        0,0,1,2,11
      LWMDataAreaFill1x1        0,0,1,3,11
      LWMDataAreaFill1x1        0,0,1,4,11
      LWMDataAreaFill1x1        0,0,1,5,11
      LWMDataAreaFill1x1        0,0,1,6,11
      LWMDataAreaFill1x1        0,0,1,7,11
      LWMDataAreaFill1x1        0,0,1,8,11
      LWMDataAreaFill1x1        0,0,1,9,11
      LWMDataAreaFill1x1        0,0,1,10,11
      LWMDataAreaFill1x1        0,0,1,11,11
      LWMDataAreaFill1x1        0,0,1,12,11
      LWMDataAreaFill1x1        0,0,1,13,11
      LWMDataAreaFill1x1        0,0,1,14,11
      LWMDataAreaFill1x1        0,0,1,15,11
      LWMDataAreaFill1x1        0,0,1,16,11
      LWMDataAreaFill1x1        0,0,1,17,11
      LWMDataAreaFill1x1        0,0,1,18,11
      LWMDataAreaFill1x1        0,0,1,19,11
      LWMDataAreaFill1x1        0,0,1,20,11
        LWMDataAreaDrawPolygons 4,3,1,21,11
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 255,114
            LWMPoint 161,255
            LWMPoint 255,67
; 
; Mainland, south-east point
; 
          LWMPoly2   5,0,0,0,0
            LWMPoint 255,39
            LWMPoint 152,255
            LWMPoint 116,255
            LWMPoint 37,0
            LWMPoint 255,0
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 255,67
            LWMPoint 161,255
            LWMPoint 152,255
            LWMPoint 255,39
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 0,0
            LWMPoint 37,0
            LWMPoint 116,255
            LWMPoint 0,255
        LWMDataAreaDrawPolygons 3,3,1,22,11
; 
; Mainland, south-east point
; 
          LWMPoly2   5,0,0,0,0
            LWMPoint 0,67
            LWMPoint 34,0
            LWMPoint 64,0
            LWMPoint 51,37
            LWMPoint 0,114
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 0,0
            LWMPoint 19,0
            LWMPoint 0,39
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 0,39
            LWMPoint 19,0
            LWMPoint 34,0
            LWMPoint 0,67
      LWMDataAreaFill1x1        0,0,1,23,11
      LWMDataAreaFill1x1        0,0,1,24,11
      LWMDataAreaFill1x1        0,0,1,25,11
      LWMDataAreaFill1x1        0,0,1,26,11
      LWMDataAreaFill1x1        0,0,1,27,11
      LWMDataAreaFill1x1        0,0,1,28,11
      LWMDataAreaFill1x1        0,0,1,29,11
      LWMDataAreaFill1x1        0,0,1,30,11
      LWMDataAreaFill1x1        0,0,1,31,11
      LWMDataAreaFill1x1        0,0,1,0,12
      LWMDataAreaFill1x1        0,0,1,1,12
      LWMDataAreaFill1x1        0,0,1,2,12
      LWMDataAreaFill1x1        0,0,1,3,12
      LWMDataAreaFill1x1        0,0,1,4,12
      LWMDataAreaFill1x1        0,0,1,5,12
      LWMDataAreaFill1x1        0,0,1,6,12
      LWMDataAreaFill1x1        0,0,1,7,12
      LWMDataAreaFill1x1        0,0,1,8,12
      LWMDataAreaFill1x1        0,0,1,9,12
      LWMDataAreaFill1x1        0,0,1,10,12
      LWMDataAreaFill1x1        0,0,1,11,12
      LWMDataAreaFill1x1        0,0,1,12,12
      LWMDataAreaFill1x1        0,0,1,13,12
      LWMDataAreaFill1x1        0,0,1,14,12
      LWMDataAreaFill1x1        0,0,1,15,12
      LWMDataAreaFill1x1        0,0,1,16,12
      LWMDataAreaFill1x1        0,0,1,17,12
      LWMDataAreaFill1x1        0,0,1,18,12
      LWMDataAreaFill1x1        0,0,1,19,12
      LWMDataAreaFill1x1        0,0,1,20,12
        LWMDataAreaDrawPolygons 6,3,1,21,12
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 69,255
            LWMPoint 130,47
            LWMPoint 131,255
; 
; Mainland, south-east point
; 
          LWMPoly2   5,0,0,0,0
            LWMPoint 0,0
            LWMPoint 116,0
            LWMPoint 130,47
            LWMPoint 50,255
            LWMPoint 0,255
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 57,255
            LWMPoint 130,47
            LWMPoint 69,255
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 152,0
            LWMPoint 130,47
            LWMPoint 116,0
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 50,255
            LWMPoint 130,47
            LWMPoint 57,255
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 161,0
            LWMPoint 130,47
            LWMPoint 152,0
      LWMDataAreaFill1x1        0,0,1,22,12
      LWMDataAreaFill1x1        0,0,1,23,12
      LWMDataAreaFill1x1        0,0,1,24,12
      LWMDataAreaFill1x1        0,0,1,25,12
      LWMDataAreaFill1x1        0,0,1,26,12
      LWMDataAreaFill1x1        0,0,1,27,12
      LWMDataAreaFill1x1        0,0,1,28,12
      LWMDataAreaFill1x1        0,0,1,29,12
      LWMDataAreaFill1x1        0,0,1,30,12
      LWMDataAreaFill1x1        0,0,1,31,12
      LWMDataAreaFill1x1        0,0,1,0,13
      LWMDataAreaFill1x1        0,0,1,1,13
      LWMDataAreaFill1x1        0,0,1,2,13
      LWMDataAreaFill1x1        0,0,1,3,13
      LWMDataAreaFill1x1        0,0,1,4,13
      LWMDataAreaFill1x1        0,0,1,5,13
      LWMDataAreaFill1x1        0,0,1,6,13
      LWMDataAreaFill1x1        0,0,1,7,13
      LWMDataAreaFill1x1        0,0,1,8,13
      LWMDataAreaFill1x1        0,0,1,9,13
      LWMDataAreaFill1x1        0,0,1,10,13
      LWMDataAreaFill1x1        0,0,1,11,13
      LWMDataAreaFill1x1        0,0,1,12,13
      LWMDataAreaFill1x1        0,0,1,13,13
      LWMDataAreaFill1x1        0,0,1,14,13
      LWMDataAreaFill1x1        0,0,1,15,13
      LWMDataAreaFill1x1        0,0,1,16,13
      LWMDataAreaFill1x1        0,0,1,17,13
      LWMDataAreaFill1x1        0,0,1,18,13
      LWMDataAreaFill1x1        0,0,1,19,13
        LWMDataAreaDrawPolygons 5,3,1,20,13
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 255,239
            LWMPoint 250,255
            LWMPoint 221,255
            LWMPoint 255,160
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 0,0
            LWMPoint 59,0
            LWMPoint 94,255
            LWMPoint 0,255
; 
; Mainland, south-east point
; 
          LWMPoly2   5,0,0,0,0
            LWMPoint 255,130
            LWMPoint 207,255
            LWMPoint 94,255
            LWMPoint 59,0
            LWMPoint 255,0
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 255,249
            LWMPoint 251,255
            LWMPoint 250,255
            LWMPoint 255,239
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 255,160
            LWMPoint 221,255
            LWMPoint 207,255
            LWMPoint 255,130
        LWMDataAreaDrawPolygons 5,3,1,21,13
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 0,160
            LWMPoint 57,0
            LWMPoint 69,0
            LWMPoint 0,239
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 0,0
            LWMPoint 50,0
            LWMPoint 0,130
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 131,0
            LWMPoint 132,55
            LWMPoint 0,249
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 0,239
            LWMPoint 69,0
            LWMPoint 131,0
            LWMPoint 0,249
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 0,130
            LWMPoint 50,0
            LWMPoint 57,0
            LWMPoint 0,160
      LWMDataAreaFill1x1        0,0,1,22,13
      LWMDataAreaFill1x1        0,0,1,23,13
      LWMDataAreaFill1x1        0,0,1,24,13
      LWMDataAreaFill1x1        0,0,1,25,13
      LWMDataAreaFill1x1        0,0,1,26,13
      LWMDataAreaFill1x1        0,0,1,27,13
      LWMDataAreaFill1x1        0,0,1,28,13
      LWMDataAreaFill1x1        0,0,1,29,13
      LWMDataAreaFill1x1        0,0,1,30,13
      LWMDataAreaFill1x1        0,0,1,31,13
      LWMDataAreaFill1x1        0,0,1,0,14
      LWMDataAreaFill1x1        0,0,1,1,14
      LWMDataAreaFill1x1        0,0,1,2,14
      LWMDataAreaFill1x1        0,0,1,3,14
      LWMDataAreaFill1x1        0,0,1,4,14
      LWMDataAreaFill1x1        0,0,1,5,14
      LWMDataAreaFill1x1        0,0,1,6,14
      LWMDataAreaFill1x1        0,0,1,7,14
      LWMDataAreaFill1x1        0,0,1,8,14
      LWMDataAreaFill1x1        0,0,1,9,14
      LWMDataAreaFill1x1        0,0,1,10,14
      LWMDataAreaFill1x1        0,0,1,11,14
      LWMDataAreaFill1x1        0,0,1,12,14
      LWMDataAreaFill1x1        0,0,1,13,14
      LWMDataAreaFill1x1        0,0,1,14,14
      LWMDataAreaFill1x1        0,0,1,15,14
      LWMDataAreaFill1x1        0,0,1,16,14
      LWMDataAreaFill1x1        0,0,1,17,14
      LWMDataAreaFill1x1        0,0,1,18,14
      LWMDataAreaFill1x1        0,0,1,19,14
        LWMDataAreaDrawPolygons 6,3,1,20,14
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 250,0
            LWMPoint 250,1
            LWMPoint 178,123
            LWMPoint 221,0
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 207,0
            LWMPoint 124,216
            LWMPoint 94,0
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 221,0
            LWMPoint 178,123
            LWMPoint 124,216
            LWMPoint 207,0
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 251,0
            LWMPoint 250,1
            LWMPoint 250,0
; 
; Mainland, south-east point
; 
          LWMPoly2   5,0,0,0,0
            LWMPoint 0,0
            LWMPoint 94,0
            LWMPoint 124,216
            LWMPoint 114,255
            LWMPoint 0,255
; 
; Mainland, south-east point
; 
          LWMPoly2   3,0,0,0,0
            LWMPoint 178,123
            LWMPoint 177,175
            LWMPoint 124,216
      LWMDataAreaFill1x1        0,0,1,21,14
      LWMDataAreaFill1x1        0,0,1,22,14
      LWMDataAreaFill1x1        0,0,1,23,14
      LWMDataAreaFill1x1        0,0,1,24,14
      LWMDataAreaFill1x1        0,0,1,25,14
      LWMDataAreaFill1x1        0,0,1,26,14
      LWMDataAreaFill1x1        0,0,1,27,14
      LWMDataAreaFill1x1        0,0,1,28,14
      LWMDataAreaFill1x1        0,0,1,29,14
      LWMDataAreaFill1x1        0,0,1,30,14
      LWMDataAreaFill1x1        0,0,1,31,14
      LWMDataAreaFill1x1        0,0,1,0,15
      LWMDataAreaFill1x1        0,0,1,1,15
      LWMDataAreaFill1x1        0,0,1,2,15
      LWMDataAreaFill1x1        0,0,1,3,15
      LWMDataAreaFill1x1        0,0,1,4,15
      LWMDataAreaFill1x1        0,0,1,5,15
      LWMDataAreaFill1x1        0,0,1,6,15
      LWMDataAreaFill1x1        0,0,1,7,15
      LWMDataAreaFill1x1        0,0,1,8,15
      LWMDataAreaFill1x1        0,0,1,9,15
      LWMDataAreaFill1x1        0,0,1,10,15
      LWMDataAreaFill1x1        0,0,1,11,15
      LWMDataAreaFill1x1        0,0,1,12,15
      LWMDataAreaFill1x1        0,0,1,13,15
      LWMDataAreaFill1x1        0,0,1,14,15
      LWMDataAreaFill1x1        0,0,1,15,15
      LWMDataAreaFill1x1        0,0,1,16,15
      LWMDataAreaFill1x1        0,0,1,17,15
      LWMDataAreaFill1x1        0,0,1,18,15
      LWMDataAreaFill1x1        0,0,1,19,15
        LWMDataAreaDrawPolygons 2,3,1,20,15
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 0,224
            LWMPoint 78,136
            LWMPoint 108,255
            LWMPoint 0,255
; 
; Mainland, south-east point
; 
          LWMPoly2   4,0,0,0,0
            LWMPoint 0,0
            LWMPoint 114,0
            LWMPoint 78,136
            LWMPoint 0,224
      LWMDataAreaFill1x1        0,0,1,21,15
      LWMDataAreaFill1x1        0,0,1,22,15
      LWMDataAreaFill1x1        0,0,1,23,15
      LWMDataAreaFill1x1        0,0,1,24,15
      LWMDataAreaFill1x1        0,0,1,25,15
      LWMDataAreaFill1x1        0,0,1,26,15
      LWMDataAreaFill1x1        0,0,1,27,15
      LWMDataAreaFill1x1        0,0,1,28,15
      LWMDataAreaFill1x1        0,0,1,29,15
      LWMDataAreaFill1x1        0,0,1,30,15
      LWMDataAreaFill1x1        0,0,1,31,15
      LWMDataAreaFill16x16        0,0,0,1,0,0,1
      LWMDataAreaFill16x16        0,0,0,1,1,0,1
    datamark_6  label   word
;-----------------------------------------
    Cell_351_360    EQU    LWMCellID 0,0,3,351,360
    Cell_352_360    EQU    LWMCellID 0,0,0,352,360
    Cell_351_361    EQU    LWMCellID 0,0,3,351,361
    Cell_352_361    EQU    LWMCellID 0,0,3,352,361
    Cell_351_362    EQU    LWMCellID 0,0,3,351,362
    Cell_352_362    EQU    LWMCellID 0,0,3,352,362
    LWMIndexStart       Label   Word
         LWMIndexHeader 6,LWMIndexData
    LWMIndexData       Label   Word
        LWMIndexEntry   Cell_351_360,LWMStart,datamark_0,datamark_1
        LWMIndexEntry   Cell_352_360,LWMStart,LWMStart,LWMStart
        LWMIndexEntry   Cell_351_361,LWMStart,datamark_2,datamark_3
        LWMIndexEntry   Cell_352_361,LWMStart,datamark_3,datamark_4
        LWMIndexEntry   Cell_351_362,LWMStart,datamark_4,datamark_5
        LWMIndexEntry   Cell_352_362,LWMStart,datamark_5,datamark_6
LWMEnd          Label   Word
