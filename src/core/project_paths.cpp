// core/project_paths.cpp - paths without a root, from the project's directory.
#include "core/project_paths.h"

#include "core/model.h"
#include "platform/paths.h"
#include "platform/text1252.h"

namespace {

bool Has_Root(std::string_view Path) {
    return Path.starts_with('\\') || Path.starts_with('/') || Path.substr(0, 2).ends_with(':');
}

}  // namespace

std::string In_Project(std::string_view Path) {
    if (Path.empty() || Has_Root(Path)) return std::string(Path);
    return std::string(Path_Dir(Nom_Projet)) + std::string(Path);
}

std::string As_Project_Holds(std::string_view Path, std::string_view Former) {
    const std::string_view Dir = Path_Dir(Nom_Projet);
    const bool Is_Below =
        Path.size() > Dir.size() && Equal_No_Case(Path.substr(0, Dir.size()), Dir);
    if (!Former.empty() && !Has_Root(Former) && !Dir.empty() && Is_Below)
        Path.remove_prefix(Dir.size());
    return std::string(Path);
}

std::string Map_Path() {
    return File_Locate(In_Project(Carte), Nom_Projet);
}
