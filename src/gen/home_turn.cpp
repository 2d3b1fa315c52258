// gen/home_turn.cpp - a locked file in the home's Temp.
#include "gen/home_turn.h"

#include "core/host.h"
#include "core/program.h"
#include "platform/append_file.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace {

std::weak_ptr<Append_File> Held;

}  // namespace

// The file stays when the turn is over: to delete it would let two programs lock two files of
// that name. A home in which it can't be made is nobody's, and fails in its own words.
Home_Turn::Home_Turn() : Lock_(Held.lock()) {
    if (Lock_) return;
    const std::string Path = App_Path + "\\Temp\\Generation.lock";
    Dir_Create(App_Path + "\\Temp");
    auto Lock = std::make_shared<Append_File>();
    if (Lock->Claim(Path) || Lock->Create(Path) || !File_Exists(Path))
        Held = Lock_ = std::move(Lock);
    else
        Plain_Box(In_Language("Another generation is running in this directory: ",
                              "Une autre g\xE9n\xE9ration est en cours dans ce r\xE9pertoire : ") +
                  Shown_Path(App_Path));
}
