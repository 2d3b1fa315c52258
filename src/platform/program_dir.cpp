// platform/program_dir.cpp - choosing and filling the directory of the program.
#include "platform/program_dir.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <system_error>

#include "platform/files.h"
#include "platform/paths.h"
#include "platform/system.h"
#include "platform/text1252.h"

namespace fs = std::filesystem;

namespace {

constexpr const char* Resource = "Resource";

// Reference files are the user's: one that was deleted stays away.
bool Is_Sample(std::string_view Name) {
    return Name.size() > 4 && Equal_No_Case(Name.substr(Name.size() - 4), ".Ref");
}

std::optional<fs::path> Own_Program_Dir() {
    const std::optional<fs::path> Program = Own_Program();
    if (!Program) return std::nullopt;
    return Program->parent_path();
}

// The program's own directory where it is unpacked as a whole and belongs to the user.
std::optional<fs::path> Usable_Own_Dir() {
    std::optional<fs::path> Own = Own_Program_Dir();
    std::error_code Error;
    if (!Own || !fs::is_directory(*Own / Resource, Error)) return std::nullopt;
    if (!Dir_Writable(*Own) || !Dir_Writable(*Own / Resource)) return std::nullopt;
    return Own;
}

// Where an installation keeps the resources that a new directory is filled from.
std::optional<std::string> Installed_Resources() {
    const std::optional<fs::path> Own = Own_Program_Dir();
    if (!Own) return std::nullopt;
    const std::array<fs::path, 2> Places = {*Own / Resource,
                                            Own->parent_path() / "share" / "terrafold" / Resource};
    std::error_code Error;
    for (const fs::path& Place : Places)
        if (fs::is_directory(Place, Error)) return Program_Path(Place);
    return std::nullopt;
}

}  // namespace

std::optional<std::string> Own_Dir() {
    const std::optional<fs::path> Own = Own_Program_Dir();
    return Own ? Program_Path(*Own) : std::nullopt;
}

std::optional<std::string> Find_App_Dir() {
    if (auto Named = Env_Program_Path("TERRAFOLD_HOME")) {
        if (Named->empty()) return std::nullopt;
        if (Named->size() > 1 && Named->back() == '\\') Named->pop_back();
        return Named;
    }
    if (const auto Own = Usable_Own_Dir()) return Program_Path(*Own);
    const std::optional<fs::path> Data = User_Data_Dir();
    return Data ? Program_Path(*Data) : std::nullopt;
}

bool Prepare_App_Dir(std::string_view Dir) {
    const std::string Own = std::string(Dir) + "\\" + Resource + "\\";
    if (!Dir_Create(Own)) return false;
    const std::optional<fs::path> Native = Native_Path(Own);
    if (!Native || !Dir_Writable(*Native) || !Dir_Writable(Native->parent_path())) return false;
    std::optional<std::string> Installed = Installed_Resources();
    if (!Installed) return true;
    *Installed += "\\";
    const bool Is_First_Start = Dir_Files(Own).empty();
    for (const std::string& Name : Dir_Files(*Installed)) {
        if (!Is_First_Start && Is_Sample(Name)) continue;
        const std::string Copy = Own + Name;
        if (!File_Exists(Copy) && !File_Copy(*Installed + Name, Copy)) return false;
    }
    return true;
}
