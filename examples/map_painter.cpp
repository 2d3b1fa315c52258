// examples/map_painter.cpp - sea, land, lakes and roads in the colours of an old sheet map.
#include "map_painter.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <string>
#include <vector>

#include "core/model.h"

namespace {

// Each kind of surface has 32 shades in the palette, from dark to light.
enum Surface : int { Sea, Land, Lake, Wood, Field, Road, Stream, Shoreline };
constexpr int Nb_Shades = 32;
constexpr int Middle_Shade = 16;

struct Rgb {
    double Red, Green, Blue;
};

constexpr std::array<Rgb, 8> Surface_Colours{{{150, 190, 214},
                                              {228, 218, 178},
                                              {128, 178, 216},
                                              {140, 172, 120},
                                              {216, 206, 140},
                                              {176, 70, 58},
                                              {84, 140, 196},
                                              {92, 106, 116}}};

class Picture {
public:
    Picture(int Width, int Height)
        : Width_(Width),
          Height_(Height),
          Pixel_(static_cast<std::size_t>(Width) * static_cast<std::size_t>(Height), Sea) {}

    int Width() const { return Width_; }
    int Height() const { return Height_; }
    std::uint8_t& At(int X, int Y) {
        return Pixel_[static_cast<std::size_t>(Y) * static_cast<std::size_t>(Width_) +
                      static_cast<std::size_t>(X)];
    }
    void Set(int X, int Y, Surface S) {
        if (X >= 0 && X < Width_ && Y >= 0 && Y < Height_) At(X, Y) = static_cast<std::uint8_t>(S);
    }

private:
    int Width_, Height_;
    std::vector<std::uint8_t> Pixel_;
};

std::vector<Pt> Chain(const Obj& O) {
    std::vector<Pt> Points;
    for (Long P = O.First_Pt, N = 0; N < O.Nb_Pts; P = Tab_Pt[P].Next, ++N)
        Points.push_back(Tab_Pt[P]);
    return Points;
}

// Fills the inside of a closed outline row by row.
void Fill(Picture& Map, const std::vector<Pt>& Outline, Surface S) {
    for (int Y = 0; Y < Map.Height(); ++Y) {
        std::vector<double> Crossings;
        for (std::size_t I = 0; I < Outline.size(); ++I) {
            const Pt& A = Outline[I];
            const Pt& B = Outline[(I + 1) % Outline.size()];
            if ((A.Y <= Y) == (B.Y <= Y)) continue;
            Crossings.push_back(A.X + (B.X - A.X) * (Y - A.Y) / (B.Y - A.Y));
        }
        std::sort(Crossings.begin(), Crossings.end());
        for (std::size_t I = 0; I + 1 < Crossings.size(); I += 2)
            for (int X = static_cast<int>(std::ceil(Crossings[I])); X <= Crossings[I + 1]; ++X)
                Map.Set(X, Y, S);
    }
}

void Dot(Picture& Map, double X, double Y, double Radius, Surface S) {
    const int R = static_cast<int>(Radius) + 1;
    for (int DY = -R; DY <= R; ++DY)
        for (int DX = -R; DX <= R; ++DX)
            if (DX * DX + DY * DY <= Radius * Radius)
                Map.Set(static_cast<int>(X) + DX, static_cast<int>(Y) + DY, S);
}

void Stroke(Picture& Map, const std::vector<Pt>& Line, bool Closed, double Radius, Surface S) {
    const std::size_t Nb_Edges = Closed ? Line.size() : Line.size() - 1;
    for (std::size_t I = 0; I < Nb_Edges; ++I) {
        const Pt& A = Line[I];
        const Pt& B = Line[(I + 1) % Line.size()];
        const int Steps = 1 + static_cast<int>(std::hypot(B.X - A.X, B.Y - A.Y));
        for (int K = 0; K <= Steps; ++K)
            Dot(Map, A.X + (B.X - A.X) * K / Steps, A.Y + (B.Y - A.Y) * K / Steps, Radius, S);
    }
}

Surface Surface_Of(const Attr& A) {
    if (A.LWM_VTP2 != 0) return A.LandClass == 0 ? Wood : Field;
    return A.Attrib == 0 ? Lake : Land;
}

void Paint_Object(Picture& Map, const Obj& O) {
    const std::vector<Pt> Points = Chain(O);
    if (Points.size() < 2) return;
    if (O.Attr.SurfShore < 2) {
        Fill(Map, Points, Surface_Of(O.Attr));
        if (O.Attr.LWM_VTP2 == 0) Stroke(Map, Points, true, 1.2, Shoreline);
    } else if (O.Attr.SurfShore == 3) {
        Stroke(Map, Points, false, 2.2, Shoreline);
    } else {
        const bool Is_Road = O.Attr.LineType >= 1134;  // rivers and shores stand below
        Stroke(Map, Points, O.Attr.FermerLine == 1, Is_Road ? 3.0 : 2.0, Is_Road ? Road : Stream);
    }
}

// Smooth shading like paper and relief: the same at every build.
int Shade(int X, int Y) {
    const double Wave = std::sin(X * 0.011) * std::cos(Y * 0.013) + 0.5 * std::sin((X + Y) * 0.037);
    const std::uint32_t Grain = (static_cast<std::uint32_t>(X) * 2654435761U) ^
                                (static_cast<std::uint32_t>(Y) * 2246822519U);
    return Middle_Shade + static_cast<int>(Wave * 5.0) + static_cast<int>((Grain >> 13) % 5U) - 2;
}

void Put(std::string& Bytes, std::uint32_t Value, int Nb_Bytes) {
    for (int I = 0; I < Nb_Bytes; ++I) Bytes += static_cast<char>((Value >> (8 * I)) & 0xFFU);
}

std::string Palette() {
    std::string Bytes;
    for (int I = 0; I < 256; ++I) {
        const Rgb& C = Surface_Colours[static_cast<std::size_t>(I / Nb_Shades)];
        const double Light = 0.8 + 0.4 * (I % Nb_Shades) / (Nb_Shades - 1);
        const auto Level = [Light](double Full) {
            return static_cast<std::uint32_t>(std::min(255.0, Full * Light));
        };
        Put(Bytes, Level(C.Blue) | Level(C.Green) << 8U | Level(C.Red) << 16U, 4);
    }
    return Bytes;
}

std::string Header(int Width, int Height, int Row_Bytes) {
    constexpr std::uint32_t Pixels_At = 14 + 40 + 4 * 256;
    const auto Size = static_cast<std::uint32_t>(Row_Bytes * Height);
    std::string Bytes = "BM";
    Put(Bytes, Pixels_At + Size, 4);
    Put(Bytes, 0, 4);
    Put(Bytes, Pixels_At, 4);
    Put(Bytes, 40, 4);
    Put(Bytes, static_cast<std::uint32_t>(Width), 4);
    Put(Bytes, static_cast<std::uint32_t>(Height), 4);
    Put(Bytes, 1, 2);  // planes
    Put(Bytes, 8, 2);  // bits a pixel
    Put(Bytes, 0, 4);  // not compressed
    Put(Bytes, Size, 4);
    Put(Bytes, 2835, 4);  // pixels a metre: 72 dots an inch
    Put(Bytes, 2835, 4);
    Put(Bytes, 256, 4);
    Put(Bytes, 0, 4);
    return Bytes;
}

}  // namespace

bool Paint_Map(const std::filesystem::path& File) {
    Picture Map(Map_Width, Map_Height);
    for (Long I = First_Obj; I <= Nb_Obj; ++I) Paint_Object(Map, Tab_Obj[I]);
    const int Row_Bytes = (Map.Width() + 3) / 4 * 4;
    std::ofstream Out(File, std::ios::binary);
    Out << Header(Map.Width(), Map.Height(), Row_Bytes) << Palette();
    std::string Row(static_cast<std::size_t>(Row_Bytes), '\0');
    for (int Y = Map.Height() - 1; Y >= 0; --Y) {
        for (int X = 0; X < Map.Width(); ++X)
            Row[static_cast<std::size_t>(X)] =
                static_cast<char>(Map.At(X, Y) * Nb_Shades + std::clamp(Shade(X, Y), 0, 31));
        Out << Row;
    }
    return static_cast<bool>(Out.flush());
}
