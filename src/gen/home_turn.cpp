// gen/home_turn.cpp - a locked file in the home's Temp.
#include "gen/home_turn.h"

#include <string>
#include <utility>

#include "core/host.h"
#include "core/program.h"
#include "platform/append_file.h"
#include "platform/files.h"
#include "platform/paths.h"

struct Home_Turn::Lock {
    explicit Lock(std::string Where) : Path(std::move(Where)) {}
    ~Lock() { File.Delete(Path); }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

    bool Take() { return File.Claim(Path) || File.Create(Path); }

    std::string Path;
    Append_File File;
};

std::weak_ptr<Home_Turn::Lock> Home_Turn::Held_;

// A file that goes between the two tries was another program's, whose turn is over. A home in
// which none can be made is nobody's, and fails in its own words.
Home_Turn::Home_Turn() : Lock_(Held_.lock()) {
    if (Lock_) return;
    Dir_Create(App_Path + "\\Temp");
    auto New = std::make_shared<Lock>(App_Path + "\\Temp\\Generation.lock");
    const auto Is_Free = [&] { return !File_Exists(New->Path); };
    if (New->Take() || (Is_Free() && (New->Take() || Is_Free())))
        Held_ = Lock_ = std::move(New);
    else
        Plain_Box(In_Language("Another generation is running in this directory: ",
                              "Une autre g\xE9n\xE9ration est en cours dans ce r\xE9pertoire : ") +
                  Shown_Path(App_Path));
}
