// tests/simulator/main.cpp - stands in for a simulator that flies along a track.
//
//     stand_in_simulator [TRACK]
//
// TRACK is a text file of latitudes and longitudes in degrees, two numbers a line. Each reading
// of the longitude moves the aircraft on to the next, and from the last back to the first.
// Without a file it flies round a small circle. It ends when its window is closed, or killed.
// Besides what clients ask, command 99 gives 1 plus the number of atoms that nobody released.
#include <windows.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <string>
#include <vector>

#include "simlink/fsconnect.h"

namespace {

constexpr WPARAM Cmd_Atoms_Left = 99;

struct Place {
    double Lat, Lon;
};

std::vector<Place> Track;
std::size_t At = 0;
std::vector<std::string> Given;  // names of atoms that were not seen released yet
UINT Message = 0;

void Read_Track(const char* Path) {
    std::ifstream In(Path);
    for (Place P; In >> P.Lat >> P.Lon;) Track.push_back(P);
}

void Make_Circle() {
    for (int I = 0; I < 120; ++I)
        Track.push_back({45.0 + 0.02 * std::cos(I * 0.05236), 6.0 + 0.03 * std::sin(I * 0.05236)});
}

// Eight digits, then the eight bytes of X.
std::string Hex_Answer(double X) {
    unsigned char Bytes[sizeof X];
    std::memcpy(Bytes, &X, sizeof X);
    std::string Text = "00000000";
    for (const unsigned char B : Bytes) {
        char Pair[3];
        std::snprintf(Pair, sizeof Pair, "%02X", B);
        Text += Pair;
    }
    return Text;
}

bool Is_Left(const std::string& Name) {
    return GlobalFindAtomA(Name.c_str()) != 0;
}

// Atoms have numbers from 0xC000, which are negative in 16 bits.
LRESULT Give(const std::string& Name) {
    Given.push_back(Name);
    return static_cast<SHORT>(GlobalAddAtomA(Name.c_str()));
}

LRESULT Read(LPARAM Item) {
    const Place P = Track[At];
    if (Item == Fsc_Item_Latitude) return Give(Hex_Answer(P.Lat / 360.0 * 40007000.0));
    if (Item != Fsc_Item_Longitude) return 2;  // no such value here
    At = (At + 1) % Track.size();
    return Give(Hex_Answer(P.Lon / 360.0 * 281474976710656.0));
}

LRESULT Answer(WPARAM Command, LPARAM Argument) {
    if (Command == static_cast<WPARAM>(Fsc_Cmd_Identify))
        return Give("Stand0100000001000000a stand-in");
    if (Command == static_cast<WPARAM>(Fsc_Cmd_Read)) return Read(Argument);
    if (Command != Cmd_Atoms_Left) return 0;
    return 1 + std::count_if(Given.begin(), Given.end(), Is_Left);
}

LRESULT CALLBACK Window(HWND Wnd, UINT What, WPARAM W, LPARAM L) {
    if (What == Message) return Answer(W, L);
    if (What == WM_DESTROY) PostQuitMessage(0);
    return DefWindowProcA(Wnd, What, W, L);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc > 1) Read_Track(argv[1]);
    if (Track.empty()) Make_Circle();
    Message = RegisterWindowMessageA(Fsc_Message_Name);
    WNDCLASSA Class{};
    Class.lpfnWndProc = Window;
    Class.lpszClassName = Fsc_Window_Class;
    RegisterClassA(&Class);
    CreateWindowA(Fsc_Window_Class, "Stand-in simulator", WS_OVERLAPPEDWINDOW, 0, 0, 300, 60,
                  nullptr, nullptr, nullptr, nullptr);
    for (MSG M; GetMessageA(&M, nullptr, 0, 0) > 0;) DispatchMessageA(&M);
}
