// bench/bench_project_file.cpp - writing and reading a large project.
//
// 1,000,000 points on 100,000 objects, with coordinates as the mouse leaves them: fractions of
// all digits. Prints the best of five runs each way, and the peak memory of the whole program
// beside the size of the model itself.
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>

#include "core/lifecycle.h"
#include "core/model_ops.h"
#include "core/program.h"
#include "core/project_file.h"
#include "measure.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace {

constexpr int Nb_Objects = 100'000;
constexpr int Nb_Pts_Each = 10;
constexpr int Nb_Runs = 5;
using measure::Megabyte;

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

template <typename F>
double Best_Seconds(F&& Job) {
    double Best = 1e9;
    for (int Run = 0; Run < Nb_Runs; ++Run) {
        const double Start = measure::Wall_Seconds();
        Job();
        Best = std::min(Best, measure::Wall_Seconds() - Start);
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
    const double Own = static_cast<double>(measure::Model_Size()) / Megabyte;
    const double Peak = measure::Peak_Memory() / Megabyte;
    std::printf("%d points, %d objects, file %.1f MB\n", Nb_Objects * Nb_Pts_Each, Nb_Objects,
                Size);
    std::printf("write %.0f MB/s (%.3f s)\n", Size / Write_Seconds, Write_Seconds);
    std::printf("read %.0f MB/s (%.3f s)\n", Size / Read_Seconds, Read_Seconds);
    std::printf("model %.1f MB, peak of the program %.1f MB, %.2f times the model\n", Own, Peak,
                Peak / Own);
    std::filesystem::remove(File);
    return 0;
}
