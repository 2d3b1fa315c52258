// cli/arguments.cpp - words of the command line to a command.
#include "cli/arguments.h"

#include <algorithm>
#include <charconv>
#include <vector>

const char Cli_Help[] =
    R"(terrafold-cli - scenery generation without a window

Usage:
  terrafold-cli generate PROJECT [--app-path DIR] [--language FR|US] [--create]
                         [--output-dir DIR] [--dry-run | --sources-only] [--json]
  terrafold-cli restore-outputs PROJECT [--app-path DIR] [--language FR|US] [--create]
  terrafold-cli play SCRIPT [--app-path DIR] [--language FR|US] [--create]
                     [--canvas WxH]
  terrafold-cli play --journal FILE
  terrafold-cli resave IN OUT
  terrafold-cli info PROJECT
  terrafold-cli texture IN OUT.bmp [--palette FILE]
  terrafold-cli --help | -h | --version

generate  writes the scenery sources of PROJECT (a .LWM file) and compiles them with
          the outside tools. Prints one line for each thing that happens, in order:
              delete PATH             an older output or source was deleted
              write PATH              a source was written
              run COMMAND LINE        an outside tool is started
              missing PATH            an outside tool has ended without having made it
              message NUMBER TEXT     a message; NUMBER 0 is one without a number
          Older outputs are kept in the home until the next generation has ended.
restore-outputs
          puts those that the last generation of PROJECT found back in their places;
          a second time undoes it.
play      runs the whole program without a screen and does what SCRIPT (a file, or "-"
          for standard input) says a user does. docs/play.md tells of its language.
          With --journal it tells what the steps of a journal change which a crash has
          left behind, and does nothing else.
resave    reads IN and writes it as OUT.
info      prints counts, extent and outputs of PROJECT as JSON.
texture   writes the texture file IN, of any format of the simulator, as a bitmap of
          24 bits and prints what it is.

Options of generate, restore-outputs and play:
  --app-path DIR     directory of the outside tools, where the sources go as well
                     (default: TERRAFOLD_HOME, else the program's own directory if it
                     can be written, else the user's data directory)
  --create           makes that directory if it is not there
  --language FR|US   language of the messages (default: as in the settings)
  --dry-run          (generate) starts no outside tool and takes every start as a success
  --sources-only     (generate) writes the sources, starts no tool and touches no output
  --output-dir DIR   (generate) puts every output there, whatever the project says
  --json             (generate) prints a JSON object a line: the same events, then each
                     output with its state, size and time, then the end
  --canvas WxH       (play) size of the canvas in pixels (default: 801x601)

Option of texture:
  --palette FILE     colours of textures of type R8 (default: Fs5.pal of the home)

Exit status: 0 all well, 1 a message was shown, an output is missing, IN is no texture
or the output could not be printed, 2 wrong usage, 3 the project could not be opened.
Of play: 0 all was played, 2 wrong usage or a line that makes no sense, 4 an act that no
user could do.
)";

namespace {

struct Word_List {
    std::span<const std::string> Rest;
    std::vector<std::string> Files;

