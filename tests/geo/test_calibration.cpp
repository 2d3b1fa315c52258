// tests/geo/test_calibration.cpp - the line between pixels and degrees, and what is fit for use.
#include "geo/calibration.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace {

constexpr Double Infinity = std::numeric_limits<Double>::infinity();

// 20 pixels a degree of latitude, 200 a degree of longitude.
Calibration Plain_Calibration() {
    Calibration Cal;
    Cal.LatPtNW = 45.0;
    Cal.LonPtNW = 10.0;
    Cal.LatPtSE = 35.0;
    Cal.LonPtSE = 11.0;
    Cal.XPtNW = 100;
    Cal.YPtNW = 50;
    Cal.XPtSE = 300;
    Cal.YPtSE = 250;
    Cal.LatGridNW = 48.0;
    Cal.LonGridNW = 9.0;
    Cal.LatGridSE = 34.0;
    Cal.LonGridSE = 12.0;
    Cal.XGridNW = -100.0;
    Cal.YGridNW = -10.0;
    Cal.XGridSE = 500.0;
    Cal.YGridSE = 270.0;
    return Cal;
}

TEST(Calibration_Line, LatitudeFollowsTheRowAndLongitudeTheColumn) {
    const Calibration Cal = Plain_Calibration();
    EXPECT_EQ(Pixel_To_LatLon({200.0, 60.0}, Cal), (Geo{44.5, 10.5}));
    EXPECT_EQ(Pixel_To_LatLon({0.0, 0.5}, Cal), (Geo{47.475, 9.5})) << "off the points, half a row";
    EXPECT_EQ(LatLon_To_Pixel({44.5, 10.5}, Cal), (Pix{200.0, 60.0}));
    EXPECT_EQ(LatLon_To_Pixel({47.5, 9.5}, Cal), (Pix{0.0, 0.0}));
}

// Each value differs in its last bit when the quotient is formed first.
TEST(Calibration_Line, RunsFromLeftToRightToTheLastBit) {
    Calibration Cal;
    Cal.LatPtNW = 59.6;
    Cal.LonPtNW = 18.4;
    Cal.LatPtSE = 59.2;
    Cal.LonPtSE = 19.2;
    Cal.XPtNW = 130;
    Cal.YPtNW = 57;
    Cal.XPtSE = 9066;
    Cal.YPtSE = 8893;
    EXPECT_EQ(Pixel_To_LatLon({6224.5, 7199.25}, Cal),
              (Geo{0x1.da36a15d56626p+5, 0x1.2f213b5be73f7p+4}));
    EXPECT_EQ(LatLon_To_Pixel({59.2638, 18.689}, Cal),
              (Pix{0x1.a3c428f5c2913p+11, 0x1.d3ba872b020b2p+12}));
}

TEST(Calibration_Line, ThereAndBackOnAnyMap) {
    std::mt19937 Random(7);
    std::uniform_real_distribution<Double> Part(0.0, 1.0);
    for (int I = 0; I < 2000; ++I) {
        Calibration Cal;
        Cal.LatPtNW = 80.0 * Part(Random);
        Cal.LonPtNW = 170.0 * Part(Random) - 180.0;
        Cal.LatPtSE = Cal.LatPtNW - 0.01 - Part(Random);
        Cal.LonPtSE = Cal.LonPtNW + 0.01 + Part(Random);
        Cal.XPtNW = static_cast<Long>(1000.0 * Part(Random));
        Cal.YPtNW = static_cast<Long>(1000.0 * Part(Random));
        Cal.XPtSE = Cal.XPtNW + 100 + static_cast<Long>(20000.0 * Part(Random));
        Cal.YPtSE = Cal.YPtNW + 100 + static_cast<Long>(20000.0 * Part(Random));
        const Pix P{30000.0 * Part(Random) - 5000.0, 30000.0 * Part(Random) - 5000.0};
        const Pix Back = LatLon_To_Pixel(Pixel_To_LatLon(P, Cal), Cal);
        EXPECT_NEAR(Back.X, P.X, 1e-6);
        EXPECT_NEAR(Back.Y, P.Y, 1e-6);
    }
}

