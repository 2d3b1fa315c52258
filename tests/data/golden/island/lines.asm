;--------------------------------------------------
;  Terrafold Lines : Generated on 2003-10-04 12:00:00
;--------------------------------------------------
include TDFMacros.inc
include TDFHeaders.inc
BGLHeader -35, -38, -13, -16, TerrainHeaderStart, VTPHeader
VTPHeader   label   word
    VTPFileHeader 256, VTPIndexStart, TextureStart, VTPEnd
VTPStart        label   word
    datamark_v0 label   word
        VTPDataArea 1, 1, 31, 8
        VTPLayer 32, 0
        VTPNumTexturesInLayer 1, 0
           VTPTextureId  0, 0 
            VTPPolyCount 1, 0
;
;Mainland, north-west cape
;
             VTPPolyMethod2 11, 1, 0
               VTPWidePoint 7042, 1, 12240, 0
               VTPWidePointWidth 1
               VTPWidePoint 7042, 1, 12240, 0
               VTPWidePointWidth 64
               VTPWidePoint 7042, 0, 12240, 0
               VTPWidePoint 7043, 0, 12240, 0
               VTPWidePoint 7051, 0, 12234, 0
               VTPWidePoint 7070, 0, 12115, 0
               VTPWidePoint 7167, 0, 12016, 0
               VTPWidePoint 7244, 0, 11985, 0
               VTPWidePoint 7258, 0, 11943, 0
               VTPWidePoint 7366, 0, 11810, 0
               VTPWidePoint 7367, 1, 11809, 0
               VTPWidePointWidth 0
    datamark_v1 label   word
        VTPDataArea 4, 1, 31, 9
        VTPLayer 21, 0
        VTPNumTexturesInLayer 2, 0
           VTPTextureId  1, 0 
            VTPPolyCount 1, 0
;
;River between the lakes
;
             VTPPolyMethod2 9, 1, 0
               VTPWidePoint 11894, 1, 9652, 0
               VTPWidePointWidth 1
               VTPWidePoint 11894, 1, 9652, 0
               VTPWidePointWidth 16
               VTPWidePoint 11894, 0, 9652, 0
               VTPWidePoint 11988, 0, 9629, 0
               VTPWidePoint 12056, 0, 9732, 0
               VTPWidePoint 12148, 0, 9768, 0
               VTPWidePoint 12212, 0, 9868, 0
               VTPWidePoint 12240, 0, 9887, 0
               VTPWidePoint 12241, 1, 9887, 0
               VTPWidePointWidth 0
           VTPTextureId  2, 0 
            VTPPolyCount 1, 0
