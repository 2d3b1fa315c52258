// bench/bench_project_file.cpp - writing and reading a large project.
//
// 1,000,000 points on 100,000 objects, with coordinates as the mouse leaves them: fractions of
// all digits. Prints the best of five runs each way, and the peak memory of the whole program
// beside the size of the model itself.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "core/lifecycle.h"
#include "core/model_ops.h"
#include "core/program.h"
#include "core/project_file.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace {

constexpr int Nb_Objects = 100'000;
constexpr int Nb_Pts_Each = 10;
constexpr int Nb_Runs = 5;
constexpr double Megabyte = 1e6;

void Make_Model() {
    std::mt19937_64 Source(20031004);
    std::uniform_real_distribution<Double> Place(0.0, 20'000.0);
    Model_Reset();
    for (int N = 0; N < Nb_Objects; ++N) {
        Attr A;
        A.Text_Rt = "road " + std::to_string(N);
        A.Texture_Name[0] = "gravel_summer_" + std::to_string(N % 40) + ".bmp";
        const Long I = Obj_Add(A, Place(Source), Place(Source));
        for (int K = 1; K < Nb_Pts_Each; ++K) Pt_Append(I, Place(Source), Place(Source));
    }
}

// Memory that a string takes beside its own record.
std::size_t Heap_Of(const std::string& S) {
    return S.capacity() > std::string().capacity() ? S.capacity() + 1 : 0;
}

std::size_t Model_Size() {
    std::size_t Size = static_cast<std::size_t>(Nb_Pt) * sizeof(Pt);
    for (const Obj& O : Tab_Obj.Rows()) {
        Size += sizeof(Obj) + Heap_Of(O.Attr.Text_Rt) + Heap_Of(O.Attr.Imbrication);
        for (const std::string& Name : O.Attr.Texture_Name) Size += Heap_Of(Name);
    }
    return Size;
}

// Bytes, or 0 where the system does not tell it in this way.
double Peak_Memory() {
    std::ifstream Status("/proc/self/status");
    for (std::string Line; std::getline(Status, Line);)
        if (Line.starts_with("VmHWM:")) return std::atof(Line.c_str() + 6) * 1024.0;
    return 0.0;
}

template <typename F>
double Best_Seconds(F&& Job) {
    double Best = 1e9;
    for (int Run = 0; Run < Nb_Runs; ++Run) {
        const auto Start = std::chrono::steady_clock::now();
        Job();
        const std::chrono::duration<double> Took = std::chrono::steady_clock::now() - Start;
        Best = std::min(Best, Took.count());
    }
    return Best;
}

void Stop_Unless(bool Holds, const char* What) {
    if (Holds) return;
    std::fprintf(stderr, "bench_project_file: %s\n", What);
    std::exit(1);
}

}  // namespace

int main() {
    const auto File = std::filesystem::temp_directory_path() / "terrafold_bench.LWM";
    Program_Reset();
    Make_Model();
    Nom_Projet = Program_Path(File).value();
    Projet_Open = 1;
    const double Write_Seconds =
        Best_Seconds([] { Stop_Unless(Save_Project(0, {}), "the project was not saved"); });
    const double Size = static_cast<double>(std::filesystem::file_size(File)) / Megabyte;
    Model_Reset();
    const std::string Path = Program_Path(File).value();
    const double Read_Seconds = Best_Seconds([&] {
        Read_Project_File(Path);
        Stop_Unless(Load_Failed == 0, "the project was not read");
    });
    Stop_Unless(Nb_Obj == Nb_Objects + 1 && Nb_Pt == Nb_Objects * Nb_Pts_Each, "rows are lost");
    const double Own = static_cast<double>(Model_Size()) / Megabyte;
    const double Peak = Peak_Memory() / Megabyte;
    std::printf("%d points, %d objects, file %.1f MB\n", Nb_Objects * Nb_Pts_Each, Nb_Objects,
                Size);
    std::printf("write %.0f MB/s (%.3f s)\n", Size / Write_Seconds, Write_Seconds);
    std::printf("read %.0f MB/s (%.3f s)\n", Size / Read_Seconds, Read_Seconds);
    std::printf("model %.1f MB, peak of the program %.1f MB, %.2f times the model\n", Own, Peak,
                Peak / Own);
    std::filesystem::remove(File);
    return 0;
}