TEST(Calibration_Line, PointsOfTheWidestMapDoNotOverflow) {
    Calibration Cal = Plain_Calibration();
    Cal.YPtNW = std::numeric_limits<Long>::min();
    Cal.YPtSE = std::numeric_limits<Long>::max();
    EXPECT_EQ(Pixel_To_LatLon({100.0, Cal.YPtSE + 0.0}, Cal).Lat, 35.0);
}

struct Fault {
    std::string Name;
    void (*Spoil)(Calibration&);
};

TEST(Calibration_Fit, EachFaultAloneIsFound) {
    ASSERT_TRUE(Calibration_Can_Serve(Plain_Calibration()));
    const std::vector<Fault> Faults{
        {"one column", [](Calibration& C) { C.XPtSE = C.XPtNW; }},
        {"columns turned", [](Calibration& C) { std::swap(C.XPtSE, C.XPtNW); }},
        {"one row", [](Calibration& C) { C.YPtSE = C.YPtNW; }},
        {"rows turned", [](Calibration& C) { std::swap(C.YPtSE, C.YPtNW); }},
        {"one latitude", [](Calibration& C) { C.LatPtSE = C.LatPtNW; }},
        {"latitudes turned", [](Calibration& C) { std::swap(C.LatPtSE, C.LatPtNW); }},
        {"one longitude", [](Calibration& C) { C.LonPtSE = C.LonPtNW; }},
        {"longitudes turned", [](Calibration& C) { std::swap(C.LonPtSE, C.LonPtNW); }},
        {"a point without a latitude", [](Calibration& C) { C.LatPtNW = Infinity; }},
        {"a point without a longitude", [](Calibration& C) { C.LonPtNW = -Infinity; }},
        {"grid without height", [](Calibration& C) { C.LatGridSE = C.LatGridNW; }},
        {"grid without width", [](Calibration& C) { C.LonGridSE = C.LonGridNW; }},
        {"grid without rows", [](Calibration& C) { C.YGridSE = C.YGridNW; }},
        {"grid without columns", [](Calibration& C) { C.XGridSE = C.XGridNW; }},
        {"grid beyond the pole", [](Calibration& C) { C.LatGridNW = 90.1; }},
        {"more rows than the globe", [](Calibration& C) { C.LatGridSE = -1000.0; }},
        {"more columns than the globe", [](Calibration& C) { C.LonGridSE = 1000.0; }},
        {"grid far west", [](Calibration& C) { C.LonGridNW = -1e6; }},
        {"no end of columns", [](Calibration& C) { C.XGridSE = Infinity; }},
        {"more columns than a Double counts",
         [](Calibration& C) {
             C.XGridNW = -1e308;
             C.XGridSE = 1e308;
         }},
        {"no number of rows", [](Calibration& C) { C.YGridNW = std::nan(""); }},
        {"no number of degrees", [](Calibration& C) { C.LonGridSE = std::nan(""); }},
        {"lines a Double cannot part",
         [](Calibration& C) {
             C.XGridNW = 1e18;
             C.XGridSE = 1e18 + 1024.0;
         }},
    };
    for (const Fault& F : Faults) {
        Calibration Cal = Plain_Calibration();
        F.Spoil(Cal);
        EXPECT_FALSE(Calibration_Can_Serve(Cal)) << F.Name;
    }
    EXPECT_FALSE(Calibration_Can_Serve(Calibration{})) << "a new project";
}

TEST(Calibration_Fit, TheWholeGlobeServes) {
    Calibration Cal = Plain_Calibration();
    Cal.LatGridNW = 90.0;
    Cal.LonGridNW = -180.0;
    Cal.LatGridSE = -90.0;
    Cal.LonGridSE = 180.0;
    EXPECT_TRUE(Calibration_Can_Serve(Cal));
}

TEST(Calibration_Points, AreRefusedByTheirMessage) {
    Calibration Cal = Plain_Calibration();
    Cal.CadNW_Done = 1;
    EXPECT_EQ(Points_Refused(Cal), 6);
    Cal.CadSE_Done = 1;
    EXPECT_EQ(Points_Refused(Cal), 0);
    Cal.XPtSE = Cal.XPtNW;
    EXPECT_EQ(Points_Refused(Cal), 7);
}

}  // namespace