;
;Main island
;
             VTPPolyMethod2 31, 1, 0
             VTPPolyMethod2Ex 65
               VTPWidePoint 7807, 1, 12241, 0
               VTPWidePointWidth 1
               VTPWidePoint 7807, 1, 12241, 0
               VTPWidePointWidth 32
               VTPWidePoint 7807, 0, 12241, 0
               VTPWidePoint 7806, 0, 12240, 0
               VTPWidePoint 7802, 0, 12236, 0
               VTPWidePoint 7735, 0, 12149, 0
               VTPWidePoint 7676, 0, 12059, 0
               VTPWidePoint 7624, 0, 11966, 0
               VTPWidePoint 7580, 0, 11869, 0
               VTPWidePoint 7546, 0, 11770, 0
               VTPWidePoint 7521, 0, 11668, 0
               VTPWidePoint 7506, 0, 11564, 0
               VTPWidePoint 7500, 0, 11459, 0
               VTPWidePoint 7501, 0, 11353, 0
               VTPWidePoint 7510, 0, 11247, 0
               VTPWidePoint 7525, 0, 11141, 0
               VTPWidePoint 7543, 0, 11037, 0
               VTPWidePoint 7564, 0, 10934, 0
               VTPWidePoint 7585, 0, 10834, 0
               VTPWidePoint 7604, 0, 10736, 0
               VTPWidePoint 7620, 0, 10640, 0
               VTPWidePoint 7631, 0, 10546, 0
               VTPWidePoint 7637, 0, 10455, 0
               VTPWidePoint 7637, 0, 10364, 0
               VTPWidePoint 7631, 0, 10275, 0
               VTPWidePoint 7621, 0, 10186, 0
               VTPWidePoint 7607, 0, 10097, 0
               VTPWidePoint 7592, 0, 10008, 0
               VTPWidePoint 7576, 0, 9919, 0
               VTPWidePoint 7563, 0, 9828, 0
               VTPWidePoint 7555, 0, 9738, 0
               VTPWidePoint 7552, 0, 9647, 0
               VTPWidePoint 7558, 0, 9556, 0
               VTPWidePoint 7572, 0, 9466, 0
               VTPWidePoint 7595, 0, 9378, 0
               VTPWidePoint 7628, 0, 9290, 0
               VTPWidePoint 7669, 0, 9205, 0
               VTPWidePoint 7718, 0, 9122, 0
               VTPWidePoint 7772, 0, 9041, 0
               VTPWidePoint 7829, 0, 8962, 0
               VTPWidePoint 7888, 0, 8884, 0
               VTPWidePoint 7945, 0, 8807, 0
               VTPWidePoint 7999, 0, 8731, 0
               VTPWidePoint 8048, 0, 8653, 0
               VTPWidePoint 8091, 0, 8574, 0
               VTPWidePoint 8126, 0, 8493, 0
               VTPWidePoint 8153, 0, 8408, 0
               VTPWidePoint 8173, 0, 8320, 0
               VTPWidePoint 8186, 0, 8227, 0
               VTPWidePoint 8194, 0, 8129, 0
               VTPWidePoint 8198, 0, 8028, 0
               VTPWidePoint 8199, 0, 7923, 0
               VTPWidePoint 8201, 0, 7814, 0
               VTPWidePoint 8205, 0, 7704, 0
               VTPWidePoint 8213, 0, 7592, 0
               VTPWidePoint 8227, 0, 7480, 0
               VTPWidePoint 8248, 0, 7370, 0
               VTPWidePoint 8279, 0, 7263, 0
               VTPWidePoint 8320, 0, 7159, 0
               VTPWidePoint 8372, 0, 7061, 0
               VTPWidePoint 8435, 0, 6969, 0
               VTPWidePoint 8509, 0, 6885, 0
               VTPWidePoint 8594, 0, 6809, 0
               VTPWidePoint 8689, 0, 6742, 0
               VTPWidePoint 8795, 0, 6685, 0
               VTPWidePoint 8909, 0, 6637, 0
               VTPWidePoint 9030, 0, 6599, 0
               VTPWidePoint 9158, 0, 6571, 0
               VTPWidePoint 9291, 0, 6552, 0
               VTPWidePoint 9428, 0, 6541, 0
               VTPWidePoint 9566, 0, 6538, 0
               VTPWidePoint 9706, 0, 6541, 0
               VTPWidePoint 9844, 0, 6549, 0
               VTPWidePoint 9981, 0, 6561, 0
               VTPWidePoint 10114, 0, 6574, 0
               VTPWidePoint 10244, 0, 6588, 0
               VTPWidePoint 10370, 0, 6600, 0
               VTPWidePoint 10491, 0, 6610, 0
               VTPWidePoint 10607, 0, 6617, 0
               VTPWidePoint 10720, 0, 6620, 0
               VTPWidePoint 10828, 0, 6618, 0
               VTPWidePoint 10933, 0, 6612, 0
               VTPWidePoint 11036, 0, 6603, 0
               VTPWidePoint 11138, 0, 6591, 0
               VTPWidePoint 11238, 0, 6578, 0
               VTPWidePoint 11339, 0, 6565, 0
               VTPWidePoint 11439, 0, 6554, 0
               VTPWidePoint 11540, 0, 6547, 0
               VTPWidePoint 11642, 0, 6545, 0
               VTPWidePoint 11744, 0, 6548, 0
               VTPWidePoint 11845, 0, 6559, 0
               VTPWidePoint 11946, 0, 6576, 0
               VTPWidePoint 12046, 0, 6599, 0
               VTPWidePoint 12145, 0, 6627, 0
               VTPWidePoint 12240, 0, 6657, 0
               VTPWidePoint 12241, 1, 6657, 0
               VTPWidePointWidth 0
        VTPLayer 23, 0
        VTPNumTexturesInLayer 3, 0
           VTPTextureId  0, 0 
            VTPPolyCount 1, 0
;
;Upper lake
;
             VTPPolyMethod2 31, 1, 0
             VTPPolyMethod2Ex 44
               VTPWidePoint 11783, 1, 9239, 0
               VTPWidePointWidth 1
               VTPWidePoint 11783, 1, 9239, 0
               VTPWidePointWidth 24
               VTPWidePoint 11783, 0, 9239, 0
               VTPWidePoint 11783, 0, 9240, 0
               VTPWidePoint 11818, 0, 9309, 0
               VTPWidePoint 11864, 0, 9385, 0
               VTPWidePoint 11885, 0, 9466, 0
               VTPWidePoint 11872, 0, 9543, 0
               VTPWidePoint 11839, 0, 9618, 0
               VTPWidePoint 11804, 0, 9693, 0
               VTPWidePoint 11772, 0, 9774, 0
               VTPWidePoint 11734, 0, 9858, 0
               VTPWidePoint 11688, 0, 9944, 0
               VTPWidePoint 11638, 0, 10038, 0
               VTPWidePoint 11585, 0, 10145, 0
               VTPWidePoint 11518, 0, 10257, 0
               VTPWidePoint 11421, 0, 10353, 0
               VTPWidePoint 11294, 0, 10413, 0
               VTPWidePoint 11148, 0, 10435, 0
               VTPWidePoint 10998, 0, 10436, 0
               VTPWidePoint 10852, 0, 10430, 0
               VTPWidePoint 10708, 0, 10418, 0
               VTPWidePoint 10570, 0, 10389, 0
               VTPWidePoint 10440, 0, 10345, 0
               VTPWidePoint 10318, 0, 10293, 0
               VTPWidePoint 10200, 0, 10245, 0
               VTPWidePoint 10086, 0, 10196, 0
               VTPWidePoint 9985, 0, 10132, 0
               VTPWidePoint 9909, 0, 10050, 0
               VTPWidePoint 9848, 0, 9962, 0
               VTPWidePoint 9783, 0, 9886, 0
               VTPWidePoint 9693, 0, 9825, 0
               VTPWidePoint 9588, 0, 9767, 0
               VTPWidePoint 9498, 0, 9697, 0
               VTPWidePoint 9444, 0, 9611, 0
               VTPWidePoint 9421, 0, 9518, 0
               VTPWidePoint 9404, 0, 9425, 0
               VTPWidePoint 9381, 0, 9333, 0
               VTPWidePoint 9362, 0, 9239, 0
               VTPWidePoint 9372, 0, 9145, 0
               VTPWidePoint 9425, 0, 9057, 0
               VTPWidePoint 9504, 0, 8978, 0
               VTPWidePoint 9584, 0, 8906, 0
               VTPWidePoint 9647, 0, 8835, 0
               VTPWidePoint 9697, 0, 8760, 0
               VTPWidePoint 9754, 0, 8686, 0
               VTPWidePoint 9832, 0, 8625, 0
               VTPWidePoint 9935, 0, 8584, 0
               VTPWidePoint 10048, 0, 8559, 0
               VTPWidePoint 10157, 0, 8539, 0
               VTPWidePoint 10250, 0, 8509, 0
               VTPWidePoint 10334, 0, 8465, 0
               VTPWidePoint 10419, 0, 8416, 0
               VTPWidePoint 10516, 0, 8381, 0
               VTPWidePoint 10621, 0, 8372, 0
               VTPWidePoint 10728, 0, 8384, 0
               VTPWidePoint 10830, 0, 8403, 0
               VTPWidePoint 10929, 0, 8420, 0
               VTPWidePoint 11026, 0, 8438, 0
               VTPWidePoint 11118, 0, 8467, 0
               VTPWidePoint 11200, 0, 8509, 0
               VTPWidePoint 11273, 0, 8559, 0
               VTPWidePoint 11341, 0, 8608, 0
               VTPWidePoint 11406, 0, 8657, 0
               VTPWidePoint 11464, 0, 8708, 0
               VTPWidePoint 11514, 0, 8763, 0
               VTPWidePoint 11567, 0, 8815, 0
               VTPWidePoint 11637, 0, 8859, 0
               VTPWidePoint 11721, 0, 8903, 0
               VTPWidePoint 11794, 0, 8957, 0
               VTPWidePoint 11825, 0, 9025, 0
               VTPWidePoint 11811, 0, 9101, 0
               VTPWidePoint 11783, 0, 9172, 0
               VTPWidePoint 11783, 0, 9238, 0
               VTPWidePoint 11783, 1, 9239, 0
               VTPWidePointWidth 0
           VTPTextureId  3, 0 
            VTPPolyCount 1, 0
