// core/project_watch.cpp - the mark that a project file had, and the question when it has another.
#include "core/project_watch.h"

#include <optional>
#include <string>

#include "core/host.h"
#include "core/program.h"
#include "core/resets.h"
#include "platform/append_file.h"
#include "platform/paths.h"

namespace {

struct Seen_File {
    std::string Path;  // "" when none has been seen
    std::optional<File_Mark> Mark;
};

Seen_File Seen;
const bool Is_Reset = At_Reset(Project_Unseen);

}  // namespace

void Project_Seen(std::string_view Path) {
    Seen = {.Path = std::string(Path), .Mark = File_Mark_Of(Path)};
}

void Project_Seen_First(std::string_view Path) {
    if (Seen.Path != Path) Project_Seen(Path);
}

void Project_Unseen() {
    Seen = {};
}

bool Project_May_Be_Replaced(std::string_view Path) {
    if (Seen.Path != Path) return true;
    const auto Now = File_Mark_Of(Path);
    if (!Now || Now == Seen.Mark) return true;
    const Int Answer = The_Host().Show_Box(
        {.Text = In_Language("Another program has changed the project file since it was opened:",
                             "Un autre programme a modifi\xE9 le fichier du projet depuis son "
                             "ouverture :") +
                 ("\r\n" + Shown_Path(Path) + "\r\n") +
                 In_Language("Do you want to replace it ?", "Voulez-vous le remplacer ?"),
         .Style = Box_Question + Box_Yes_No});
    return Answer == Button_Yes;
}
