// gen/outputs.cpp - what of a project's outputs may be touched, and how the older ones go.
#include "gen/outputs.h"

#include <set>
#include <string>
#include <utility>

#include "core/host.h"
#include "core/model.h"
#include "core/program.h"
#include "core/project_paths.h"
#include "core/resets.h"
#include "gen/generation_host.h"
#include "gen/kept_outputs.h"
#include "gen/source_frame.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text1252.h"

namespace {

using Keys = std::set<std::string, std::less<>>;

Keys Own_Files;     // of the project, from the first question of a generation on
Keys Refused;       // outputs that a box has told of
std::string Aside;  // the output that Bgl_Set_Aside has moved away
std::vector<Output_Fact> Facts;
const bool Is_Reset = At_Reset(Outputs_Begin);

void Protect(std::string_view Path) {
    Own_Files.insert(File_Key(Path));
    Own_Files.insert(File_Key(Path, true));
}

void Protect_All() {
    Protect(Nom_Projet);
    Protect(In_Project(Carte));
    Protect(Map_Path());
    for (const Ima& M : Tab_Ima.Rows()) {
        const std::string Picture = In_Project(M.DirFic);
        Protect(Picture);
        for (const std::string& Name : M.Texture_Name)
            Protect(std::string(Path_Dir(Picture)) + Name);
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

// Tells why an output is passed over, once.
void Pass_Over(std::string_view Path, const std::string& Why) {
    if (!Refused.emplace(Path).second) return;
    Facts.push_back({.Path = std::string(Path), .State = Output_State::Passed_Over});
    Plain_Box(Why + Shown_Path(Path));
}

bool Is_Kept(std::string_view Path) {
    if (Kept_Take(Path)) return true;
    Pass_Over(Path, In_Language("This output is passed over, the older one cannot be kept: ",
                                "Ce fichier de sortie est omis, l'ancien ne peut \xEAtre "
                                "gard\xE9 : "));
    return false;
}

// "_" and digits, as outputs have behind their stem: what else matches is another's.
bool Is_Numbered(std::string_view Path, std::size_t Stem_Size) {
    Path.remove_prefix(Stem_Size + 1);
    Path.remove_suffix(std::string_view(".bgl").size());
    return !Path.empty() && Path.find_first_not_of("0123456789") == std::string_view::npos;
}

}  // namespace

const std::vector<Output_Fact>& Output_Facts() {
    return Facts;
}

void Outputs_Begin() {
    Own_Files.clear();
    Refused.clear();
    Facts.clear();
}

void Outputs_End() {
    if (Aside.empty()) return;
    Kept_Put_Back(Aside);
    Facts.push_back({.Path = std::exchange(Aside, {}), .State = Output_State::Ended});
}

bool Bgl_May_Be_Made(std::string_view Path) {
    if (Refused.contains(Path)) return false;
    const bool Is_Named = Has_Name_Of_Output(Path);
    if (Is_Named && !Is_Own_File(Path)) return true;
    Pass_Over(Path, Is_Named
                        ? In_Language("This output is a file of the project itself: ",
                                      "Ce fichier de sortie appartient au projet lui-m\xEAme : ")
                        : In_Language("This output is passed over, its name does not end in .bgl: ",
                                      "Ce fichier de sortie est omis, son nom ne finit pas par "
                                      ".bgl : "));
    return false;
}

void Bgl_Delete(std::string_view Path) {
    if (!File_Or_Link_Exists(Path) || !Bgl_May_Be_Made(Path)) return;
    if (The_Host().Is_Dry_Run())
        The_Host().Note_File(File_Event::Would_Delete, Path);
    else if (Is_Kept(Path))
        The_Host().Note_File(File_Event::Deleted, Path);
}

bool Bgl_Set_Aside(std::string_view Path) {
    if (!The_Host().Starts_Tools() || !File_Or_Link_Exists(Path)) return true;
    if (!Is_Kept(Path)) return false;
    Aside = Path;
    return true;
}

void Bgl_Ended(std::string_view Path, bool Have_Run) {
    if (Refused.contains(Path)) return;
    Output_State State = Have_Run ? Output_State::Made : Output_State::Not_Started;
    if (Tool_Was_Ended()) {
        File_Delete(Path);  // no more than a part of it
        State = Output_State::Ended;
        if (Aside == Path) Kept_Put_Back(Path);
    } else if (The_Host().Starts_Tools() && !File_Exists(Path)) {
        if (Aside == Path) Kept_Put_Back(Path);
        if (Have_Run) State = Output_State::Missing;
    }
    if (The_Host().Starts_Tools() && State == Output_State::Made) Kept_Note_New(Path);
    Aside.clear();
    Facts.push_back({.Path = std::string(Path), .State = State});
    if (State == Output_State::Missing) The_Host().Note_File(File_Event::Missing, Path);
}

void Delete_Older_Outputs(bool (*Is_Left_Out)(Maker)) {
    if (!NameBglExcl.empty() && !Is_Left_Out(Maker::Assembler)) Bgl_Delete(In_Project(NameBglExcl));
    const std::string Stem = Bgl_Stem();
    for (const std::string& Path : Files_Matching(Stem, "_*.bgl"))
        if (Is_Numbered(Path, Stem.size()) && !Is_Left_Out(Maker_Of(Path))) Bgl_Delete(Path);
}
