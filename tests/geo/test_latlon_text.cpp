// tests/geo/test_latlon_text.cpp - positions written and read.
#include "geo/latlon_text.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

namespace {

TEST(LatLon_Text, DegreesMinutesSeconds) {
    EXPECT_EQ(Lat_To_Text(45.10986328125), "N45:06:35.5078");
    EXPECT_EQ(Lat_To_Text(-0.5), "S00:30:00.0000");
    EXPECT_EQ(Lon_To_Text(3.2), "E003:12:00.0000");
    EXPECT_EQ(Lon_To_Text(-179.9375), "W179:56:15.0000");
    EXPECT_EQ(Lat_To_Text(0.0), "N00:00:00.0000");
    EXPECT_EQ(Lon_To_Text(-0.0), "E000:00:00.0000") << "0 is east, whatever its sign";
}

TEST(LatLon_Text, DegreesAndDecimalMinutesHaveNoLeadingZeros) {
    EXPECT_EQ(Lat_To_Text_Min(45.10986328125), "N45*6.5918'");
    EXPECT_EQ(Lon_To_Text_Min(-3.2), "W3*12.0000'");
    EXPECT_EQ(Lat_To_Text_Min(0.0), "N0*0.0000'");
    EXPECT_EQ(Lat_To_Text_Min(59.6 / 60.0), "N0*59.6000'") << "60 whole minutes were too many";
    EXPECT_EQ(Lon_To_Text_Min(12.75), "E12*45.0000'");
}

// Grid lines lie on such halves: 0.087890625 degrees are 5 minutes 16.40625 seconds.
TEST(LatLon_Text, TheMaskRoundsAHalfAwayFromZero) {
    EXPECT_EQ(Lon_To_Text(0.087890625), "E000:05:16.4063");
    EXPECT_EQ(Lon_To_Text(-0.087890625), "W000:05:16.4063");
    EXPECT_EQ(Lat_To_Text_Min(0.0234375), "N0*1.4063'") << "1.40625 minutes";
    EXPECT_EQ(Lat_To_Text_Min(0.0078125), "N0*0.4688'") << "0.46875 minutes";
    EXPECT_EQ(Lat_To_Text(59.99999 / 3600.0), "N00:00:60.0000") << "the mask does not carry";
}

TEST(LatLon_Text, ReadsDegreesMinutesSeconds) {
    EXPECT_EQ(Text_To_Lat("N").Deg, 0.0);
    EXPECT_EQ(Text_To_Lat("N").Err, 0);
    EXPECT_EQ(Text_To_Lat("S0:30:0").Deg, -0.5);
    EXPECT_EQ(Text_To_Lat("  N90:0:0  ").Deg, 90.0);
    EXPECT_EQ(Text_To_Lon("E180:0:0").Deg, 180.0);
    EXPECT_EQ(Text_To_Lat("N45:60:60").Deg, 46.016667) << "60 is allowed, six decimals are kept";
    EXPECT_EQ(Text_To_Lon("W1: 30 :36.").Deg, -1.51);
    EXPECT_EQ(Text_To_Lon("W1:30: 3,6e1").Deg, -1.51) << "seconds are typed as any number";
    EXPECT_EQ(Text_To_Lat("Nx:y:0.5").Deg, 0.000139) << "no number of degrees or minutes is 0";
    EXPECT_EQ(Text_To_Lat("N-1:30:0").Deg, -0.5);
    for (const char* Zero : {"S", "S0:0:0", "S0:0:.0001"}) {
        EXPECT_EQ(Text_To_Lat(Zero).Err, 0) << Zero;
        EXPECT_FALSE(std::signbit(Text_To_Lat(Zero).Deg)) << Zero;
    }
}

TEST(LatLon_Text, RefusesEverythingElse) {
    for (const char* Text : {"",         "   ",      "45:10:0",       "n45:10:0",   "E45:10:0",
                             "N91:0:0",  "N-91:0:0", "N1E9:0:0",      "N1E999:0:0", "N45",
                             "N45:10",   "N45:10:",  "N45:",          "N:10:0",     "N45::0",
                             "N45:61:0", "N45:-1:0", "N45:0:60.0001", "N45:0:-1",   "N1:2:x",
                             "N1:2:3x",  "N1:2:3:4", "N1:2:.",        "N1:2:1.2.3", "N1:2:1e2"})
        EXPECT_EQ(Text_To_Lat(Text).Err, 1) << Text;
    EXPECT_EQ(Text_To_Lon("E181:0:0").Err, 1);
    EXPECT_EQ(Text_To_Lon("N1:0:0").Err, 1);
}

TEST(LatLon_Text, FlightRecorderForm) {
    EXPECT_DOUBLE_EQ(Igc_To_Lat("0011222N").Deg, 11.222 / 60.0);
    EXPECT_DOUBLE_EQ(Igc_To_Lon(" 12311222E ").Deg, 123.0 + 11.222 / 60.0);
    EXPECT_DOUBLE_EQ(Igc_To_Lat("4530000S").Deg, -45.5);
    for (const char* Text : {"", "011222N", "00011222E", "0011x22N", "0011 22N", "-011222N",
                             "0011222n", "0011222E", "00112.2N"})
        EXPECT_EQ(Igc_To_Lat(Text).Err, 1) << Text;
    for (const char* Text : {"0011222E", "00130000N", "0x130000E"})
        EXPECT_EQ(Igc_To_Lon(Text).Err, 1) << Text;
}

TEST(LatLon_Text, AFieldTakesANumberOrAText) {
    const struct {
        const char* Typed;
        const char* Other;  // "" when it is refused
        Double Deg;
    } Lats[] = {{" 45,5 ", "N45:30:00.0000", 45.5},
                {"-90", "S90:00:00.0000", -90.0},
                {"S0:30:0", "-0.5", -0.5},
                {"n", "", 0.0},
                {"90.001", "", 0.0},
                {"E1:0:0", "", 0.0},
                {"", "", 0.0},
                {"1:0:0", "", 0.0},
                {"N", "0", 0.0}};
    for (const auto& [Typed, Other, Deg] : Lats) {
        const Degrees_Typed Read = Typed_Lat(Typed);
        EXPECT_EQ(Read.Err, *Other == '\0' ? 1 : 0) << Typed;
        if (Read.Err != 0) continue;
        EXPECT_EQ(Read.Deg, Deg) << Typed;
        EXPECT_EQ(Read.Other_Form, Other) << Typed;
    }
    EXPECT_EQ(Typed_Lon("-180").Other_Form, "W180:00:00.0000");
    EXPECT_EQ(Typed_Lon("E110:36:33.3720").Other_Form, "110.60927");
    EXPECT_EQ(Typed_Lon("180.1").Err, 1);
}

TEST(LatLon_Text, WhatIsWrittenReadsBack) {
    std::mt19937 Random(11);
    std::uniform_real_distribution<Double> Part(-1.0, 1.0);
    const Double Slack = 0.5e-6 + 0.5e-4 / 3600.0 + 1e-12;  // six decimals of four of a second
    for (int I = 0; I < 5000; ++I) {
        const Double Lat = 90.0 * Part(Random);
        const Double Lon = 180.0 * Part(Random);
        ASSERT_EQ(Text_To_Lat(Lat_To_Text(Lat)).Err, 0) << Lat_To_Text(Lat);
        ASSERT_NEAR(Text_To_Lat(Lat_To_Text(Lat)).Deg, Lat, Slack) << Lat_To_Text(Lat);
        ASSERT_NEAR(Text_To_Lon(Lon_To_Text(Lon)).Deg, Lon, Slack) << Lon_To_Text(Lon);
    }
}

// Decimal degrees are not checked for their range before they are shown.
TEST(LatLon_Text, AnyDoubleHasAText) {
    using Limits = std::numeric_limits<Double>;
    EXPECT_EQ(Lat_To_Text(-1234.5), "S1234:30:00.0000");
    for (const Double X : {Limits::max(), -Limits::max(), Limits::infinity(), Limits::quiet_NaN(),
                           Limits::denorm_min()}) {
        EXPECT_GE(Lat_To_Text(X).size(), 10U);
        EXPECT_GE(Lon_To_Text_Min(X).size(), 5U);
    }
}

}  // namespace