    bool Empty() const { return Rest.empty(); }
    std::string Take() {
        std::string Word = Rest.front();
        Rest = Rest.subspan(1);
        return Word;
    }
};

std::string Upper_Ascii(std::string Text) {
    for (char& C : Text)
        if (C >= 'a' && C <= 'z') C = static_cast<char>(C - 'a' + 'A');
    return Text;
}

// The value of an option: the text behind its "=", or the next word.
bool Take_Value(const std::string& Word, const std::string& Option, Word_List& Words,
                std::string& Value) {
    if (Word.rfind(Option + "=", 0) == 0) {
        Value = Word.substr(Option.size() + 1);
        return true;
    }
    if (Word != Option || Words.Empty()) return false;
    Value = Words.Take();
    return true;
}

// "801x601".
bool Read_Size(const std::string& Text, Long& Width, Long& Height) {
    constexpr Long Largest = 20000;
    const char* End = Text.data() + Text.size();
    const auto W = std::from_chars(Text.data(), End, Width);
    if (W.ec != std::errc() || W.ptr == End || *W.ptr != 'x') return false;
    const auto H = std::from_chars(W.ptr + 1, End, Height);
    const auto Serves = [](Long Side) { return 1 <= Side && Side <= Largest; };
    return H.ec == std::errc() && H.ptr == End && Serves(Width) && Serves(Height);
}

void Parse_Option(const std::string& Word, Word_List& Words, Cli_Arguments& A) {
    const bool Plays = A.What == Cli_Arguments::Command::Play;
    const bool Generates = A.What == Cli_Arguments::Command::Generate;
    std::string Size;
    if (Plays && Word == "--journal") {
        A.Is_Journal = true;
    } else if (Word == "--create") {
        A.Create = true;
    } else if (Generates && Word == "--dry-run") {
        A.Dry_Run = true;
    } else if (Generates && Word == "--sources-only") {
        A.Sources_Only = true;
    } else if (Generates && Word == "--json") {
        A.Json = true;
    } else if (Generates && Take_Value(Word, "--output-dir", Words, A.Output_Dir)) {
        if (A.Output_Dir.empty()) A.Error = "--output-dir needs a directory";
    } else if (Plays && Take_Value(Word, "--canvas", Words, Size)) {
        if (!Read_Size(Size, A.Canvas_Width, A.Canvas_Height))
            A.Error = "--canvas is a size such as 801x601";
    } else if (Take_Value(Word, "--app-path", Words, A.App_Dir)) {
        if (A.App_Dir.empty()) A.Error = "--app-path needs a directory";
    } else if (Take_Value(Word, "--language", Words, A.Language)) {
        A.Language = Upper_Ascii(A.Language);
        if (A.Language != "FR" && A.Language != "US") A.Error = "--language is FR or US";
    } else if (Word == "--app-path" || Word == "--language" || (Plays && Word == "--canvas") ||
               (Generates && Word == "--output-dir")) {
        A.Error = Word + " needs a value";
    } else {
        A.Error = "unknown option " + Word;
    }
}

void Parse_Texture_Option(const std::string& Word, Word_List& Words, Cli_Arguments& A) {
    const bool Taken = Take_Value(Word, "--palette", Words, A.Palette);
    if (!Taken && Word != "--palette")
        A.Error = "unknown option " + Word;
    else if (A.Palette.empty())
        A.Error = "--palette needs a file";
}

// Files and options behind the command; options are those of generate and texture.
void Parse_Rest(Word_List& Words, Cli_Arguments& A, std::size_t Nb_Files, const char* Names) {
    bool Options_Ended = false;
    while (!Words.Empty() && A.Error.empty()) {
        const std::string Word = Words.Take();
        const bool Is_Option = !Options_Ended && Word.size() > 1 && Word[0] == '-';
        if (Is_Option && Word == "--")
            Options_Ended = true;
        else if (Is_Option && Has_Home_Options(A.What))
            Parse_Option(Word, Words, A);
        else if (Is_Option && A.What == Cli_Arguments::Command::Texture)
            Parse_Texture_Option(Word, Words, A);
        else if (Is_Option)
            A.Error = "unknown option " + Word;
        else
            Words.Files.push_back(Word);
    }
    const bool Any_Empty = std::any_of(Words.Files.begin(), Words.Files.end(),
                                       [](const auto& F) { return F.empty(); });
    if (A.Error.empty() && (Words.Files.size() != Nb_Files || Any_Empty))
        A.Error = std::string("expected ") + Names;
}

}  // namespace

bool Has_Home_Options(Cli_Arguments::Command What) {
    using enum Cli_Arguments::Command;
    return What == Generate || What == Restore_Outputs || What == Play;
}

Cli_Arguments Cli_Parse(std::span<const std::string> Words) {
    using Command = Cli_Arguments::Command;
    Cli_Arguments A;
    if (std::find(Words.begin(), Words.end(), "--help") != Words.end() ||
        std::find(Words.begin(), Words.end(), "-h") != Words.end())
        return A;
    if (Words.empty()) {
        A.Error = "a command is missing";
        return A;
    }
    Word_List List{.Rest = Words, .Files = {}};
    const std::string Name = List.Take();
    if (Name == "--version") {
        A.What = Command::Version;
        Parse_Rest(List, A, 0, "nothing behind --version");
    } else if (Name == "generate") {
        A.What = Command::Generate;
        Parse_Rest(List, A, 1, "one PROJECT");
    } else if (Name == "restore-outputs") {
        A.What = Command::Restore_Outputs;
        Parse_Rest(List, A, 1, "one PROJECT");
    } else if (Name == "play") {
        A.What = Command::Play;
        Parse_Rest(List, A, 1, "one SCRIPT");
    } else if (Name == "resave") {
        A.What = Command::Resave;
        Parse_Rest(List, A, 2, "IN and OUT");
    } else if (Name == "info") {
        A.What = Command::Info;
        Parse_Rest(List, A, 1, "one PROJECT");
    } else if (Name == "texture") {
        A.What = Command::Texture;
        Parse_Rest(List, A, 2, "IN and OUT.bmp");
    } else {
        A.Error = "unknown command " + Name;
    }
    if (List.Files.size() > 0) A.Project = List.Files[0];
    if (List.Files.size() > 1) A.Target = List.Files[1];
    return A;
}