;
;Coast road
;
             VTPPolyMethod2 20, 1, 0
               VTPWidePoint 8800, 1, 10302, 0
               VTPWidePointWidth 1
               VTPWidePoint 8800, 1, 10302, 0
               VTPWidePointWidth 16
               VTPWidePoint 8800, 0, 10302, 0
               VTPWidePoint 8801, 0, 10302, 0
               VTPWidePoint 9044, 0, 10352, 0
               VTPWidePoint 9211, 0, 10451, 0
               VTPWidePoint 9466, 0, 10494, 0
               VTPWidePoint 9642, 0, 10538, 0
               VTPWidePoint 9802, 0, 10621, 0
               VTPWidePoint 10056, 0, 10662, 0
               VTPWidePoint 10359, 0, 10825, 0
               VTPWidePoint 10594, 0, 10955, 0
               VTPWidePoint 10945, 0, 11169, 0
               VTPWidePoint 11219, 0, 11305, 0
               VTPWidePoint 11430, 0, 11426, 0
               VTPWidePoint 11755, 0, 11554, 0
               VTPWidePoint 11998, 0, 11656, 0
               VTPWidePoint 12131, 0, 11777, 0
               VTPWidePoint 12240, 0, 11825, 0
               VTPWidePoint 12241, 1, 11825, 0
               VTPWidePointWidth 0
           VTPTextureId  4, 0 
            VTPPolyCount 1, 0
;
;Pass road
;
             VTPPolyMethod2 13, 1, 0
               VTPWidePoint 11791, 1, 11560, 0
               VTPWidePointWidth 1
               VTPWidePoint 11791, 1, 11560, 0
               VTPWidePointWidth 8
               VTPWidePoint 11791, 0, 11560, 0
               VTPWidePoint 11790, 0, 11559, 0
               VTPWidePoint 11783, 0, 11414, 0
               VTPWidePoint 11860, 0, 11123, 0
               VTPWidePoint 11962, 0, 10924, 0
               VTPWidePoint 12045, 0, 10697, 0
               VTPWidePoint 12116, 0, 10487, 0
               VTPWidePoint 12153, 0, 10320, 0
               VTPWidePoint 12224, 0, 10015, 0
               VTPWidePoint 12240, 0, 9927, 0
               VTPWidePoint 12240, 1, 9926, 0
               VTPWidePointWidth 0
        VTPLayer 24, 0
        VTPNumTexturesInLayer 1, 0
           VTPTextureId  5, 0 
            VTPPolyCount 2, 0
;
;Harbour railway
;
             VTPPolyMethod2 7, 1, 0
               VTPWidePoint 10993, 1, 12240, 0
               VTPWidePointWidth 1
               VTPWidePoint 10993, 1, 12240, 0
               VTPWidePointWidth 6
               VTPWidePoint 10993, 0, 12240, 0
               VTPWidePoint 10994, 0, 12240, 0
               VTPWidePoint 11027, 0, 12237, 0
               VTPWidePoint 11040, 0, 12240, 0
               VTPWidePoint 11041, 1, 12240, 0
               VTPWidePointWidth 0
