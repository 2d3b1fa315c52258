// ui/dialogs/dir_lists.cpp - a list of drives and one of directories.
#include "ui/dialogs/dir_lists.h"

#include <algorithm>
#include <utility>

#include "core/program.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/text1252.h"
#include "ui/form/field_rules.h"

namespace {

constexpr char Up[] = "..";

// Path without a final backslash, roots excepted.
std::string Bare(std::string Path) {
    const bool Is_Root = Path == "\\" || (Path.size() == 3 && Path[1] == ':');
    if (!Is_Root && Path.ends_with('\\')) Path.pop_back();
    return Path;
}

// Path, or the directory round it that is there; App_Path when none is.
std::string There_Of(std::string Path) {
    while (!Path.empty() && !Dir_Exists(Path)) {
        const std::string Above = Bare(std::string(Path_Dir(Bare(Path))));
        if (Above == Path) break;
        Path = Above;
    }
    return Path.empty() || !Dir_Exists(Path) ? App_Path : Path;
}

// The root of Path among Drives: the longest that begins it, 0 when there is none.
std::size_t Root_Of(const std::string& Path, const std::vector<std::string>& Drives) {
    std::size_t Best = 0;
    for (std::size_t I = 0; I < Drives.size(); ++I) {
        const std::string_view Start = std::string_view(Path).substr(0, Drives[I].size());
        if (Equal_No_Case(Start, Drives[I]) && Drives[I].size() > Drives[Best].size()) Best = I;
    }
    return Best;
}

// A drive of Wine goes by its letter.
std::vector<std::string> Shown(std::vector<std::string> Drives) {
    for (std::string& Drive : Drives)
        if (Drive == "\\") Drive = Shown_Path(Drive);
    return Drives;
}

}  // namespace

std::string Path_Joined(const std::string& Dir, const std::string& Name) {
    return Dir.ends_with('\\') ? Dir + Name : Dir + "\\" + Name;
}

Dir_Lists::Dir_Lists(Form& F, Events E) : Form_(F), Events_(std::move(E)), Drives_(Drive_List()) {
    F.Add({.Kind = Control_Kind::Text,
           .Name = "Path",
           .Words = {"Path:", "Chemin :"},
           .Rule = {.Accept = [this](const std::string& Text) { return Take_Path(Text); },
                    .Held = [this] { return Shown_Path(Dir_); },
                    .Allowed = Dir_That_Is_There},
           .Columns = 48});
    F.Add({.Kind = Control_Kind::Combo,
           .Name = "Drive1",
           .Words = {"Drive:", "Lecteur :"},
           .Items = Shown(Drives_),
           .On_Click = [this] { Change_Drive(); }});
    F.Add({.Kind = Control_Kind::List,
           .Name = "Dir1",
           .Columns = 48,
           .Value = -1,
           .On_Double_Click = [this] { Go_Into(); }});
}

void Dir_Lists::Show(const std::string& Path) {
    List_Dir(There_Of(Path));
}

void Dir_Lists::List_Dir(const std::string& Path) {
    Dir_ = Bare(Path);
    std::vector<std::string> Names = Dir_Dirs(Dir_);
    const bool Is_Root = Dir_.ends_with('\\');
    if (!Is_Root) Names.insert(Names.begin(), Up);
    Form_.Set_Text("Path", Shown_Path(Dir_));
    Form_.Set_Value("Drive1", static_cast<Long>(Root_Of(Dir_, Drives_)));
    Form_.Set_Items("Dir1", std::move(Names), -1);
    if (Events_.On_Dir) Events_.On_Dir();
}

// Typed or pasted, in the system's form or the program's.
bool Dir_Lists::Take_Path(std::string Text) {
    std::ranges::replace(Text, '/', '\\');
    const bool Has_Root = Text.starts_with('\\') || Text.substr(0, 3).ends_with(":\\");
    if (!Has_Root || !Dir_Exists(Text)) return false;
    List_Dir(Text);
    return true;
}

void Dir_Lists::Change_Drive() {
    const std::string& Drive = Drives_[static_cast<std::size_t>(Form_["Drive1"].Value)];
    if (Dir_Exists(Drive)) return List_Dir(Drive);
    if (Events_.On_Not_Ready) Events_.On_Not_Ready(Drive);
    Form_.Set_Value("Drive1", static_cast<Long>(Root_Of(Dir_, Drives_)));
}

void Dir_Lists::Go_Into() {
    const Control& List = Form_["Dir1"];
    if (List.Value < 0) return;
    const std::string Name = List.Items[static_cast<std::size_t>(List.Value)];
    const std::string To = Name == Up ? std::string(Path_Dir(Dir_)) : Path_Joined(Dir_, Name);
    if (Dir_Exists(To)) List_Dir(To);  // it may have gone since it was listed
}
