// tests/geo/test_metres.cpp - degrees as metres.
#include "geo/metres.h"

#include <gtest/gtest.h>

TEST(Metres, OfDegrees) {
    EXPECT_EQ(Deg_Lat_To_Metres(2.0), 222329.5);
    EXPECT_EQ(Deg_Lon_To_Metres(0.0, 0.5), 55659.722);
    EXPECT_NEAR(Deg_Lon_To_Metres(60.0, 1.0), 55659.722, 1e-6) << "half as long at 60 degrees";
    EXPECT_NEAR(Deg_Lon_To_Metres(-60.0, 1.0), 55659.722, 1e-6);
}

TEST(Metres, OfPixels) {
    Calibration Cal;
    Cal.LatPtNW = 61.0, Cal.LatPtSE = 59.0, Cal.LonPtNW = -1.5, Cal.LonPtSE = 0.5;
    Cal.XPtNW = 10, Cal.XPtSE = 510, Cal.YPtNW = 20, Cal.YPtSE = 1010;
    EXPECT_EQ(DV2Pix(Cal), 224.575) << "224.575252";
    EXPECT_EQ(DH2Pix(Cal), 222.639) << "222.638888";
}