;
;Harbour railway
;
             VTPPolyMethod2 10, 1, 0
               VTPWidePoint 9470, 1, 11914, 0
               VTPWidePointWidth 1
               VTPWidePoint 9470, 1, 11914, 0
               VTPWidePointWidth 6
               VTPWidePoint 9470, 0, 11914, 0
               VTPWidePoint 9700, 0, 11951, 0
               VTPWidePoint 9871, 0, 12046, 0
               VTPWidePoint 10099, 0, 12085, 0
               VTPWidePoint 10337, 0, 12138, 0
               VTPWidePoint 10556, 0, 12217, 0
               VTPWidePoint 10664, 0, 12240, 0
               VTPWidePoint 10665, 1, 12240, 0
               VTPWidePointWidth 0
        VTPLayer 32, 0
        VTPNumTexturesInLayer 1, 0
           VTPTextureId  0, 0 
            VTPPolyCount 1, 0
;
;Mainland, north-west cape
;
             VTPPolyMethod2 18, 1, 0
               VTPWidePoint 4817, 1, 5374, 0
               VTPWidePointWidth 1
               VTPWidePoint 4817, 1, 5374, 0
               VTPWidePointWidth 64
               VTPWidePoint 4817, 0, 5374, 0
               VTPWidePoint 4818, 0, 5373, 0
               VTPWidePoint 5099, 0, 5233, 0
               VTPWidePoint 5330, 0, 5234, 0
               VTPWidePoint 5460, 0, 5221, 0
               VTPWidePoint 5713, 0, 5088, 0
               VTPWidePoint 5960, 0, 5071, 0
               VTPWidePoint 6152, 0, 5031, 0
               VTPWidePoint 6365, 0, 4870, 0
               VTPWidePoint 6491, 0, 4745, 0
               VTPWidePoint 6624, 0, 4550, 0
               VTPWidePoint 6700, 0, 4446, 0
               VTPWidePoint 6800, 0, 4370, 0
               VTPWidePoint 6992, 0, 4121, 0
               VTPWidePoint 7043, 0, 4080, 0
               VTPWidePoint 7044, 1, 4079, 0
               VTPWidePointWidth 0
    datamark_v2 label   word
        VTPDataArea 3, 1, 0, 9
        VTPLayer 21, 0
        VTPNumTexturesInLayer 2, 0
           VTPTextureId  1, 0 
            VTPPolyCount 1, 0
;
;River between the lakes
;
             VTPPolyMethod2 15, 1, 0
               VTPWidePoint 4079, 1, 9886, 0
               VTPWidePointWidth 1
               VTPWidePoint 4079, 1, 9886, 0
               VTPWidePointWidth 16
               VTPWidePoint 4079, 0, 9886, 0
               VTPWidePoint 4080, 0, 9887, 0
               VTPWidePoint 4153, 0, 9936, 0
               VTPWidePoint 4231, 0, 9965, 0
               VTPWidePoint 4395, 0, 10067, 0
               VTPWidePoint 4474, 0, 10189, 0
               VTPWidePoint 4556, 0, 10208, 0
               VTPWidePoint 4695, 0, 10353, 0
               VTPWidePoint 4780, 0, 10446, 0
               VTPWidePoint 4908, 0, 10509, 0
               VTPWidePoint 4985, 0, 10599, 0
               VTPWidePoint 5057, 0, 10701, 0
               VTPWidePoint 5058, 1, 10702, 0
               VTPWidePointWidth 0
           VTPTextureId  2, 0 
            VTPPolyCount 2, 0
