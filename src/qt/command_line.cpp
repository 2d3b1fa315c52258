// qt/command_line.cpp - words of the command line to what the window begins with.
#include "qt/command_line.h"

#include <algorithm>
#include <string_view>

const char Window_Help[] =
    R"(terrafold - scenery for a flight simulator, drawn on a scanned map

Usage:
  terrafold [PROJECT]
  terrafold --help | -h | --version

Opens the window, and PROJECT (a .LWM file) in it. If the program runs already, it is
handed PROJECT, and its window is raised.

terrafold-cli does the same without a window: see terrafold-cli --help.

Exit status: 0 all well, 1 the program could not start, 2 wrong usage.
)";

namespace {

// Of Qt, which takes them with one dash or two.
constexpr std::string_view With_Value[] = {"platform",        "platformpluginpath",
                                           "platformtheme",   "plugin",
                                           "qwindowgeometry", "geometry",
                                           "qwindowicon",     "icon",
                                           "title",           "qwindowtitle",
                                           "display",         "style",
                                           "stylesheet",      "session"};
constexpr std::string_view Alone[] = {"reverse", "widgetcount", "nograb", "dograb", "sync"};

template <std::size_t N>
bool Is_One_Of(const std::string_view (&Known)[N], std::string_view Name) {
    return std::ranges::find(Known, Name) != std::end(Known);
}

// How many of Words, the first an option, are Qt's: 0 when it is none of Qt's.
std::size_t Nb_Of_Qt(std::span<const std::string> Words) {
    std::string_view Name = Words.front();
    Name.remove_prefix(Name.starts_with("--") ? 2 : 1);
    if (Is_One_Of(Alone, Name)) return 1;
    if (Is_One_Of(With_Value, Name)) return std::min<std::size_t>(2, Words.size());
    const std::size_t Equals = Name.find('=');
    const bool Has_Value = Equals != std::string_view::npos;
    return Has_Value && Is_One_Of(With_Value, Name.substr(0, Equals)) ? 1 : 0;
}

}  // namespace

Window_Arguments Window_Parse(std::span<const std::string> Words) {
    using Command = Window_Arguments::Command;
    Window_Arguments A;
    for (; !Words.empty() && Words.front() != "--"; Words = Words.subspan(1)) {
        const std::string& Word = Words.front();
        if (Word.size() < 2 || Word[0] != '-') {
            A.Project.push_back(Word);
        } else if (Word == "--help" || Word == "-h") {
            return {.What = Command::Help, .Project = {}, .Error = {}};
        } else if (Word == "--version") {
            A.What = Command::Version;
        } else if (const std::size_t Nb = Nb_Of_Qt(Words); Nb > 0) {
            Words = Words.subspan(Nb - 1);
        } else if (A.Error.empty()) {
            A.Error = "unknown option " + Word;
        }
    }
    if (!Words.empty()) A.Project.insert(A.Project.end(), Words.begin() + 1, Words.end());
    return A;
}
