// tests/geo/test_positions.cpp - positions written and read, degrees as metres, and the line
// between pixels and degrees.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <random>

#include "geo/calibration.h"
#include "geo/latlon_text.h"
#include "geo/metres.h"
#include "support/rows.h"

namespace {

std::string Text_Of(const Degrees_Read& R) {
    if (R.Err != 0) return "refused";
    return std::signbit(R.Deg) && R.Deg == 0.0 ? "-0" : Number_Cell(R.Deg);
}

std::string Text_Of(const Degrees_Typed& R) {
    return R.Err != 0 ? "refused" : Number_Cell(R.Deg) + " " + R.Other_Form;
}

// 20 pixels a degree of latitude, 200 a degree of longitude; then "NAME=VALUE" for what differs.
Calibration Calibration_Of(const std::string& Cell) {
    Calibration C;
    C.LatPtNW = 45.0, C.LonPtNW = 10.0, C.LatPtSE = 35.0, C.LonPtSE = 11.0;
    C.XPtNW = 100, C.YPtNW = 50, C.XPtSE = 300, C.YPtSE = 250;
    C.LatGridNW = 48.0, C.LonGridNW = 9.0, C.LatGridSE = 34.0, C.LonGridSE = 12.0;
    C.XGridNW = -100.0, C.YGridNW = -10.0, C.XGridSE = 500.0, C.YGridSE = 270.0;
    const std::map<std::string, Double*> Doubles{
        {"LatPtNW", &C.LatPtNW},     {"LonPtNW", &C.LonPtNW},     {"LatPtSE", &C.LatPtSE},
        {"LonPtSE", &C.LonPtSE},     {"LatGridNW", &C.LatGridNW}, {"LonGridNW", &C.LonGridNW},
        {"LatGridSE", &C.LatGridSE}, {"LonGridSE", &C.LonGridSE}, {"XGridNW", &C.XGridNW},
        {"YGridNW", &C.YGridNW},     {"XGridSE", &C.XGridSE},     {"YGridSE", &C.YGridSE}};
    const std::map<std::string, Long*> Longs{
        {"XPtNW", &C.XPtNW}, {"YPtNW", &C.YPtNW}, {"XPtSE", &C.XPtSE}, {"YPtSE", &C.YPtSE}};
    for (std::size_t At = 0, Is = 0; (Is = Cell.find('=', At)) != std::string::npos;) {
        const std::size_t End = std::min(Cell.find(' ', Is), Cell.size());
        const std::string Name = Cell.substr(At, Is - At);
        const double Value = Cell_Number(Cell.substr(Is + 1, End - Is - 1));
        if (const auto D = Doubles.find(Name); D != Doubles.end())
            *D->second = Value;
        else
            *Longs.at(Name) = static_cast<Long>(Value);
        At = End + 1;
    }
    return C;
}

TEST(Positions, AsInTheRows) {
    const auto Written = [](std::string (*Rule)(Double)) {
        return [Rule](const Row_Cells& C) { return Rule(Cell_Number(C[0])); };
    };
    const auto Read = [](Degrees_Read (*Rule)(std::string_view)) {
        return [Rule](const Row_Cells& C) { return Text_Of(Rule(C[0])); };
    };
    const auto Typed = [](Degrees_Typed (*Rule)(std::string_view)) {
        return [Rule](const Row_Cells& C) { return Text_Of(Rule(C[0])); };
    };
    Expect_Rows(
        "positions",
        {{"Lat_To_Text", Written(Lat_To_Text)},
         {"Lon_To_Text", Written(Lon_To_Text)},
         {"Lat_To_Text_Min", Written(Lat_To_Text_Min)},
         {"Lon_To_Text_Min", Written(Lon_To_Text_Min)},
         {"Text_To_Lat", Read(Text_To_Lat)},
         {"Text_To_Lon", Read(Text_To_Lon)},
         {"Igc_To_Lat", Read(Igc_To_Lat)},
         {"Igc_To_Lon", Read(Igc_To_Lon)},
         {"Any_To_Lat", Read(Any_To_Lat)},
         {"Any_To_Lon", Read(Any_To_Lon)},
         {"Typed_Lat", Typed(Typed_Lat)},
         {"Typed_Lon", Typed(Typed_Lon)},
         {"Metres",
          [](const Row_Cells& C) {
              const std::vector<double> V = Cell_Numbers(C[0]);
              const Double Lon = std::round(Deg_Lon_To_Metres(V[0], V[1]) * 1e6) / 1e6;
              return Number_Cell(Deg_Lat_To_Metres(V[1])) + " " + Number_Cell(Lon);
          }},
         {"Metres_A_Pixel",
          [](const Row_Cells& C) {
              const Calibration Cal = Calibration_Of(C[0]);
              return Number_Cell(DV2Pix(Cal)) + " " + Number_Cell(DH2Pix(Cal));
          }},
         {"Pixel_To_LatLon",
          [](const Row_Cells& C) {
              const std::vector<double> V = Cell_Numbers(C[1]);
              const Geo G = Pixel_To_LatLon({V[0], V[1]}, Calibration_Of(C[0]));
              return Number_Cell(G.Lat) + " " + Number_Cell(G.Lon);
          }},
         {"LatLon_To_Pixel",
          [](const Row_Cells& C) {
              const std::vector<double> V = Cell_Numbers(C[1]);
              const Pix P = LatLon_To_Pixel({V[0], V[1]}, Calibration_Of(C[0]));
              return Number_Cell(P.X) + " " + Number_Cell(P.Y);
          }},
         {"Calibration_Can_Serve", [](const Row_Cells& C) {
              return std::string(Calibration_Can_Serve(Calibration_Of(C[0])) ? "serves" : "no");
          }}});
    EXPECT_FALSE(Calibration_Can_Serve(Calibration{})) << "a new project";
}

TEST(Positions, WhatIsWrittenReadsBack) {
    std::mt19937 Random(11);
    std::uniform_real_distribution<Double> Part(-1.0, 1.0);
    const Double Slack = 0.5e-6 + 0.5e-4 / 3600.0 + 1e-12;  // six decimals of four of a second
    for (int I = 0; I < 5000; ++I) {
        const Double Lat = 90.0 * Part(Random), Lon = 180.0 * Part(Random);
        ASSERT_NEAR(Text_To_Lat(Lat_To_Text(Lat)).Deg, Lat, Slack) << Lat_To_Text(Lat);
        ASSERT_NEAR(Text_To_Lon(Lon_To_Text(Lon)).Deg, Lon, Slack) << Lon_To_Text(Lon);
        const Pix P{30000.0 * Part(Random), 30000.0 * Part(Random)};
        Calibration Cal = Calibration_Of("");
        Cal.LatPtSE = Cal.LatPtNW - 1.01 - Part(Random);
        Cal.XPtSE = Cal.XPtNW + 100 + I;
        const Pix Back = LatLon_To_Pixel(Pixel_To_LatLon(P, Cal), Cal);
        ASSERT_NEAR(Back.X, P.X, 1e-6);
        ASSERT_NEAR(Back.Y, P.Y, 1e-6);
    }
}

// Decimal degrees are not checked for their range before they are shown.
TEST(Positions, AnyDoubleHasAText) {
    using Limits = std::numeric_limits<Double>;
    for (const Double X : {Limits::max(), -Limits::max(), Limits::infinity(), Limits::quiet_NaN(),
                           Limits::denorm_min()}) {
        EXPECT_GE(Lat_To_Text(X).size(), 10U);
        EXPECT_GE(Lon_To_Text_Min(X).size(), 5U);
    }
}

TEST(Positions, CalibrationPointsAreRefusedByTheirMessage) {
    Calibration Cal = Calibration_Of("");
    Cal.CadNW_Done = 1;
    EXPECT_EQ(Points_Refused(Cal), 6);
    Cal.CadSE_Done = 1;
    EXPECT_EQ(Points_Refused(Cal), 0);
    Cal.XPtSE = Cal.XPtNW;
    EXPECT_EQ(Points_Refused(Cal), 7);
}

}  // namespace