;
;Main island
;
             VTPPolyMethod2 31, 1, 0
             VTPPolyMethod2Ex 39
               VTPWidePoint 4079, 1, 6656, 0
               VTPWidePointWidth 1
               VTPWidePoint 4079, 1, 6656, 0
               VTPWidePointWidth 32
               VTPWidePoint 4079, 0, 6656, 0
               VTPWidePoint 4080, 0, 6657, 0
               VTPWidePoint 4082, 0, 6658, 0
               VTPWidePoint 4177, 0, 6691, 0
               VTPWidePoint 4270, 0, 6722, 0
               VTPWidePoint 4362, 0, 6751, 0
               VTPWidePoint 4454, 0, 6774, 0
               VTPWidePoint 4546, 0, 6790, 0
               VTPWidePoint 4640, 0, 6798, 0
               VTPWidePoint 4736, 0, 6796, 0
               VTPWidePoint 4835, 0, 6786, 0
               VTPWidePoint 4939, 0, 6767, 0
               VTPWidePoint 5047, 0, 6743, 0
               VTPWidePoint 5159, 0, 6714, 0
               VTPWidePoint 5275, 0, 6685, 0
               VTPWidePoint 5394, 0, 6657, 0
               VTPWidePoint 5514, 0, 6635, 0
               VTPWidePoint 5633, 0, 6621, 0
               VTPWidePoint 5750, 0, 6619, 0
               VTPWidePoint 5862, 0, 6629, 0
               VTPWidePoint 5967, 0, 6654, 0
               VTPWidePoint 6063, 0, 6694, 0
               VTPWidePoint 6150, 0, 6748, 0
               VTPWidePoint 6226, 0, 6815, 0
               VTPWidePoint 6292, 0, 6894, 0
               VTPWidePoint 6348, 0, 6981, 0
               VTPWidePoint 6396, 0, 7073, 0
               VTPWidePoint 6438, 0, 7169, 0
               VTPWidePoint 6476, 0, 7264, 0
               VTPWidePoint 6512, 0, 7356, 0
               VTPWidePoint 6550, 0, 7443, 0
               VTPWidePoint 6591, 0, 7523, 0
               VTPWidePoint 6638, 0, 7596, 0
               VTPWidePoint 6692, 0, 7660, 0
               VTPWidePoint 6754, 0, 7717, 0
               VTPWidePoint 6825, 0, 7767, 0
               VTPWidePoint 6904, 0, 7812, 0
               VTPWidePoint 6991, 0, 7853, 0
               VTPWidePoint 7083, 0, 7892, 0
               VTPWidePoint 7179, 0, 7931, 0
               VTPWidePoint 7278, 0, 7970, 0
               VTPWidePoint 7378, 0, 8011, 0
               VTPWidePoint 7477, 0, 8056, 0
               VTPWidePoint 7575, 0, 8103, 0
               VTPWidePoint 7671, 0, 8153, 0
               VTPWidePoint 7765, 0, 8207, 0
               VTPWidePoint 7859, 0, 8263, 0
               VTPWidePoint 7952, 0, 8321, 0
               VTPWidePoint 8046, 0, 8382, 0
               VTPWidePoint 8143, 0, 8444, 0
               VTPWidePoint 8242, 0, 8507, 0
               VTPWidePoint 8346, 0, 8572, 0
               VTPWidePoint 8455, 0, 8638, 0
               VTPWidePoint 8567, 0, 8706, 0
               VTPWidePoint 8682, 0, 8777, 0
               VTPWidePoint 8799, 0, 8851, 0
               VTPWidePoint 8914, 0, 8929, 0
               VTPWidePoint 9027, 0, 9011, 0
               VTPWidePoint 9133, 0, 9098, 0
               VTPWidePoint 9231, 0, 9189, 0
               VTPWidePoint 9318, 0, 9284, 0
               VTPWidePoint 9392, 0, 9384, 0
               VTPWidePoint 9452, 0, 9487, 0
               VTPWidePoint 9497, 0, 9593, 0
               VTPWidePoint 9529, 0, 9700, 0
               VTPWidePoint 9548, 0, 9809, 0
               VTPWidePoint 9556, 0, 9918, 0
               VTPWidePoint 9557, 1, 9919, 0
               VTPWidePointWidth 0
;
;Main island
;
             VTPPolyMethod2 26, 1, 0
               VTPWidePoint 9557, 1, 9919, 0
               VTPWidePointWidth 1
               VTPWidePoint 9557, 1, 9919, 0
               VTPWidePointWidth 32
               VTPWidePoint 9557, 0, 9919, 0
               VTPWidePoint 9557, 0, 9920, 0
               VTPWidePoint 9558, 0, 10028, 0
               VTPWidePoint 9553, 0, 10138, 0
               VTPWidePoint 9546, 0, 10248, 0
               VTPWidePoint 9540, 0, 10357, 0
               VTPWidePoint 9536, 0, 10468, 0
               VTPWidePoint 9537, 0, 10579, 0
               VTPWidePoint 9543, 0, 10692, 0
               VTPWidePoint 9554, 0, 10806, 0
               VTPWidePoint 9568, 0, 10923, 0
               VTPWidePoint 9586, 0, 11043, 0
               VTPWidePoint 9603, 0, 11164, 0
               VTPWidePoint 9618, 0, 11288, 0
               VTPWidePoint 9628, 0, 11412, 0
               VTPWidePoint 9629, 0, 11536, 0
               VTPWidePoint 9620, 0, 11659, 0
               VTPWidePoint 9598, 0, 11780, 0
               VTPWidePoint 9562, 0, 11897, 0
               VTPWidePoint 9513, 0, 12011, 0
               VTPWidePoint 9451, 0, 12119, 0
               VTPWidePoint 9376, 0, 12223, 0
               VTPWidePoint 9362, 0, 12240, 0
               VTPWidePoint 9361, 1, 12241, 0
               VTPWidePointWidth 0
        VTPLayer 22, 0
        VTPNumTexturesInLayer 1, 0
           VTPTextureId  0, 0 
            VTPPolyCount 1, 0
;
;Reservoir shore
;
             VTPPolyMethod2 27, 1, 0
               VTPWidePoint 7538, 1, 9239, 0
               VTPWidePointWidth 1
               VTPWidePoint 7538, 1, 9239, 0
               VTPWidePointWidth 12
               VTPWidePoint 7538, 0, 9239, 0
               VTPWidePoint 7537, 0, 9238, 0
               VTPWidePoint 7498, 0, 9183, 0
               VTPWidePoint 7480, 0, 9124, 0
               VTPWidePoint 7440, 0, 9069, 0
               VTPWidePoint 7365, 0, 9045, 0
               VTPWidePoint 7290, 0, 9029, 0
               VTPWidePoint 7213, 0, 9028, 0
               VTPWidePoint 7136, 0, 9040, 0
               VTPWidePoint 7074, 0, 9078, 0
               VTPWidePoint 7019, 0, 9122, 0
               VTPWidePoint 7002, 0, 9182, 0
               VTPWidePoint 6980, 0, 9239, 0
               VTPWidePoint 6993, 0, 9299, 0
               VTPWidePoint 7034, 0, 9349, 0
               VTPWidePoint 7057, 0, 9416, 0
               VTPWidePoint 7126, 0, 9456, 0
               VTPWidePoint 7207, 0, 9484, 0
               VTPWidePoint 7300, 0, 9502, 0
               VTPWidePoint 7395, 0, 9486, 0
               VTPWidePoint 7490, 0, 9456, 0
               VTPWidePoint 7544, 0, 9387, 0
               VTPWidePoint 7562, 0, 9311, 0
               VTPWidePoint 7538, 0, 9240, 0
               VTPWidePoint 7538, 1, 9239, 0
               VTPWidePointWidth 0
        VTPLayer 23, 0
        VTPNumTexturesInLayer 2, 0
           VTPTextureId  3, 0 
            VTPPolyCount 1, 0
