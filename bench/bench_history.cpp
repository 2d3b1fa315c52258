// bench/bench_history.cpp - what undo and the journal cost beside the act itself.
//
//     bench_history [RUNS]
//
// Projects of 10,000, 100,000 and 1,000,000 points, ten to an object. Milliseconds of processor
// time, the median of RUNS runs; the journal is in the system's directory for temporary files.
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <functional>

#include "core/history.h"
#include "core/host.h"
#include "core/journal_read.h"
#include "core/lifecycle.h"
#include "core/model_ops.h"
#include "core/program.h"
#include "core/project_file.h"
#include "core/restore.h"
#include "measure.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace fs = std::filesystem;

namespace {

constexpr Long Points_Of_Object = 10;
constexpr Long Moved_Points = 10'000;
constexpr Long Restored_Steps = 100'000;

fs::path Home() {
    return fs::temp_directory_path() / "terrafold_bench_history";
}

class Yes_Host final : public Silent_Host {
public:
    Int Show_Box(const Box&) override { return Button_Yes; }
};

void Begin(Long Nb_Points) {
    Program_Reset();
    App_Path = *Program_Path(Home());
    Nom_Projet = App_Path + "\\p.LWM";
    for (Long I = 0; I < Nb_Points / Points_Of_Object; ++I) {
        const Long Row = Obj_Add({}, I, 0.0);
        for (Long K = 1; K < Points_Of_Object; ++K) Pt_Append(Row, I, K);
    }
    Projet_Open = 1;
    Save_Project(0, {});
}

double Milliseconds(const std::function<void()>& Work) {
    const double From = measure::Cpu_Seconds();
    Work();
    return (measure::Cpu_Seconds() - From) * 1000.0;
}

double Median_Of(int Runs, const std::function<void()>& Before, const std::function<void()>& Work) {
    std::vector<double> Times;
    for (int I = 0; I < Runs; ++I) {
        Before();
        Times.push_back(Milliseconds(Work));
    }
    return measure::Median(Times);
}

void Act_Ends() {
    History_Act_Ended();
}

// What is added to acts of several kinds, and to opening and saving.
void Measure_Acts(Long Nb, int Runs) {
    Begin(Nb);
    const double Before = measure::Peak_Memory();
    const double Start = Milliseconds(History_Start);
    const double Copied = measure::Peak_Memory();
    const double Mark = Milliseconds([] { Journal_Start(true); });
    Long P = 0;
    const double Nothing = Median_Of(
        Runs, [] {}, Act_Ends);
    const double Move = Median_Of(
        Runs, [&] { Pt_Move(P = P % Nb + 7, 1.0, 2.0 * Runs), ++P; }, Act_Ends);
    const double Object = Median_Of(
        Runs, [&] { Obj_Move(2 + P++ % 50, 1.0, 1.0); }, Act_Ends);
    const double Gone = Median_Of(
        Runs, [] { Obj_Delete(2); }, Act_Ends);
    const double All = Median_Of(
        1,
        [&] {
            for (Long I = 2; I <= Nb_Obj; ++I) Obj_Move(I, 1.0, 1.0);
        },
        Act_Ends);
    const double Back = Milliseconds([] { History_Undo(nullptr); });
    const double Peak = measure::Peak_Memory();
    const double With = Milliseconds([] { Save_Project(0, {}); });
    Journal_End();
    const double Without = Milliseconds([] { Save_Project(0, {}); });
    std::printf(
        "%8d %8.3f %8.3f %8.3f %8.3f %8.1f %8.1f %8.1f %8.1f %8.1f %8.1f %8.1f %8.1f %8.1f\n",
        static_cast<int>(Nb), Nothing, Move, Object, Gone, All, Back, Start, Mark, With, Without,
        static_cast<double>(measure::Model_Size()) / measure::Megabyte,
        (Copied - Before) / measure::Megabyte, (Peak - Before) / measure::Megabyte);
}

void Move_Points(Long Nb) {
    for (Long N = 0; N < Nb; ++N) {
        Pt_Move(1 + N % Nb_Pt, 5.0, 1.0 * N);
        History_Act_Ended();
    }
}

void Measure_Journal() {
    Begin(Moved_Points);
    Open_Project(Nom_Projet);
    Move_Points(Moved_Points);
    std::printf("journal of %d moved points: %.2f MB\n", static_cast<int>(Moved_Points),
                static_cast<double>(File_Read(Journal_Path())->size()) / measure::Megabyte);
    Close_View();
}

// The journal is copied away, as a crash leaves it.
void Measure_Restore() {
    Begin(Moved_Points);
    Open_Project(Nom_Projet);
    const double Wall = measure::Wall_Seconds();
    Move_Points(Restored_Steps);
    const double Did = measure::Wall_Seconds() - Wall;
    const std::string Left = Journal_Path() + ".left", There = Journal_Path();
    File_Copy(There, Left);
    Close_View();
    Program_Reset();
    Yes_Host Host;
    const Host_Scope Scope(Host);
    App_Path = *Program_Path(Home());
    fs::rename(*Native_Path(Left), *Native_Path(There));
    const double From = measure::Wall_Seconds();
    const bool Done = Offer_Restore();
    std::printf("%d steps: done in %.2f s, %s in %.2f s, %d to be undone\n",
                static_cast<int>(Restored_Steps), Did, Done ? "restored" : "not restored",
                measure::Wall_Seconds() - From, static_cast<int>(History_Undo_Count()));
    Journal_End();
}

}  // namespace

int main(int argc, char** argv) {
    const int Runs = argc > 1 ? std::max(1, std::atoi(argv[1])) : 41;
    fs::create_directories(Home());
    std::printf(
        "milliseconds (median of %d), megabytes\n%8s %8s %8s %8s %8s %8s %8s %8s %8s %8s %8s %8s "
        "%8s %8s\n",
        Runs, "points", "nothing", "point", "object", "deleted", "all", "undone", "start", "mark",
        "save", "alone", "model", "copy", "all");
    for (const Long Nb : {10'000, 100'000, 1'000'000}) Measure_Acts(Nb, Runs);
    Measure_Journal();
    Measure_Restore();
    fs::remove_all(Home());
    return 0;
}
