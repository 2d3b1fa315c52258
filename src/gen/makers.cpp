// gen/makers.cpp - makers by their tools, and outputs by their makers.
#include "gen/makers.h"

#include <algorithm>
#include <span>

#include "core/host.h"
#include "core/model.h"
#include "core/project_paths.h"
#include "gen/source_frame.h"
#include "platform/text1252.h"

namespace {

constexpr const char* Of_Assembler[] = {"bglc.exe"};
constexpr const char* Of_Night_Lights[] = {"scasm.exe"};
constexpr const char* Of_Class_Builder[] = {"ResampleV11.exe", "tmfcompress.exe", "tmf2bgl.exe"};

std::span<const char* const> Tools_Of(Maker M) {
    switch (M) {
        case Maker::Night_Lights:
            return Of_Night_Lights;
        case Maker::Class_Builder:
            return Of_Class_Builder;
        default:
            return Of_Assembler;
    }
}

}  // namespace

std::vector<std::string> Missing_Tools(Maker M) {
    std::vector<std::string> Missing;
    for (const char* Name : Tools_Of(M))
        if (std::string Path = Source_Path(Name); !The_Host().Has_Tool(Path))
            Missing.push_back(std::move(Path));
    return Missing;
}

// Files of lights are "_9" and three digits or more.
Maker Maker_Of(std::string_view Bgl) {
    constexpr std::string_view Least = "_9000.bgl";
    const std::string Stem = Bgl_Stem();
    const bool Is_Exclusions = Equal_No_Case(Bgl, In_Project(NameBglExcl));
    if (Is_Exclusions || Bgl.size() < Stem.size() + Least.size()) return Maker::Assembler;
    return Bgl.substr(Stem.size()).starts_with("_9") ? Maker::Night_Lights : Maker::Assembler;
}
