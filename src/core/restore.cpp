// core/restore.cpp - at the start of the program: journals that a crash has left behind.
#include "core/restore.h"

#include <optional>
#include <string>

#include "core/history.h"
#include "core/host.h"
#include "core/journal_read.h"
#include "core/lifecycle.h"
#include "core/model_ops.h"
#include "core/model_sound.h"
#include "core/program.h"
#include "core/project_file.h"
#include "core/view_calls.h"
#include "platform/append_file.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace {

constexpr char Kept_Mark[] = "_kept_";

std::string Number(std::size_t N) {
    return std::to_string(N);
}

bool Ask(const std::string& Text) {
    return The_Host().Show_Box({.Text = Text, .Style = Box_Question + Box_Yes_No}) == Button_Yes;
}

std::string What_It_Holds(const Journal& J) {
    const std::string Steps = Number(J.Nb_Acts()), Time(J.Steps.back().Time),
                      Of(Shown_Path(J.Path));
    return In_Language("Terrafold did not end properly. The journal holds what was not saved of ",
                       "Terrafold ne s'est pas termin\xE9 normalement. Le journal contient ce qui "
                       "n'\xE9tait pas enregistr\xE9 de ") +
           Of + "\r\n" + In_Language("Steps: ", "Etapes : ") + Steps +
           In_Language(", the last at ", ", la derni\xE8re \xE0 ") + Time + "\r\n" +
           In_Language("Do you want to restore it ?", "Voulez-vous le restaurer ?");
}

void Tell_Damage() {
    Plain_Box(
        In_Language("The journal is damaged: it does not lead to a sound project. Nothing "
                    "is restored; the project file is as it was. ",
                    "Le journal est endommag\xE9 : il ne m\xE8ne pas \xE0 un projet sain. "
                    "Rien n'est restaur\xE9 ; le fichier du projet est rest\xE9 comme avant. "));
}

// A name beside the project's that no file has.
std::string Copy_Path(std::string_view Path) {
    std::string Stem(Path.substr(0, Path.rfind('.')));
    Stem += In_Language(" restored", " restaur\xE9");
    std::string Copy = Stem + ".LWM";
    for (int I = 2; File_Exists(Copy); ++I) Copy = Stem + " " + std::to_string(I) + ".LWM";
    return Copy;
}

// The model as it was when the steps began, under the name Path.
bool Load_Base(const Journal& J, const std::string& Path) {
    if (J.Model.empty()) {
        if (!Load_Project(J.Path)) return false;
    } else {
        if (!History_Set_Model(J.Model) || !Model_Is_Sound()) {
            Model_Reset();
            Tell_Damage();
            return false;
        }
        Projet_Open = 1;
        Call(The_View.Ima_Load);
    }
    Nom_Projet = Path;
    return true;
}

// How many records are done again; it stops at one that does not fit. Nothing is shown before it
// is known that what they lead to holds together; nothing is done when it does not.
std::optional<std::size_t> Do_Steps(const Journal& J) {
    std::size_t Done = 0;
    for (const Journal_Entry& E : J.Steps) {
        if (!History_Do(E.Bytes, E.Flags.Joins_Last)) break;
        ++Done;
    }
    if (!Model_Is_Sound()) {
        Model_Reset();
        Close_View();
        Tell_Damage();
        return std::nullopt;
    }
    Call(The_View.Ima_Load);
    Call(The_View.View_Redraw);
    Call(The_View.History_Show);
    return Done;
}

// A file that was copied to and fro has another time, and is the same.
bool Has_Contents_Of(const std::string& Path, const Project_Mark& M) {
    const auto Now = Project_Mark_Of(Path);
    return Now && Now->Size == M.Size && Now->Sum == M.Sum;
}

// The program ended after a save and before its journal began afresh.
bool Is_In_The_File(const Journal& J) {
    if (!J.Saved_As) return false;
    const auto Now = Project_Mark_Of(J.Path);
    return Now && Now->Sum == *J.Saved_As;
}

enum class Outcome { Restored, Partly, Not_Opened, Unwanted };

Outcome Restore(const Journal& J) {
    std::string Path(J.Path);
    if (!Ask(What_It_Holds(J))) return Outcome::Unwanted;
    const bool Same = J.Mark ? Has_Contents_Of(Path, *J.Mark) : !File_Exists(Path);
    if (!Same) {
        if (!Ask(In_Language("The project file has changed since, or is gone. Do you want to "
                             "restore into a copy beside it ?",
                             "Le fichier du projet a chang\xE9 depuis, ou n'existe plus. "
                             "Voulez-vous restaurer dans une copie \xE0 c\xF4t\xE9 ?")))
            return Outcome::Unwanted;
        Path = Copy_Path(Path);
    }
    if (!Open_Restored([&] { return Load_Base(J, Path); }, Same && J.Mark && J.Model.empty()))
        return Outcome::Not_Opened;
    const auto Done = Do_Steps(J);
    if (!Done) return Outcome::Not_Opened;
    Journal_Sync();
    if (*Done == J.Steps.size()) return Outcome::Restored;
    Plain_Box(In_Language("Not all steps fit the project file as it is now; restored: ",
                          "Certaines \xE9tapes ne conviennent pas au fichier du projet tel "
                          "qu'il est maintenant ; restaur\xE9 : ") +
              Number(*Done) + " / " + Number(J.Steps.size()));
    return Outcome::Partly;
}

bool Was_Kept(const std::string& Path) {
    return Path_Name(Path).find(Kept_Mark) != std::string_view::npos;
}

// Windows renames and deletes no file that is open.
void Keep_Once_More(Append_File& Claimed, const std::string& Path) {
    Claimed.Close();
    const std::string Kept = Journal_Free_Path(Kept_Mark);
    if (Was_Kept(Path) || !File_Rename(Path, Kept)) return;
    Plain_Box(In_Language("The journal is kept once more: ",
                          "Le journal est gard\xE9 encore une fois : ") +
              Shown_Path(Kept));
}

void Drop(Append_File& Claimed, const std::string& Path) {
    Claimed.Close();
    File_Delete(Path);
}

// True when a project was opened.
bool Offer(const std::string& Path) {
    Append_File Claimed;
    if (!Claimed.Claim(Path)) return false;  // in use
    const auto Bytes = File_Read(Path);
    if (!Bytes) return false;
    const Journal J = Journal_Read(*Bytes);
    if (J.What == Journal::State::Newer || J.What == Journal::State::Other_Machine) {
        Plain_Box(In_Language("A journal of a newer version, or of another machine, is left as "
                              "it is: ",
                              "Un journal d'une version plus r\xE9"
                              "cente, ou d'une autre machine, est laiss\xE9 tel quel : ") +
                  Shown_Path(Path));
        return false;
    }
    if (J.Steps.empty() || Is_In_The_File(J)) {
        Drop(Claimed, Path);
        return false;
    }
    switch (Restore(J)) {
        case Outcome::Restored:
            Drop(Claimed, Path);
            return true;
        case Outcome::Partly:
            Keep_Once_More(Claimed, Path);
            return true;
        case Outcome::Not_Opened:
            Keep_Once_More(Claimed, Path);
            return false;
        case Outcome::Unwanted:
            if (Was_Kept(Path))
                Drop(Claimed, Path);
            else
                Keep_Once_More(Claimed, Path);
            return false;
    }
    return false;
}

}  // namespace

bool Offer_Restore() {
    for (const std::string& Path : Files_Matching(App_Path + "\\Temp\\Journal", "*.jnl"))
        if (Offer(Path)) return true;
    return false;
}
