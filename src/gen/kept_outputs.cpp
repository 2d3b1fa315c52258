// gen/kept_outputs.cpp - two directories, and for each output a note of where it belongs.
#include "gen/kept_outputs.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>

#include "core/model.h"
#include "core/numbers.h"
#include "core/program.h"
#include "core/resets.h"
#include "platform/append_file.h"
#include "platform/files.h"
#include "platform/paths.h"

namespace {

constexpr std::string_view Line_End = "\r\n";

std::string Closed_Dir() {
    return App_Path + "\\Temp\\Former";
}

std::string Open_Dir() {
    return App_Path + "\\Temp\\Former_Open";
}

struct Note {
    std::string Project, Path;
};

// Beside FILE.bgl stands FILE.txt: the project, then the path of the output. FILE.new alone says
// the same of an output that was made where none stood.
std::string Note_Path(std::string_view File) {
    return std::string(File.substr(0, File.size() - 4)) + ".txt";
}

std::string New_Note_Path(std::string_view File) {
    return std::string(File.substr(0, File.size() - 4)) + ".new";
}

std::optional<Note> Note_Read(const std::string& Path) {
    const std::optional<std::string> Text = File_Read(Path);
    if (!Text) return std::nullopt;
    const std::size_t End = Text->find(Line_End), Start = End + Line_End.size();
    if (End == std::string::npos || !Text->ends_with(Line_End) || Start >= Text->size())
        return std::nullopt;
    return Note{Text->substr(0, End), Text->substr(Start, Text->size() - Line_End.size() - Start)};
}

// A path as it holds wherever the program is started.
std::string Whole_Path(std::string_view Path) {
    if (Path.starts_with('\\') || Path.find(':') == 1) return std::string(Path);
    const auto Native = Native_Path(Path);
    return Native ? Program_Path(*Native).value_or(std::string(Path)) : std::string(Path);
}

bool Note_Write(std::string_view To, const std::string& Path) {
    File_Writer Out(To, File_Writer::Mode::In_Place);
    for (const std::string_view Text :
         {std::string_view(Nom_Projet), Line_End, std::string_view(Path), Line_End})
        Out.Put(Text);
    return Out.Commit();
}

void Forget(std::string_view File) {
    File_Delete(File);
    File_Delete(Note_Path(File));
}

// Found by their notes, since a link may lead nowhere from here.
std::vector<std::string> Files_Of_Set(const std::string& Dir) {
    std::vector<std::string> Files;
    for (const std::string& Path : Files_Matching(Dir + "\\", "*.txt")) {
        std::string File = Path.substr(0, Path.size() - 4) + ".bgl";
        if (File_Or_Link_Exists(File)) Files.push_back(std::move(File));
    }
    return Files;
}

// The open set, once something has asked for it.
struct Open_Set {
    std::map<std::string, std::string, std::less<>> File_Of;  // by the key of the output's path
    Long Last = 0;                                            // number of the last file

    std::string Next_File() { return Open_Dir() + "\\" + std::to_string(++Last) + ".bgl"; }
};

std::optional<Open_Set> The_Open_Set;
const bool Is_Reset = At_Reset([] { The_Open_Set.reset(); });

Open_Set& Opened() {
    if (The_Open_Set) return *The_Open_Set;
    Open_Set& Set = The_Open_Set.emplace();
    Dir_Create(Open_Dir());
    for (const std::string& Name : Dir_Files(Open_Dir())) {
        Long Number = 0;
        std::from_chars(Name.data(), Name.data() + Name.size(), Number);
        Set.Last = std::max(Set.Last, Number);
    }
    for (const std::string& File : Files_Of_Set(Open_Dir())) {
        if (const auto N = Note_Read(Note_Path(File))) Set.File_Of.emplace(File_Key(N->Path), File);
    }
    return Set;
}

bool Is_Of_Project(const Note& N) {
    return N.Project == Nom_Projet || File_Same(N.Project, Nom_Projet);
}

// Whether the only copy of an output is that of the set before.
bool Is_Last_Copy(const Note& N, const Open_Set& Newer) {
    return Is_Of_Project(N) && !File_Or_Link_Exists(N.Path) &&
           !Newer.File_Of.contains(File_Key(N.Path));
}

bool Keep(std::string_view From, std::string_view Path, Open_Set& Set) {
    const std::string File = Set.Next_File();
    if (!Note_Write(Note_Path(File), Whole_Path(Path)) || !File_Move(From, File)) {
        File_Delete(Note_Path(File));
        return false;
    }
    Set.File_Of[File_Key(Path)] = File;
    return true;
}

}  // namespace

bool Kept_Take(std::string_view Path) {
    Open_Set& Set = Opened();
    return Set.File_Of.contains(File_Key(Path)) ? File_Delete(Path) : Keep(Path, Path, Set);
}

bool Kept_Put_Back(std::string_view Path) {
    Open_Set& Set = Opened();
    const auto Found = Set.File_Of.find(File_Key(Path));
    if (Found == Set.File_Of.end() || !File_Move(Found->second, Path)) return false;
    Forget(Found->second);
    Set.File_Of.erase(Found);
    return true;
}

void Kept_Note_New(std::string_view Path) {
    Open_Set& Set = Opened();
    if (!Set.File_Of.contains(File_Key(Path)))
        Note_Write(New_Note_Path(Set.Next_File()), Whole_Path(Path));
}

bool Kept_Is_Open() {
    return Dir_Exists(Open_Dir());
}

void Kept_Close() {
    if (!Kept_Is_Open() && !Dir_Exists(Closed_Dir())) return;
    Open_Set& Set = Opened();
    for (const std::string& File : Files_Of_Set(Closed_Dir())) {
        const auto N = Note_Read(Note_Path(File));
        if (N && Is_Last_Copy(*N, Set) && !Keep(File, N->Path, Set))
            return;  // all stay as they are
        Forget(File);
    }
    for (const char* Pattern : {"*.txt", "*.new"})
        for (const std::string& Left : Files_Matching(Closed_Dir() + "\\", Pattern))
            File_Delete(Left);
    Dir_Delete(Closed_Dir());
    if (!Dir_Delete(Open_Dir())) File_Rename(Open_Dir(), Closed_Dir());
    The_Open_Set.reset();
}

std::vector<Kept_Output> Kept_Outputs() {
    std::vector<Kept_Output> Outputs;
    for (const std::string& File : Files_Of_Set(Closed_Dir())) {
        const auto N = Note_Read(Note_Path(File));
        if (N && Is_Of_Project(*N)) Outputs.push_back({.File = File, .Path = N->Path});
    }
    for (const std::string& Path : Files_Matching(Closed_Dir() + "\\", "*.new")) {
        const auto N = Note_Read(Path);
        if (N && Is_Of_Project(*N)) Outputs.push_back({.File = {}, .Path = N->Path});
    }
    return Outputs;
}

void Kept_Forget(const Kept_Output& Output) {
    Forget(Output.File);
}
