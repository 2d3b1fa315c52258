// cli/commands.cpp - what each command does with the program.
#include "cli/commands.h"

#include <cstdio>
#include <filesystem>
#include <functional>
#include <optional>

#include "cli/arguments.h"
#include "cli/cli_host.h"
#include "cli/json_host.h"
#include "cli/project_info.h"
#include "core/journal_read.h"
#include "core/lifecycle.h"
#include "core/model.h"
#include "core/palette.h"
#include "core/program.h"
#include "core/project_file.h"
#include "core/within_memory.h"
#include "gen/driver.h"
#include "gen/home_turn.h"
#include "gen/restore_outputs.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/program_dir.h"
#include "platform/settings_file.h"
#include "platform/text1252.h"
#include "play/play.h"
#include "tex/texture.h"

namespace {

constexpr int All_Well = 0;
constexpr int Message_Shown = 1;
constexpr int Wrong_Usage = 2;
constexpr int Not_Opened = 3;

// What is UTF-8 with line ends of the program's own. It may hold what was typed, which a terminal
// is to show and not to obey: control characters are one byte, or two that begin with 0xC2.
void Complain(const std::string& What) {
    std::string Shown;
    for (const char C : What) {
        const auto Byte = static_cast<unsigned char>(C);
        const bool Is_Second = Shown.ends_with('\xC2') && Byte < 0xA0;
        if (Is_Second) Shown.pop_back();
        Shown += (Byte < 0x20 && C != '\n') || Byte == 0x7F || Is_Second ? '?' : C;
    }
    std::fprintf(stderr, "terrafold-cli: %s\n", Shown.c_str());
}

// The program's form of a path that was typed.
std::optional<std::string> Typed_Path(const std::string& Typed) {
    const std::u8string Utf8(Typed.begin(), Typed.end());
    const auto Path = Program_Path(std::filesystem::path(Utf8));
    if (!Path) Complain("the path " + Typed + " has characters that the program cannot write");
    return Path;
}

std::string Standard_Input() {
    std::string Text;
    char Part[4096];
    for (std::size_t N = 0; (N = std::fread(Part, 1, sizeof Part, stdin)) > 0;)
        Text.append(Part, N);
    return Text;
}

// The directory that the program works in, ready for use.
bool Set_Up_App_Path(const Cli_Arguments& A) {
    const auto Dir = A.App_Dir.empty() ? Find_App_Dir() : Typed_Path(A.App_Dir);
    if (Dir && !App_Dir_Can_Serve(*Dir)) {
        Complain("no home of the program can have a quotation mark in its path: " + To_Utf8(*Dir));
        return false;
    }
    if (Dir && !A.App_Dir.empty() && !A.Create && !Dir_Exists(*Dir)) {
        Complain("there is no directory " + A.App_Dir + ": --create makes it");
        return false;
    }
    if (!Dir || !Prepare_App_Dir(*Dir)) {
        Complain(
            "no directory for resources and sources can be written" +
            (A.App_Dir.empty() ? std::string(": give one with --app-path") : ": " + A.App_Dir));
        return false;
    }
    Set_App_Path(*Dir);
    Language =
        A.Language.empty() ? Setting_Read(Ini_File, "Terrafold", "Language", "FR") : A.Language;
    return true;
}

int Status_Not_Opened() {
    return Load_Failed == Load_No_Memory ? Message_Shown : Not_Opened;
}

bool Open_Typed(const std::string& Typed) {
    const auto Path = Typed_Path(Typed);
    return Path && Load_Project(*Path);
}

// Does Work on the open project, in a home that no other program works in.
int With_Home(const Cli_Arguments& A, Cli_Host& Host, const std::function<void()>& Work) {
    const Host_Scope Scope(Host);
    Gen_Install();
    const Home_Turn Turn;
    if (!Turn.Is_Taken()) return Message_Shown;
    if (!Open_Typed(A.Project)) {
        if (Host.Any_Message()) Complain(To_Utf8(Host.Last_Message()));
        return Status_Not_Opened();
    }
    Work();
    return Host.Any_Message() ? Message_Shown : All_Well;
}

// Outputs keep their names.
void Outputs_To(std::string Dir) {
    if (Dir.ends_with('\\')) Dir.pop_back();
    for (std::string* Path : {&NameBgl, &NameBglExcl})
        if (!Path->empty()) *Path = Dir + "\\" + std::string(Path_Name(*Path));
    Dir_LCWC = Dir;
}

int Generate(const Cli_Arguments& A) {
    std::optional<std::string> Dir;
    if (!A.Output_Dir.empty()) {
        Dir = Typed_Path(A.Output_Dir);
        if (!Dir) return Wrong_Usage;
        if (!Dir_Exists(*Dir)) {
            Complain("--output-dir is no directory: " + A.Output_Dir);
            return Wrong_Usage;
        }
    }
    const Tool_Choice Choice = A.Sources_Only ? Tool_Choice::Sources_Only : Tool_Choice::All;
    const auto Work = [&] {
        if (Dir) Outputs_To(*Dir);
        return Generation_Run({.Choice = Choice});
    };
    Json_Host Json(stdout, A.Dry_Run);
    Cli_Host Plain(stdout, A.Dry_Run);
    if (!A.Json) return With_Home(A, Plain, Work);
    return With_Home(A, Json, [&] {
        if (Work()) Json.Print_Report();
    });
}

int Restore(const Cli_Arguments& A) {
    Cli_Host Host(stdout, false);
    return With_Home(A, Host, Restore_Outputs);
}

int Resave(const Cli_Arguments& A) {
    Cli_Host Host(stdout, true);
    const Host_Scope Scope(Host);
    if (!Open_Typed(A.Project)) return Status_Not_Opened();
    const auto Target = Typed_Path(A.Target);
    if (!Target) return Wrong_Usage;
    if (File_Same(Nom_Projet, *Target)) {
        Complain("IN and OUT are the same file: " + A.Target);
        return Message_Shown;
    }
    const bool Saved = Save_Project(1, *Target);
    return Saved && !Host.Any_Message() ? All_Well : Message_Shown;
}

int Info(const Cli_Arguments& A) {
    Cli_Host Host(stderr, true);
    const Host_Scope Scope(Host);
    if (!Open_Typed(A.Project)) return Status_Not_Opened();
    std::fputs(Project_Info().c_str(), stdout);
    return Host.Any_Message() ? Message_Shown : All_Well;
}

// The palette that was given must be whole; that of the home may lack.
bool Load_Palette(const Cli_Arguments& A) {
    if (A.Palette.empty()) {
        Pal_Load();
        return true;
    }
    const auto Path = Typed_Path(A.Palette);
    if (Path && Pal_Read(*Path, Pal_Fs5)) return true;
    Complain("the palette is no file of 768 bytes: " + A.Palette);
    return false;
}

int Texture(const Cli_Arguments& A) {
    Cli_Host Host(stderr, true);
    const Host_Scope Scope(Host);
    if (!Load_Palette(A)) return Wrong_Usage;
    const auto Source = Typed_Path(A.Project), Output = Typed_Path(A.Target);
    if (!Source || !Output) return Wrong_Usage;
    std::string Description;
    Int Error = 0;
    const Texture_Fault Fault = Texture_To_Bmp(*Source, Pal_Fs5, *Output, Description, Error);
    if (Fault != Texture_Fault::None) {
        const bool Is_Output = Fault == Texture_Fault::Not_Written;
        const std::string Text = Texture_Fault_Text(Fault, Is_Output ? *Output : *Source);
        Complain(To_Utf8(As_One_Line(Text)));
        return Message_Shown;
    }
    std::printf("%s\n", To_Utf8(Description).c_str());
    return All_Well;
}

// The bytes of a script; nothing when it can't be read.
std::optional<std::string> Script_Text(const std::string& Typed) {
    if (Typed == "-") return Standard_Input();
    const auto Path = Typed_Path(Typed);
    auto Text = Path ? File_Read(*Path) : std::nullopt;
    if (Path && !Text) Complain("the script " + Typed + " can't be read");
    return Text;
}

int Tell_Journal(const Cli_Arguments& A) {
    const auto Path = Typed_Path(A.Project);
    const auto Bytes = Path ? File_Read(*Path) : std::nullopt;
    if (!Bytes) {
        Complain("the journal " + A.Project + " can't be read");
        return Wrong_Usage;
    }
    const Journal J = Journal_Read(*Bytes);
    for (const std::string& Line : Journal_Report(J))
        std::printf("%s\n", To_Utf8(As_One_Line(Line)).c_str());
    return J.What == Journal::State::Good ? All_Well : Message_Shown;
}

int Play_Script(const Cli_Arguments& A) {
    if (A.Is_Journal) return Tell_Journal(A);
    const auto Text = Script_Text(A.Project);
    if (!Text) return Wrong_Usage;
    const Play_End End = Play(Script_Read(*Text),
                              {.App_Dir = App_Path,
                               .Language = A.Language,
                               .Width = A.Canvas_Width,
                               .Height = A.Canvas_Height},
                              [](std::string_view Line) {
                                  const std::string Utf8 = To_Utf8(Line) + '\n';
                                  std::fwrite(Utf8.data(), 1, Utf8.size(), stdout);
                                  std::fflush(stdout);
                              });
    if (End.Status != 0)
        Complain(A.Project + ", line " + std::to_string(End.Line) + ": " + To_Utf8(End.Reason));
    return End.Status;
}

int Run(const Cli_Arguments& A) {
    using Command = Cli_Arguments::Command;
    Program_Reset();
    const bool Has_Home = Set_Up_App_Path(A);
    if (!Has_Home && Has_Home_Options(A.What)) return Wrong_Usage;
    switch (A.What) {
        case Command::Play:
            return Play_Script(A);
        case Command::Generate:
            return Generate(A);
        case Command::Restore_Outputs:
            return Restore(A);
        case Command::Resave:
            return Resave(A);
        case Command::Texture:
            return Texture(A);
        default:
            return Info(A);
    }
}

// A script that reads the output must know when it is not whole.
int Checked(int Status) {
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return Status;
    Complain("the output could not be printed");
    return Status == All_Well ? Message_Shown : Status;
}

}  // namespace

int Cli_Run(const std::vector<std::string>& Words) {
    using Command = Cli_Arguments::Command;
    const Cli_Arguments A = Cli_Parse(Words);
    if (!A.Error.empty()) {
        Complain(A.Error + "\nTry terrafold-cli --help");
        return Wrong_Usage;
    }
    if (A.What == Command::Help || A.What == Command::Version) {
        std::fputs(A.What == Command::Help ? Cli_Help : "terrafold-cli 5.0\n", stdout);
        return Checked(All_Well);
    }
    int Status = Message_Shown;
    if (!Within_Memory([&] { Status = Run(A); })) Complain("this needs more memory than there is");
    return Checked(Status);
}
