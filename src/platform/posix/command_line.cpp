// platform/posix/command_line.cpp - finding the program and its arguments.
#include "platform/posix/command_line.h"

#include <unistd.h>

#include <algorithm>
#include <cstddef>
#include <system_error>

#include "platform/files.h"
#include "platform/paths.h"
#include "platform/system.h"
#include "platform/text1252.h"

namespace fs = std::filesystem;

namespace {

constexpr std::string_view Blanks = " \t";
constexpr std::size_t Longest_Name = 4096;  // of a path; a name can't be longer

bool Has_Extension(std::string_view Name) {
    const std::size_t Dot = Name.rfind('.');
    return Dot != std::string_view::npos &&
           Name.find_first_of("\\/", Dot) == std::string_view::npos;
}

// The file that Name, or Name with ".exe", is the path of.
std::optional<fs::path> Find_As_Path(std::string_view Name) {
    if (File_Exists(Name)) return Native_Path(Name);
    if (Name.empty() || Has_Extension(Name)) return std::nullopt;
    const std::string Longer = std::string(Name) + ".exe";
    return File_Exists(Longer) ? Native_Path(Longer) : std::nullopt;
}

std::optional<fs::path> Find_Program(std::string_view Name) {
    if (auto Found = Find_As_Path(Name)) return Found;
    if (Name.empty() || Name.find_first_of("\\/:") != std::string_view::npos) return std::nullopt;
    if (auto Found = Find_In_Path(To_Utf8(Name))) return Found;
    return Has_Extension(Name) ? std::nullopt : Find_In_Path(To_Utf8(Name) + ".exe");
}

// Splits the name off. Rest is what stands behind it.
struct Head {
    std::string_view Name;
    std::optional<fs::path> Program;
    std::string_view Rest;
};

Head Quoted_Head(std::string_view Line) {
    Line.remove_prefix(1);
    const std::size_t End = Line.find('"');
    const std::string_view Name = Line.substr(0, End);
    Line.remove_prefix(End == std::string_view::npos ? Line.size() : End + 1);
    return {Name, Find_Program(Name), Line};
}

Head Plain_Head(std::string_view Line) {
    std::size_t End = 0;
    while (End < Line.size() && End <= Longest_Name) {
        End = std::min(Line.find_first_of(Blanks, End), Line.size());
        const std::string_view Name = Line.substr(0, End);
        if (auto Found = Find_As_Path(Name)) return {Name, std::move(Found), Line.substr(End)};
        End = std::min(Line.find_first_not_of(Blanks, End), Line.size());
    }
    const std::string_view Name = Line.substr(0, Line.find_first_of(Blanks));
    return {Name, Find_Program(Name), Line.substr(Name.size())};
}

// One argument at the head of Text, which begins with no blank, taken off it.
std::string Take_Argument(std::string_view& Text) {
    std::string Out;
    bool Quoted = false;
    std::size_t I = 0;
    while (I < Text.size() && (Quoted || Blanks.find(Text[I]) == std::string_view::npos)) {
        const std::size_t Backslashes = std::min(Text.find_first_not_of('\\', I), Text.size()) - I;
        I += Backslashes;
        const bool At_Quote = I < Text.size() && Text[I] == '"';
        Out.append(At_Quote ? Backslashes / 2 : Backslashes, '\\');
        if (At_Quote) {
            const bool Doubled = Quoted && I + 1 < Text.size() && Text[I + 1] == '"';
            if (Backslashes % 2 == 1) {
                Out += '"';
            } else if (Doubled) {
                Out += '"';
                ++I;
            } else {
                Quoted = !Quoted;
            }
            ++I;
        } else if (Backslashes == 0) {
            Out += Text[I++];
        }
    }
    Text.remove_prefix(I);
    return Out;
}

}  // namespace

std::optional<fs::path> Find_In_Path(const std::string& Name) {
    const std::string Path = Env_Text("PATH").value_or("");
    for (std::string_view Rest = Path; !Rest.empty();) {
        const std::string_view Dir = Rest.substr(0, Rest.find(':'));
        Rest.remove_prefix(std::min(Dir.size() + 1, Rest.size()));
        if (Dir.empty()) continue;
        fs::path File = fs::path(Dir) / Name;
        std::error_code Error;
        if (fs::is_regular_file(File, Error) && access(File.c_str(), X_OK) == 0) return File;
    }
    return std::nullopt;
}

std::vector<std::string> Parse_Arguments(std::string_view Text) {
    std::vector<std::string> Args;
    while (true) {
        const std::size_t First = Text.find_first_not_of(Blanks);
        if (First == std::string_view::npos) return Args;
        Text.remove_prefix(First);
        Args.push_back(Take_Argument(Text));
    }
}

std::optional<Command> Parse_Command(std::string_view Cmd_Line) {
    if (Cmd_Line.find('\0') != std::string_view::npos) return std::nullopt;
    const std::size_t First = Cmd_Line.find_first_not_of(Blanks);
    if (First == std::string_view::npos) return std::nullopt;
    Cmd_Line.remove_prefix(First);
    const Head Found = Cmd_Line.front() == '"' ? Quoted_Head(Cmd_Line) : Plain_Head(Cmd_Line);
    if (!Found.Program) return std::nullopt;
    return Command{std::string(Found.Name), *Found.Program, Parse_Arguments(Found.Rest)};
}