;
;Coast road
;
             VTPPolyMethod2 21, 1, 0
               VTPWidePoint 4079, 1, 11824, 0
               VTPWidePointWidth 1
               VTPWidePoint 4079, 1, 11824, 0
               VTPWidePointWidth 16
               VTPWidePoint 4079, 0, 11824, 0
               VTPWidePoint 4080, 0, 11825, 0
               VTPWidePoint 4171, 0, 11866, 0
               VTPWidePoint 4403, 0, 11909, 0
               VTPWidePoint 4597, 0, 11981, 0
               VTPWidePoint 4786, 0, 12017, 0
               VTPWidePoint 5171, 0, 12010, 0
               VTPWidePoint 5489, 0, 11981, 0
               VTPWidePoint 5830, 0, 12019, 0
               VTPWidePoint 6136, 0, 11981, 0
               VTPWidePoint 6446, 0, 11952, 0
               VTPWidePoint 6731, 0, 11902, 0
               VTPWidePoint 6955, 0, 11649, 0
               VTPWidePoint 7126, 0, 11488, 0
               VTPWidePoint 7244, 0, 11212, 0
               VTPWidePoint 7410, 0, 10988, 0
               VTPWidePoint 7620, 0, 10761, 0
               VTPWidePoint 7738, 0, 10547, 0
               VTPWidePoint 7739, 1, 10546, 0
               VTPWidePointWidth 0
           VTPTextureId  4, 0 
            VTPPolyCount 1, 0
;
;Pass road
;
             VTPPolyMethod2 16, 1, 0
               VTPWidePoint 4079, 1, 9928, 0
               VTPWidePointWidth 1
               VTPWidePoint 4079, 1, 9928, 0
               VTPWidePointWidth 8
               VTPWidePoint 4079, 0, 9928, 0
               VTPWidePoint 4080, 0, 9927, 0
               VTPWidePoint 4131, 0, 9637, 0
               VTPWidePoint 4210, 0, 9377, 0
               VTPWidePoint 4230, 0, 9039, 0
               VTPWidePoint 4337, 0, 8767, 0
               VTPWidePoint 4409, 0, 8479, 0
               VTPWidePoint 4362, 0, 8287, 0
               VTPWidePoint 4293, 0, 8117, 0
               VTPWidePoint 4210, 0, 7971, 0
               VTPWidePoint 4165, 0, 7783, 0
               VTPWidePoint 4167, 0, 7598, 0
               VTPWidePoint 4082, 0, 7412, 0
               VTPWidePoint 4082, 1, 7411, 0
               VTPWidePointWidth 0
    datamark_v3 label   word
        VTPDataArea 2, 1, 31, 10
        VTPLayer 21, 0
        VTPNumTexturesInLayer 1, 0
           VTPTextureId  2, 0 
            VTPPolyCount 1, 0
;
;Main island
;
             VTPPolyMethod2 31, 1, 0
             VTPPolyMethod2Ex 16
               VTPWidePoint 12241, 1, 5613, 0
               VTPWidePointWidth 1
               VTPWidePoint 12241, 1, 5613, 0
               VTPWidePointWidth 32
               VTPWidePoint 12241, 0, 5613, 0
               VTPWidePoint 12240, 0, 5613, 0
               VTPWidePoint 12145, 0, 5598, 0
               VTPWidePoint 12032, 0, 5579, 0
               VTPWidePoint 11919, 0, 5559, 0
               VTPWidePoint 11808, 0, 5540, 0
               VTPWidePoint 11697, 0, 5521, 0
               VTPWidePoint 11587, 0, 5502, 0
               VTPWidePoint 11477, 0, 5485, 0
               VTPWidePoint 11367, 0, 5469, 0
               VTPWidePoint 11256, 0, 5454, 0
               VTPWidePoint 11146, 0, 5440, 0
               VTPWidePoint 11035, 0, 5427, 0
               VTPWidePoint 10923, 0, 5413, 0
               VTPWidePoint 10811, 0, 5400, 0
               VTPWidePoint 10698, 0, 5385, 0
               VTPWidePoint 10585, 0, 5369, 0
               VTPWidePoint 10472, 0, 5352, 0
               VTPWidePoint 10358, 0, 5333, 0
               VTPWidePoint 10244, 0, 5311, 0
               VTPWidePoint 10131, 0, 5288, 0
               VTPWidePoint 10018, 0, 5262, 0
               VTPWidePoint 9905, 0, 5235, 0
               VTPWidePoint 9792, 0, 5204, 0
               VTPWidePoint 9680, 0, 5172, 0
               VTPWidePoint 9568, 0, 5137, 0
               VTPWidePoint 9457, 0, 5100, 0
               VTPWidePoint 9346, 0, 5061, 0
               VTPWidePoint 9236, 0, 5019, 0
               VTPWidePoint 9127, 0, 4974, 0
               VTPWidePoint 9019, 0, 4928, 0
               VTPWidePoint 8913, 0, 4878, 0
               VTPWidePoint 8807, 0, 4826, 0
               VTPWidePoint 8704, 0, 4772, 0
               VTPWidePoint 8602, 0, 4715, 0
               VTPWidePoint 8501, 0, 4655, 0
               VTPWidePoint 8403, 0, 4592, 0
               VTPWidePoint 8307, 0, 4527, 0
               VTPWidePoint 8214, 0, 4459, 0
               VTPWidePoint 8124, 0, 4389, 0
               VTPWidePoint 8037, 0, 4315, 0
               VTPWidePoint 7954, 0, 4238, 0
               VTPWidePoint 7875, 0, 4159, 0
               VTPWidePoint 7806, 0, 4080, 0
               VTPWidePoint 7805, 1, 4079, 0
               VTPWidePointWidth 0
        VTPLayer 24, 0
        VTPNumTexturesInLayer 1, 0
           VTPTextureId  5, 0 
            VTPPolyCount 2, 0
