// core/journal.cpp - writing the journal.
#include "core/journal.h"

#include <algorithm>
#include <cstring>
#include <memory>
#include <optional>

#include "core/history.h"
#include "core/host.h"
#include "core/program.h"
#include "core/resets.h"
#include "core/within_memory.h"
#include "platform/append_file.h"
#include "platform/clock.h"
#include "platform/files.h"

namespace {

struct Journal_State {
    std::unique_ptr<Append_File> File;
    std::string Path;
    std::optional<Project_Mark> Base;  // of the project file, for a journal to be made yet
    bool Is_On = false;
    bool Has_Steps = false;
    bool As_On_Disk = false;
    bool Has_Failed = false;
};

Journal_State The_Journal;
const bool Is_Reset = At_Reset([] { The_Journal = {}; });

constexpr int Most_Journals = 1000;

// What stands before the bytes of a record.
std::string Record_Head(std::string_view Bytes) {
    Byte_Writer Out;
    Out.Put(static_cast<std::uint32_t>(Bytes.size()));
    Out.Put(Bytes_Sum(Bytes));
    return std::move(Out.Bytes);
}

std::string Head() {
    Byte_Writer Out;
    Out.Bytes = Journal_Magic;
    Out.Put(Journal_Version);
    Out.Put(Byte_Order_Mark);
    return Out.Bytes;
}

std::string Base_Record(const std::optional<Project_Mark>& Base, bool With_Model) {
    Byte_Writer Out;
    Out.Put(Journal_Record::Base);
    Out.Put_Text(Nom_Projet);
    Out.Put(static_cast<Byte>(Base ? 1 : 0));
    const Project_Mark M = Base.value_or(Project_Mark{});
    Out.Put(M.Size), Out.Put(M.Time), Out.Put(M.Sum);
    Out.Put_Text(With_Model ? Step_Of_Whole_Model() : std::string());
    return std::move(Out.Bytes);
}

// Told once a project: work goes on, and a save begins anew.
void Fail() {
    if (The_Journal.Has_Failed) return;
    The_Journal.Has_Failed = true;
    Plain_Box(In_Language(
        "The journal cannot be written: what you do from now on would be lost in a crash. "
        "Saving is not affected. ",
        "Le journal ne peut pas \xEAtre \xE9"
        "crit : ce que vous faites d\xE9sormais serait perdu en cas de panne. "
        "L'enregistrement n'est pas concern\xE9. "));
}

void Drop_File() {
    Journal_State& J = The_Journal;
    J.File.reset();
    if (!J.Path.empty()) File_Delete(J.Path);
    J.Path.clear();
}

// The former journal goes when the new one stands.
bool Begin_File(bool With_Model) {
    Journal_State& J = The_Journal;
    auto File = std::make_unique<Append_File>();
    std::string Path;
    for (int Try = 0; Try < 3 && !File->Is_Open(); ++Try) {
        Path = Journal_Free_Path("");
        if (!Path.empty()) File->Create(Path);
    }
    bool Whole = false;
    Within_Memory([&] {
        const std::string Base = Base_Record(J.Base, With_Model);
        Whole = File->Is_Open() && File->Append(Head() + Record_Head(Base)) && File->Append(Base);
    });
    if (File->Is_Open() && !Whole) {
        File.reset();
        File_Delete(Path);
    }
    if (!Whole) return false;
    Drop_File();
    J.File = std::move(File);
    J.Path = Path;
    return true;
}

}  // namespace

std::optional<Project_Mark> Project_Mark_Of(std::string_view Path,
                                            std::optional<std::uint64_t> Sum) {
    const auto Mark = File_Mark_Of(Path);
    if (!Mark) return std::nullopt;
    if (!Sum) {
        const auto Text = File_Read(Path);
        if (!Text) return std::nullopt;
        Sum = Bytes_Sum(*Text);
    }
    return Project_Mark{.Size = Mark->Size, .Time = Mark->Time, .Sum = *Sum};
}

std::string Journal_Free_Path(std::string_view Mark) {
    const std::string Dir = App_Path + "\\Temp";
    if (!Dir_Create(Dir)) return {};
    for (int I = 1; I <= Most_Journals; ++I) {
        const std::string Path = Dir + "\\Journal" + std::string(Mark) + std::to_string(I) + ".jnl";
        if (!File_Exists(Path)) return Path;
    }
    return {};
}

const std::string& Journal_Path() {
    return The_Journal.Path;
}

// A project whose file tells all of it has its journal made with the first step.
void Journal_Start(bool As_On_Disk) {
    Journal_End();
    Journal_State& J = The_Journal;
    J.Is_On = true;
    if (As_On_Disk) J.Base = Project_Mark_Of(Nom_Projet);
    J.As_On_Disk = J.Base.has_value();
    if (!J.As_On_Disk && !Begin_File(true)) Fail();
}

void Journal_Saving(std::uint64_t Sum_Of_File) {
    History_Act_Ended();
    Journal_State& J = The_Journal;
    if (!J.File || J.Has_Failed) return;
    Byte_Writer Out;
    Out.Put(Journal_Record::Save);
    Out.Put(Sum_Of_File);
    if (!J.File->Append(Record_Head(Out.Bytes) + Out.Bytes)) Fail();
}

void Journal_Saved(std::uint64_t Sum_Of_File) {
    Journal_State& J = The_Journal;
    if (!J.Is_On) return;
    J.Base = Project_Mark_Of(Nom_Projet, Sum_Of_File);
    // A file does not hold deleted points and the like: reading it would give other rows.
    J.As_On_Disk = J.As_On_Disk && J.Base && !J.Has_Steps;
    if (!J.As_On_Disk) return Journal_Begin_Anew();
    J.Has_Failed = false;
    Drop_File();
}

void Journal_Begin_Anew() {
    Journal_State& J = The_Journal;
    if (!J.Is_On) return;
    J.Has_Failed = J.Has_Steps = J.As_On_Disk = false;
    if (!Begin_File(true)) Fail();
}

void Journal_End() {
    Drop_File();
    The_Journal = {};
}

void Journal_Leave() {
    if (!The_Journal.Is_On) return;
    History_Act_Ended();
    Journal_Sync();
    The_Journal = {};
}

void Journal_Sync() {
    if (The_Journal.File) The_Journal.File->Sync();
}

void Journal_Step(std::string_view Bytes, Step_Kind Kind, Step_Flags Flags) {
    Journal_State& J = The_Journal;
    if (!J.Is_On) return;
    const bool Is_First = !J.Has_Steps;
    J.Has_Steps = true;
    if (J.Has_Failed) return;
    if (Is_First && !J.File && !Begin_File(false)) return Fail();
    Byte_Writer Out;
    Out.Put(Journal_Record::Step);
    Out.Put(Kind);
    Out.Put(static_cast<Byte>(Flags.Joins_Last));
    Out.Put(static_cast<Byte>(Flags.Is_Undo ? 1 : Flags.Is_Redo ? 2 : 0));
    Out.Put_Text(Date_Time_Text());
    Out.Put_Text(Bytes);
    if (!J.File || !J.File->Append(Record_Head(Out.Bytes) + Out.Bytes)) Fail();
}
