// platform/posix/paths.cpp - paths where case matters and there are no drives.
#include "platform/paths.h"

#include <algorithm>
#include <system_error>
#include <vector>

#include "platform/posix/user_dirs.h"
#include "platform/text1252.h"

namespace fs = std::filesystem;

namespace {

bool Is_Divider(char C) {
    return C == '\\' || C == '/';
}

// A link that leads nowhere has a name all the same.
bool Name_Exists(const fs::path& Path) {
    std::error_code Error;
    return fs::exists(fs::symlink_status(Path, Error));
}

// The entry of Dir that is Name but for the case; of several the first in byte order, so that
// the answer does not hang on the order of the directory.
std::optional<fs::path> Find_No_Case(const fs::path& Dir, std::string_view Name) {
    std::optional<fs::path> Found;
    std::error_code Error;
    for (fs::directory_iterator At(Dir, Error), End; !Error && At != End; At.increment(Error)) {
        fs::path Entry = At->path().filename();
        const std::optional<std::string> Text = From_Utf8(Entry.native());
        if (Text && Equal_No_Case(*Text, Name) && (!Found || Entry < *Found))
            Found = std::move(Entry);
    }
    return Found;
}

// The parts of a path behind its start, in order. ".." takes the part before it away, as the
// program's form means it; at the front of a path from the current directory it moves Start.
std::vector<std::string_view> Parts_Of(std::string_view Rest, bool From_Current, fs::path& Start) {
    std::vector<std::string_view> Parts;
    while (!Rest.empty()) {
        const auto End = std::find_if(Rest.begin(), Rest.end(), Is_Divider);
        const auto Length = static_cast<std::size_t>(End - Rest.begin());
        const std::string_view Part = Rest.substr(0, Length);
        Rest.remove_prefix(std::min(Length + 1, Rest.size()));
        if (Part == "..") {
            if (!Parts.empty())
                Parts.pop_back();
            else if (From_Current)
                Start = Start.parent_path();
        } else if (!Part.empty() && Part != ".") {
            Parts.push_back(Part);
        }
    }
    return Parts;
}

// Follows Parts from Start as far as there is something, then takes them as they are spelt.
fs::path Follow(const fs::path& Start, const std::vector<std::string_view>& Parts) {
    fs::path Exact = Start;
    for (const std::string_view Part : Parts) Exact /= To_Utf8(Part);
    if (Name_Exists(Exact)) return Exact;

    fs::path Path = Start;
    bool There = true;
    for (const std::string_view Part : Parts) {
        fs::path Next = Path / To_Utf8(Part);
        if (There && !Name_Exists(Next)) {
            const std::optional<fs::path> Other = Find_No_Case(Path, Part);
            There = Other.has_value();
            if (Other) Next = Path / *Other;
        }
        Path = std::move(Next);
    }
    return Path;
}

}  // namespace

std::optional<fs::path> Native_Path(std::string_view Path) {
    if (Path.empty() || Path.find('\0') != std::string_view::npos) return std::nullopt;
    fs::path Start = "/";
    bool From_Current = false;
    if (Begins_With_Drive(Path)) {
        const std::optional<fs::path> Drive = Wine_Drive(Path[0]);
        if (!Drive) return std::nullopt;
        Start = *Drive;
        Path.remove_prefix(2);
    } else if (!Is_Divider(Path.front())) {
        std::error_code Error;
        Start = fs::current_path(Error);
        if (Error) return std::nullopt;
        From_Current = true;
    }
    const std::vector<std::string_view> Parts = Parts_Of(Path, From_Current, Start);
    return Follow(Start, Parts);
}

std::optional<std::string> Program_Path(const fs::path& Path) {
    if (Path.empty()) return std::nullopt;
    std::error_code Error;
    fs::path Full = fs::absolute(Path, Error);
    if (Error) return std::nullopt;
    // Behind a link ".." is not the part before it, so the system has to resolve it.
    if (std::find(Full.begin(), Full.end(), "..") != Full.end()) {
        Full = fs::weakly_canonical(Full, Error);
        if (Error) return std::nullopt;
    }
    std::string Text = Full.lexically_normal().native();
    if (Text.size() > 1 && Text.back() == '/') Text.pop_back();
    if (Path.native().back() == '/' && Text != "/") Text += '/';
    if (Text.find('\\') != std::string::npos) return std::nullopt;
    std::replace(Text.begin(), Text.end(), '/', '\\');
    return From_Utf8(Text);
}

std::string Shown_Path(std::string_view Path) {
    const bool Has_Drive = Begins_With_Drive(Path);
    if (Has_Drive || Path.starts_with('\\')) {
        const auto Native = Native_Path(Path);
        auto Text = Native ? From_Utf8(Native->native()) : std::nullopt;
        if (Text && Path.ends_with('\\') && !Text->ends_with('/')) *Text += '/';
        if (Text) return *Text;
    }
    std::string Text(Path);
    if (!Has_Drive) std::replace(Text.begin(), Text.end(), '\\', '/');
    return Text;
}

std::vector<std::string> Drive_List() {
    std::vector<std::string> Drives{"\\"};
    std::error_code Error;
    for (char Letter = 'A'; Letter <= 'Z'; ++Letter) {
        const std::optional<fs::path> Drive = Wine_Drive(Letter);
        if (Drive && fs::is_directory(*Drive, Error)) Drives.push_back({Letter, ':', '\\'});
    }
    return Drives;
}
