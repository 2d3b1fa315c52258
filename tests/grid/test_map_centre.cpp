// tests/grid/test_map_centre.cpp - maps calibrated by their centre.
#include "grid/map_centre.h"

#include <gtest/gtest.h>

#include "geo/calibration.h"

namespace {

constexpr Long Width = 2001, Height = 1001;

TEST(Map_Centre, GivesTheCornersTheirDegrees) {
    Calibration Cal;
    ASSERT_TRUE(Calibrate_By_Centre({60.0, -20.0, 111.16475, 55.659722}, Width, Height, Cal));
    EXPECT_NEAR(Cal.LatPtNW, 60.5, 1e-12);
    EXPECT_NEAR(Cal.LonPtNW, -21.0, 1e-12);
    EXPECT_NEAR(Cal.LatPtSE, 59.5, 1e-12);
    EXPECT_NEAR(Cal.LonPtSE, -19.0, 1e-12);
    EXPECT_EQ(Cal.LatMapNW, Cal.LatPtNW);
    EXPECT_EQ(Cal.LonMapSE, Cal.LonPtSE);
    EXPECT_EQ(Cal.XPtNW + Cal.YPtNW, 0);
    EXPECT_EQ(Cal.XPtSE, Width - 1);
    EXPECT_EQ(Cal.YPtSE, Height - 1);
    EXPECT_EQ(Points_Refused(Cal), 0);
    EXPECT_TRUE(Calibration_Can_Serve(Cal)) << "the work grid follows";
    const Map_Centre At = Centre_Of_Points(Cal, Width, Height);
    EXPECT_NEAR(At.Center_Lat, 60.0, 1e-12);
    EXPECT_NEAR(At.Center_Lon, -20.0, 1e-12);
    EXPECT_NEAR(At.Mpp_Lat, 111.16475, 1e-9);
    EXPECT_NEAR(At.Mpp_Lon, 55.659722, 1e-9);
}

TEST(Map_Centre, OfAMapWithoutDegreesHasTheFirstMetres) {
    const Map_Centre At = Centre_Of_Points({}, Width, Height);
    EXPECT_EQ(At.Mpp_Lat, 4.75);
    EXPECT_EQ(At.Mpp_Lon, 4.75);
}

TEST(Map_Centre, StaysOnTheGlobe) {
    // 1000 pixels of latitude and 2000 of longitude: half of the map is 0.5 and 1 degrees.
    const Double Lat = 111.16475, Lon = 55.659722;
    const struct {
        Map_Centre At;
        bool Taken;
    } Rows[] = {{{89.4, 0.0, Lat, 1e-3}, true},          {{89.6, 0.0, Lat, 1e-3}, false},
                {{-89.6, 0.0, Lat, 1e-3}, false},        {{90.0, 0.0, Lat, Lon}, false},
                {{-90.0, 0.0, Lat, Lon}, false},         {{60.0, 179.0, Lat, Lon / 1.01}, true},
                {{60.0, 179.0, Lat, Lon * 1.01}, false}, {{60.0, -179.0, Lat, Lon * 1.01}, false},
                {{0.0, 0.0, 0.0, Lon}, false},           {{0.0, 0.0, Lat, 0.0}, false},
                {{0.0, 0.0, 1e-300, Lon}, true},         {{1.0, 0.0, 1e-300, Lon}, false},
                {{0.0, 0.0, 1e300, Lon}, false}};
    for (const auto& [At, Taken] : Rows) {
        Calibration Cal;
        EXPECT_EQ(Calibrate_By_Centre(At, Width, Height, Cal), Taken)
            << At.Center_Lat << " " << At.Center_Lon << " " << At.Mpp_Lat << " " << At.Mpp_Lon;
        EXPECT_EQ(Cal == Calibration(), !Taken);
    }
}

}  // namespace