;
;Harbour railway
;
             VTPPolyMethod2 7, 1, 0
               VTPWidePoint 10663, 1, 4079, 0
               VTPWidePointWidth 1
               VTPWidePoint 10663, 1, 4079, 0
               VTPWidePointWidth 6
               VTPWidePoint 10663, 0, 4079, 0
               VTPWidePoint 10664, 0, 4080, 0
               VTPWidePoint 10759, 0, 4100, 0
               VTPWidePoint 10994, 0, 4080, 0
               VTPWidePoint 10995, 1, 4079, 0
               VTPWidePointWidth 0
;
;Harbour railway
;
             VTPPolyMethod2 11, 1, 0
               VTPWidePoint 11039, 1, 4079, 0
               VTPWidePointWidth 1
               VTPWidePoint 11039, 1, 4079, 0
               VTPWidePointWidth 6
               VTPWidePoint 11039, 0, 4079, 0
               VTPWidePoint 11040, 0, 4080, 0
               VTPWidePoint 11284, 0, 4134, 0
               VTPWidePoint 11523, 0, 4149, 0
               VTPWidePoint 11779, 0, 4136, 0
               VTPWidePoint 12012, 0, 4169, 0
               VTPWidePoint 12211, 0, 4168, 0
               VTPWidePoint 12240, 0, 4168, 0
               VTPWidePoint 12241, 1, 4168, 0
               VTPWidePointWidth 0
    datamark_v4 label   word
        VTPDataArea 3, 1, 0, 10
        VTPLayer 21, 0
        VTPNumTexturesInLayer 1, 0
           VTPTextureId  2, 0 
            VTPPolyCount 1, 0
;
;Main island
;
             VTPPolyMethod2 31, 1, 0
             VTPPolyMethod2Ex 19
               VTPWidePoint 9362, 1, 4079, 0
               VTPWidePointWidth 1
               VTPWidePoint 9362, 1, 4079, 0
               VTPWidePointWidth 32
               VTPWidePoint 9362, 0, 4079, 0
               VTPWidePoint 9362, 0, 4080, 0
               VTPWidePoint 9292, 0, 4162, 0
               VTPWidePoint 9200, 0, 4256, 0
               VTPWidePoint 9102, 0, 4347, 0
               VTPWidePoint 9003, 0, 4436, 0
               VTPWidePoint 8903, 0, 4523, 0
               VTPWidePoint 8805, 0, 4610, 0
               VTPWidePoint 8710, 0, 4699, 0
               VTPWidePoint 8619, 0, 4790, 0
               VTPWidePoint 8532, 0, 4883, 0
               VTPWidePoint 8448, 0, 4979, 0
               VTPWidePoint 8366, 0, 5077, 0
               VTPWidePoint 8284, 0, 5176, 0
               VTPWidePoint 8200, 0, 5275, 0
               VTPWidePoint 8112, 0, 5372, 0
               VTPWidePoint 8017, 0, 5465, 0
               VTPWidePoint 7915, 0, 5552, 0
               VTPWidePoint 7804, 0, 5631, 0
               VTPWidePoint 7684, 0, 5701, 0
               VTPWidePoint 7554, 0, 5759, 0
               VTPWidePoint 7415, 0, 5805, 0
               VTPWidePoint 7268, 0, 5839, 0
               VTPWidePoint 7114, 0, 5861, 0
               VTPWidePoint 6955, 0, 5871, 0
               VTPWidePoint 6794, 0, 5872, 0
               VTPWidePoint 6631, 0, 5864, 0
               VTPWidePoint 6469, 0, 5850, 0
               VTPWidePoint 6309, 0, 5831, 0
               VTPWidePoint 6152, 0, 5810, 0
               VTPWidePoint 6000, 0, 5788, 0
               VTPWidePoint 5852, 0, 5767, 0
               VTPWidePoint 5709, 0, 5748, 0
               VTPWidePoint 5570, 0, 5732, 0
               VTPWidePoint 5436, 0, 5719, 0
               VTPWidePoint 5305, 0, 5708, 0
               VTPWidePoint 5178, 0, 5700, 0
               VTPWidePoint 5053, 0, 5693, 0
               VTPWidePoint 4930, 0, 5688, 0
               VTPWidePoint 4808, 0, 5682, 0
               VTPWidePoint 4687, 0, 5676, 0
               VTPWidePoint 4568, 0, 5668, 0
               VTPWidePoint 4449, 0, 5658, 0
               VTPWidePoint 4332, 0, 5646, 0
               VTPWidePoint 4215, 0, 5632, 0
               VTPWidePoint 4099, 0, 5616, 0
               VTPWidePoint 4080, 0, 5613, 0
               VTPWidePoint 4079, 1, 5612, 0
               VTPWidePointWidth 0
        VTPLayer 24, 0
        VTPNumTexturesInLayer 1, 0
           VTPTextureId  5, 0 
            VTPPolyCount 1, 0
