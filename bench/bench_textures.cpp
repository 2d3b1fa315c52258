// bench/bench_textures.cpp - textures into pictures, and the picker going through a directory.
//
//     bench_textures [RUNS]
//
// Files stand in the page cache. Rates are bytes of the picture that comes out, beside memcpy of
// as many bytes into memory of its own; the median processor time of RUNS runs.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include "core/program.h"
#include "measure.h"
#include "platform/paths.h"
#include "tex/texture.h"
#include "ui/dialogs/dialogs.h"
#include "ui/dialogs/texture_pick.h"
#include "ui/form/form_events.h"

namespace fs = std::filesystem;

namespace {

constexpr int Nb_In_Directory = 2000;

void Stop_Unless(bool Holds, const char* What) {
    if (Holds) return;
    std::fprintf(stderr, "bench_textures: %s\n", What);
    std::exit(1);
}

void Put_Number(std::string& Out, std::uint32_t Value, int Size) {
    for (int I = 0; I < Size; ++I) Out += static_cast<char>(Value >> (8 * I));
}

// A texture in blocks of 8 bytes, with noise in them.
std::string Dxt1(std::uint32_t Side) {
    std::mt19937 Random(1);
    std::string Out = "BM";
    for (const std::uint32_t Value : {0u, 0u, 74u, 40u, Side, Side}) Put_Number(Out, Value, 4);
    Put_Number(Out, 1, 2);
    Put_Number(Out, 16, 2);
    Out += "DXT1" + std::string(20, '\0') + "FS70" + std::string(16, '\0');
    for (std::uint32_t I = 0; I < Side * Side / 8; ++I) Put_Number(Out, Random(), 4);
    return Out;
}

// Runs of four indices and four as they are, in turn; codes that name nothing kept before.
std::string Compressed_R8() {
    std::string Out;
    std::uint32_t Held = 0;
    int Bits = 0;
    const auto Put = [&](std::uint32_t Code) {
        Held = Held << 9 | Code;
        for (Bits += 9; Bits >= 8; Bits -= 8) Out += static_cast<char>(Held >> (Bits - 8));
        Held &= 255;
    };
    for (std::uint32_t I = 0; I < 65'536; I += 8)
        for (const std::uint32_t Code : {4u, I / 8 & 255u, 132u, I & 255u, I / 256, 1u, 2u})
            Put(Code);
    Put(0);
    Put(511);
    Put(0);
    return Out;
}

void Write(const fs::path& To, const std::string& Bytes) {
    std::ofstream Out(To, std::ios::binary);
    Out << Bytes;
    Stop_Unless(static_cast<bool>(Out.flush()), "a texture cannot be written");
}

double Seconds(int Runs, const std::function<void()>& Job) {
    std::vector<double> All;
    for (int Run = 0; Run < Runs; ++Run) {
        const double Start = measure::Cpu_Seconds();
        Job();
        All.push_back(measure::Cpu_Seconds() - Start);
    }
    return measure::Median(All);
}

void Read_One(const char* Name, const fs::path& File, int Runs) {
    const std::string Path = Program_Path(File).value();
    Picture P;
    std::string Text;
    const double Read = Seconds(Runs, [&] {
        Stop_Unless(Texture_Read(Path, Pal_Fs5, P, Text) == Texture_Fault::None, Name);
    });
    const double Mb = static_cast<double>(P.Bytes.size()) / measure::Megabyte;
    const double Copy = Seconds(Runs, [&] {
        std::vector<std::uint8_t> To(P.Bytes.size());
        std::memcpy(To.data(), P.Bytes.data(), To.size());
        Stop_Unless(To.back() == P.Bytes.back(), "memcpy");
    });
    std::vector<std::uint8_t> Warm(P.Bytes.size());
    const double Warm_Copy = Seconds(Runs, [&] {
        std::memcpy(Warm.data(), P.Bytes.data(), Warm.size());
        Stop_Unless(Warm.back() == P.Bytes.back(), "memcpy");
    });
    std::printf("%-24s %8.3f ms %7.0f MB/s; memcpy %6.0f MB/s into new memory, %6.0f into old\n",
                Name, Read * 1e3, Mb / Read, Mb / Copy, Mb / Warm_Copy);
}

// The user opens the picker and holds the arrow key down.
void Go_Through(const fs::path& Dir) {
    LBmp_Dir = Program_Path(Dir).value();
    const double Start = measure::Cpu_Seconds();
    const auto Picker = Make_Frm_LBmp();
    Form_Load(*Picker);
    const double Opened = measure::Cpu_Seconds();
    for (Long I = 1; I < Nb_In_Directory; ++I) {
        Form_Choose(*Picker, "File1", I);
        Stop_Unless(LBmp_Width > 0, "a texture was not shown");
    }
    const double End = measure::Cpu_Seconds();
    std::printf("picker: %d textures, open %.1f ms, then %.0f a second\n", Nb_In_Directory,
                (Opened - Start) * 1e3, (Nb_In_Directory - 1) / (End - Opened));
}

}  // namespace

int main(int Argc, char** Argv) {
    const int Runs = Argc > 1 ? std::atoi(Argv[1]) : 9;
    Stop_Unless(Runs > 0, "RUNS is 1 or more");
    Program_Reset();
    const fs::path Dir = fs::temp_directory_path() / "terrafold_bench_textures";
    fs::create_directories(Dir / "many");
    Write(Dir / "large.bmp", Dxt1(4096));
    Write(Dir / "usual.bmp", Dxt1(256));
    Write(Dir / "one.r8", Compressed_R8());
    App_Path = Program_Path(Dir).value();
    Read_One("DXT1 4096x4096", Dir / "large.bmp", Runs);
    Read_One("DXT1 256x256", Dir / "usual.bmp", Runs * 20);
    Read_One("R8 compressed", Dir / "one.r8", Runs * 20);
    for (int I = 0; I < Nb_In_Directory; ++I)
        Write(Dir / "many" / ("t" + std::to_string(I) + ".bmp"), Dxt1(I % 4 == 0 ? 1024u : 256u));
    Go_Through(Dir / "many");
    fs::remove_all(Dir);
    return 0;
}
