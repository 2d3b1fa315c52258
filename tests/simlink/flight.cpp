// tests/simlink/flight.cpp - a track, and the readings that must come of it.
#include "simlink/flight.h"

#include <gtest/gtest.h>

#include <chrono>
#include <sstream>
#include <thread>

#include "simlink/fsconnect.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int Nb_Places = 100;

Double Lat_Of(int I) {
    return -39.7 - I * 0.001;
}
Double Lon_Of(int I) {
    return 179.9 - I * 3.5;
}

void Write_Track(const Temp_Dir& Dir) {
    std::ostringstream Out;
    Out.precision(17);
    for (int I = 0; I < Nb_Places; ++I) Out << Lat_Of(I) << ' ' << Lon_Of(I) << '\n';
    Dir.Write("track.txt", Out.str());
}

bool Appears() {
    const auto Limit = Clock::now() + std::chrono::seconds(30);
    while (!Fsc_Available() && Clock::now() < Limit)
        std::this_thread::sleep_for(std::chrono::milliseconds(50));
    return Fsc_Available();
}

void Read_Track() {
    std::string Name, Text;
    Long Major = 0, Minor = 0;
    for (int I = 0; I < Nb_Places; ++I) {
        ASSERT_EQ(Fsc_Identify(Name, Text, Major, Minor), 0);
        Double Lat = 0.0, Lon = 0.0;
        ASSERT_EQ(Fsc_Get_Latitude(Lat), 0);
        ASSERT_EQ(Fsc_Get_Longitude(Lon), 0);
        ASSERT_NEAR(Lat, Lat_Of(I), 1e-12);
        ASSERT_NEAR(Lon, Lon_Of(I), 1e-12);
    }
    EXPECT_EQ(Name + "|" + Text, "Stand|a stand-in");
    Fsc_Value Value;
    EXPECT_EQ(Fsc_Get(73, 'n', Value, Text, Major), 2) << "the server's own error";
    EXPECT_EQ(The_Carrier().Send(99, 0), 1) << "no atom is left";
}

void Expect_Absence() {
    std::string Name, Text;
    Long Number = 0;
    const auto Before = Clock::now();
    EXPECT_EQ(Fsc_Identify(Name, Text, Number, Number), 1);
    EXPECT_LT(Clock::now() - Before, std::chrono::seconds(2));
}

}  // namespace

void Fly_Twice(const Temp_Dir& Dir, const std::function<void(const std::string&)>& Start,
               const std::function<void()>& End) {
    Write_Track(Dir);
    for (int Time = 1; Time <= 2; ++Time) {
        Start(Dir.Path("track.txt"));
        EXPECT_TRUE(Appears());
        Read_Track();
        End();
        Expect_Absence();
    }
    Fsc_Close();
}
