// gen/outputs.cpp - what of a project's outputs may be touched, and how the older ones go.
#include "gen/outputs.h"

#include <set>
#include <string>

#include "core/host.h"
#include "core/model.h"
#include "core/program.h"
#include "core/resets.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text1252.h"

namespace {

using Keys = std::set<std::string, std::less<>>;

Keys Own_Files;  // of the project, from the first question of a generation on
Keys Refused;    // outputs that a box has told of
const bool Is_Reset = At_Reset(Outputs_Begin);

void Protect(std::string_view Path) {
    Own_Files.insert(File_Key(Path));
    Own_Files.insert(File_Key(Path, true));
}

void Protect_All() {
    Protect(Nom_Projet);
    Protect(Carte);
    Protect(File_Locate(Carte, Nom_Projet));
    for (const Ima& M : Tab_Ima.Rows()) {
        Protect(M.DirFic);
        for (const std::string& Name : M.Texture_Name)
            Protect(std::string(Path_Dir(M.DirFic)) + Name);
    }
    Own_Files.insert("");  // what no path has
}

bool Is_Own_File(std::string_view Path) {
    if (Own_Files.empty()) Protect_All();
    const std::string Key = File_Key(Path);
    return !Key.empty() && Own_Files.contains(Key);
}

bool Has_Name_Of_Output(std::string_view Path) {
    constexpr std::string_view Extension = ".bgl";
    return Path.size() >= Extension.size() &&
           Equal_No_Case(Path.substr(Path.size() - Extension.size()), Extension);
}

}  // namespace

void Outputs_Begin() {
    Own_Files.clear();
    Refused.clear();
}

bool Bgl_May_Be_Made(std::string_view Path) {
    const bool Is_Named = Has_Name_Of_Output(Path);
    if (Is_Named && !Is_Own_File(Path)) return true;
    if (!Refused.emplace(Path).second) return false;
    const char* Why =
        Is_Named ? In_Language("This output is a file of the project itself: ",
                               "Ce fichier de sortie appartient au projet lui-m\xEAme : ")
                 : In_Language("This output is passed over, its name does not end in .bgl: ",
                               "Ce fichier de sortie est omis, son nom ne finit pas par .bgl : ");
    Plain_Box(Why + std::string(Path));
    return false;
}

void Bgl_Delete(std::string_view Path) {
    if (!File_Or_Link_Exists(Path) || !Bgl_May_Be_Made(Path)) return;
    if (The_Host().Is_Dry_Run())
        The_Host().Note_File(File_Event::Would_Delete, Path);
    else if (File_Delete(Path))
        The_Host().Note_File(File_Event::Deleted, Path);
}