;
;Harbour railway
;
             VTPPolyMethod2 7, 1, 0
               VTPWidePoint 4079, 1, 4167, 0
               VTPWidePointWidth 1
               VTPWidePoint 4079, 1, 4167, 0
               VTPWidePointWidth 6
               VTPWidePoint 4079, 0, 4167, 0
               VTPWidePoint 4080, 0, 4168, 0
               VTPWidePoint 4289, 0, 4170, 0
               VTPWidePoint 4541, 0, 4163, 0
               VTPWidePoint 4765, 1, 4162, 0
               VTPWidePointWidth 0
        VTPLayer 32, 0
        VTPNumTexturesInLayer 1, 0
           VTPTextureId  0, 0 
            VTPPolyCount 1, 0
;
;Mainland, south-east point
;
             VTPPolyMethod2 23, 1, 0
               VTPWidePoint 11523, 1, 5483, 0
               VTPWidePointWidth 1
               VTPWidePoint 11523, 1, 5483, 0
               VTPWidePointWidth 64
               VTPWidePoint 11523, 0, 5483, 0
               VTPWidePoint 11522, 0, 5483, 0
               VTPWidePoint 11199, 0, 5664, 0
               VTPWidePoint 10922, 0, 5816, 0
               VTPWidePoint 10745, 0, 5855, 0
               VTPWidePoint 10475, 0, 6043, 0
               VTPWidePoint 10209, 0, 6230, 0
               VTPWidePoint 9990, 0, 6293, 0
               VTPWidePoint 9892, 0, 6558, 0
               VTPWidePoint 9826, 0, 6680, 0
               VTPWidePoint 9741, 0, 6922, 0
               VTPWidePoint 9565, 0, 7187, 0
               VTPWidePoint 9567, 0, 7450, 0
               VTPWidePoint 9430, 0, 7651, 0
               VTPWidePoint 9358, 0, 7773, 0
               VTPWidePoint 9357, 0, 7825, 0
               VTPWidePoint 9304, 0, 7866, 0
               VTPWidePoint 9258, 0, 8041, 0
               VTPWidePoint 9290, 0, 8172, 0
               VTPWidePoint 9251, 0, 8236, 0
               VTPWidePoint 9251, 1, 8237, 0
               VTPWidePointWidth 0
    datamark_v5 label   word
;----------------------------------------------
Cellv_351_360    EQU  VTPCellID 0, 351, 360
Cellv_351_361    EQU  VTPCellID 0, 351, 361
Cellv_352_361    EQU  VTPCellID 0, 352, 361
Cellv_351_362    EQU  VTPCellID 0, 351, 362
Cellv_352_362    EQU  VTPCellID 0, 352, 362
;----------------------------------------------
    VTPIndexStart   label   word
    VTPIndexHeader 5, VTPIndexData, VTPStart
    VTPIndexData    label   word
    VTPIndexEntry Cellv_351_360, VTPStart, datamark_v0, datamark_v1
    VTPIndexEntry Cellv_351_361, VTPStart, datamark_v1, datamark_v2
    VTPIndexEntry Cellv_352_361, VTPStart, datamark_v2, datamark_v3
    VTPIndexEntry Cellv_351_362, VTPStart, datamark_v3, datamark_v4
    VTPIndexEntry Cellv_352_362, VTPStart, datamark_v4, datamark_v5
;-----------------------------
TextureStart    label   word
    VTPTextureListHeader 6, TextureIndexStart, TextureDataStart, TextureDataEnd
TextureIndexStart   label   word
    VTPTextureListEntry TextureDataStart, texturemark_0, texturemark_1
    VTPTextureListEntry TextureDataStart, texturemark_1, texturemark_2
    VTPTextureListEntry TextureDataStart, texturemark_2, texturemark_3
    VTPTextureListEntry TextureDataStart, texturemark_3, texturemark_4
    VTPTextureListEntry TextureDataStart, texturemark_4, texturemark_5
    VTPTextureListEntry TextureDataStart, texturemark_5, texturemark_6
TextureDataStart    label   word
    texturemark_0   label   word
        VTPTextureName "1024"
        VTPTextureType 0, 0, 0, 0
    texturemark_1   label   word
        VTPTextureName "1034"
        VTPTextureType 0, 0, 0, 0
    texturemark_2   label   word
        VTPTextureName "ShoreSU.bmp"
        VTPTextureType 2, 1, 0, 4
         BYTE "fx_surf"
         BYTE 0
    texturemark_3   label   word
        VTPTextureName "1142"
        VTPTextureType 0, 0, 0, 0
    texturemark_4   label   word
        VTPTextureName "1160"
        VTPTextureType 0, 0, 0, 0
    texturemark_5   label   word
        VTPTextureName "RailSu.bmp;RailSu.bmp;RailSu.bmp;RailWi.bmp"
        VTPTextureType 2, 0, 0, 4
    texturemark_6   label   word
TextureDataEnd  label   word
; ------------------------------
VTPEnd      label   word
