// tests/play/posix/test_kill.cpp - the program is killed while a user draws and saves: at most the
// act that was under way is missing, and the project file is whole.
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <random>
#include <span>
#include <thread>

#include "core/lifecycle.h"
#include "core/program.h"
#include "core/record_bytes.h"
#include "platform/byte_sum.h"
#include "platform/files.h"
#include "play/play.h"
#include "support/program_test.h"
#include "ui_support/small_project.h"

namespace {

using Clock = std::chrono::steady_clock;

class Kill_Test : public Program_Test {
protected:
    static constexpr int Nb_Objects = 40;

    // Says a number after each act that changes or saves the project.
    std::string Acts() const {
        int Said = 0;
        std::string Text = "file \"" + Project_ + "\"\nclick Mnu_File_Open\nsay 0\n";
        const auto Do = [&](const std::string& Line) {
            Text += Line + "\nsay " + std::to_string(++Said) + "\n";
        };
        const auto Press = [](int I) {
            return "press " + std::to_string(40 + I * 37 % 500) + " " +
                   std::to_string(40 + I * 53 % 500);
        };
        Text += "click Cmd_Saisie_Routes\n";
        for (int I = 0; I < Nb_Objects; ++I) {
            Text += "click Cmd_New_Route\n" + Press(I * 7) + "\nchoose Opt_SurfShore 2\n";
            Do("click Cmd_Ok");
            for (int P = 1; P < 6; ++P) Do(Press(I * 7 + P));
            Text += "key Esc\nkey Esc\n";
            if (I % 3 == 1) Do("key Ctrl+Z");
            if (I % 5 == 4) Do("key Ctrl+S");
        }
        return Text;
    }
    Play_End Play_All(const std::function<void(int)>& Said) const {
        return Play(Script_Read(Acts()), {.App_Dir = Home_}, [&](std::string_view Line) {
            int N = 0;
            if (std::sscanf(std::string(Line).c_str(), "%d", &N) == 1) Said(N);
        });
    }
    // The same whether it comes from the project file or from the journal.
    static std::uint64_t State() {
        Byte_Writer Out;
        for (Long I = First_Obj; I <= Nb_Obj; ++I) {
            Out.Put(Tab_Obj[I].Num);
            for (Long P = Tab_Obj[I].First_Pt; P != 0; P = Tab_Pt[P].Next)
                Out.Put(Tab_Pt[P].X), Out.Put(Tab_Pt[P].Y);
        }
        return Bytes_Sum(Out.Bytes);
    }
    void Lay_Out() {
        for (const std::string& Path : Files_Matching(Home_ + "\\Temp\\Journal", "*"))
            File_Delete(Path);
        Dir.Write("small.LWM", First_);
    }
    // The number said last by a program that was killed after that time, or not at all; -1 when
    // none was.
    int Killed_After(std::optional<std::chrono::microseconds> Time) {
        int Ends[2] = {};
        EXPECT_EQ(pipe(Ends), 0);
        const pid_t Child = fork();
        if (Child == 0) {
            Play_All([&](int N) {
                if (write(Ends[1], &N, sizeof N) != sizeof N) _exit(1);
            });
            _exit(0);
        }
        if (Time) std::this_thread::sleep_for(*Time);
        if (Time) kill(Child, SIGKILL);
        waitpid(Child, nullptr, 0);
        close(Ends[1]);
        int Last = -1;
        for (int N = 0; read(Ends[0], &N, sizeof N) == sizeof N;) Last = N;
        close(Ends[0]);
        return Last;
    }

    // The next start of the program, in which the user wants all that can be had back.
    void Expect_State_After(int Said) {
        const auto Look = [&] {
            if (Projet_Open == 0) Open_From_Outside(Project_);
            const auto Expected = std::span(States_).subspan(static_cast<std::size_t>(Said), 2);
            EXPECT_TRUE(std::ranges::count(Expected, State()) != 0)
                << "after " << Said << " the state after "
                << std::ranges::find(States_, State()) - States_.begin();
        };
        Play(Script_Read("answer yes\nanswer yes\n"), {.App_Dir = Home_, .At_Start = Look},
             [](std::string_view) {});
        EXPECT_TRUE(Load_Project(Project_)) << "the file is whole";
        Program_Reset();
    }

    const std::string Home_ = App_Path;
    const std::string Project_ = Write_Small_Project(Dir, "small");
    const std::string First_ = Dir.Read("small.LWM");
    std::vector<std::uint64_t> States_;  // after each act
};

}  // namespace

TEST_F(Kill_Test, AtMostTheLastActIsMissing) {
    const char* Asked = std::getenv("TERRAFOLD_ROUNDS");
    const int Rounds = Asked != nullptr ? std::atoi(Asked) : 12;
    const Play_End End = Play_All([this](int) { States_.push_back(State()); });
    ASSERT_EQ(End.Status, 0) << End.Reason << End.Line;
    States_.push_back(States_.back());
    Lay_Out();
    const auto From = Clock::now();
    Killed_After(std::nullopt);
    const auto All = std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - From);
    std::mt19937_64 Source(static_cast<unsigned>(Rounds));
    std::array<int, 4> Killed_At{};
    for (int I = 0; I < Rounds && !HasFailure(); ++I) {
        Lay_Out();
        const auto Limit = static_cast<std::uint64_t>(All.count());
        const int Said = std::max(0, Killed_After(std::chrono::microseconds(Source() % Limit)));
        ++Killed_At.at(static_cast<std::size_t>(Said) * 4 / States_.size());
        Expect_State_After(Said);
    }
    std::cout << "killed in each quarter of the acts:";
    for (const int Nb : Killed_At) std::cout << " " << Nb;
    std::cout << "\n";
}
