// bench/dry_host.h - the host of a generation that is measured: no tool runs, sources are counted.
#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <string>
#include <vector>

#include "core/host.h"
#include "core/lifecycle.h"
#include "core/model.h"
#include "core/program.h"
#include "measure.h"
#include "platform/paths.h"

class Dry_Host : public Silent_Host {
public:
    /// What the program shows while it works, and what it has done meanwhile.
    struct Stage {
        std::string Name;
        double Cpu = 0.0;  // seconds
        std::uintmax_t Bytes = 0;
    };

    std::uintmax_t Bytes = 0;  // of the files written
    Long Nb_Messages = 0;
    std::vector<Stage> Stages{{"checks"}};

    /// Ends the last stage.
    void Mark() {
        const double Now = measure::Cpu_Seconds();
        Stages.back().Cpu += Now - Last_;
        Last_ = Now;
    }

    void Set_Caption(std::string_view Control, std::string_view Text) override {
        if (Control == "LCompileNom") Name_ = Text;
        const bool Is_Count = Text.find_first_not_of("0123456789") == std::string_view::npos;
        if (Control != "LCompile" || Is_Count) return;
        // Some stages go by their tool alone.
        const std::string Now = Text == "BGLC.exe" ? Name_ : std::string(Text);
        if (Now == Stages.back().Name) return;
        Mark();
        Stages.push_back({Now});
    }

    Int Show_Box(const Box& B) override {
        std::printf("message %d %s\n", B.Num, B.Text.c_str());
        ++Nb_Messages;
        return Silent_Host::Show_Box(B);
    }
    bool Run_Tool(std::string_view, Int) override { return true; }
    void Note_File(File_Event Event, std::string_view Path) override {
        if (Event != File_Event::Written) return;
        const std::uintmax_t Size = std::filesystem::file_size(*Native_Path(Path));
        Bytes += Size;
        Stages.back().Bytes += Size;
    }

private:
    std::string Name_;
    double Last_ = measure::Cpu_Seconds();
};

/// A directory of its own for sources and outputs, gone at the end of the scope.
class Scratch_Dir {
public:
    Scratch_Dir() {
        std::filesystem::create_directories(Dir_ / "Resource");
        const std::string Path = Program_Path(Dir_).value();
        Set_App_Path(Path);
        NameBgl = Path + "\\Out.bgl";
        NameBglExcl = Path + "\\Excl.bgl";
        Dir_LCWC = Dir_Raw = Path;
    }
    ~Scratch_Dir() {
        std::error_code Ignored;
        std::filesystem::remove_all(Dir_, Ignored);
    }
    Scratch_Dir(const Scratch_Dir&) = delete;
    Scratch_Dir& operator=(const Scratch_Dir&) = delete;

private:
    std::filesystem::path Dir_ = std::filesystem::temp_directory_path() / "terrafold_bench";
};
