// examples/make_example.cpp - makes the example project ready in a directory: paints its map
// beside a copy of it. Its paths go from where it lies, so that the directory can be moved.
#include <cstdio>
#include <filesystem>

#include "core/host.h"
#include "core/lifecycle.h"
#include "core/model.h"
#include "core/project_file.h"
#include "map_painter.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace {

// A box means that something went wrong; it is shown where the build shows it.
class Build_Host : public Silent_Host {
public:
    Int Show_Box(const Box& B) override {
        std::fprintf(stderr, "make_example: %s\n", B.Text.c_str());
        return Silent_Host::Show_Box(B);
    }
};

}  // namespace

int main(int argc, char** argv) {
    if (argc != 3) {
        std::fputs("usage: make_example PROJECT DIRECTORY\n", stderr);
        return 2;
    }
    Build_Host Host;
    const Host_Scope Scope(Host);
    const std::filesystem::path Dir = argv[2];
    const auto Project = Program_Path(argv[1]);
    const auto Home = Program_Path(Dir);
    if (!Project || !Home || !Load_Project(*Project)) return 1;
    const bool Made = Dir_Create(*Home + "\\" + Dir_LCWC) && Dir_Create(*Home + "\\" + Dir_Raw) &&
                      Paint_Map(Dir / "Island.bmp") && Save_Project(1, *Home + "\\Island.LWM");
    return Made ? 0 : 1;
}
