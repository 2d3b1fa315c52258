// tests/ui_support/small_project.cpp - made through the model, so that it is read as any other.
#include "ui_support/small_project.h"

#include <gtest/gtest.h>

#include "core/model_ops.h"
#include "core/program.h"
#include "core/project_file.h"
#include "grid/map_limits.h"
#include "grid/terrain_grid.h"

namespace {

void Put(std::string& Out, std::uint32_t Value, int Bytes) {
    for (int I = 0; I < Bytes; ++I) Out += static_cast<char>(Value >> (8 * I) & 0xFF);
}

void Calibrate(Long Side) {
    The_Calibration = {};
    LatPtNW = 45.0 + 2 * Cell_StepLat;
    LonPtNW = 6.0;
    LatPtSE = LatPtNW - 4 * Cell_StepLat;
    LonPtSE = LonPtNW + 4 * Cell_StepLon;
    XPtNW = YPtNW = 1;
    XPtSE = YPtSE = Side - 1;
    CadNW_Done = CadSE_Done = 1;
    Compute_Map_Limits(The_Calibration, Side, Side);
}

}  // namespace

std::string Small_Bitmap(Long Width, Long Height) {
    const Long Stride = (Width + 3) / 4 * 4;
    const auto Pixels = static_cast<std::uint32_t>(Stride * Height);
    std::string Out = "BM";
    Put(Out, 1078 + Pixels, 4);
    Put(Out, 0, 4);
    Put(Out, 1078, 4);
    Put(Out, 40, 4);
    Put(Out, static_cast<std::uint32_t>(Width), 4);
    Put(Out, static_cast<std::uint32_t>(Height), 4);
    Put(Out, 1, 2);
    Put(Out, 8, 2);
    Put(Out, 0, 4);
    Put(Out, Pixels, 4);
    for (int I = 0; I < 4; ++I) Put(Out, 0, 4);
    for (std::uint32_t I = 0; I < 256; ++I) Put(Out, I * 0x010101, 4);
    for (Long Y = Height - 1; Y >= 0; --Y)
        for (Long X = 0; X < Stride; ++X) Out += static_cast<char>(X < Width ? X + Y : 0);
    return Out;
}

std::string Write_Small_Project(const Temp_Dir& Dir, const std::string& Name, Long Side) {
    Dir.Write(Name + ".bmp", Small_Bitmap(Side, Side));
    Model_Reset();
    const std::string Path = Dir.Path(Name + ".LWM");
    Nom_Projet = Path;
    Carte = Dir.Path(Name + ".bmp");
    NameBgl = Dir.Path(Name + ".bgl");
    NameBglExcl = Dir.Path(Name + "_excl.bgl");
    Dir_LCWC = Dir_Raw = Dir.Path();
    Map_Width = Map_Height = Side;
    Calibrate(Side);
    const Double S = Side;
    const Long I = Obj_Add({}, 0.2 * S, 0.2 * S);
    Pt_Append(I, 0.7 * S, 0.25 * S);
    Pt_Append(I, 0.8 * S, 0.7 * S);
    Pt_Append(I, 0.5 * S, 0.5 * S);
    Pt_Append(I, 0.2 * S, 0.8 * S);
    Projet_Open = 1;
    EXPECT_TRUE(Save_Project(0, {})) << Path;
    Projet_Open = 0;
    Model_Reset();
    return Path;
}
