// platform/files.cpp - reading, listing, copying and deleting files.
#include "platform/files.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <new>
#include <stdexcept>
#include <system_error>
#include <utility>

#include "platform/paths.h"
#include "platform/system.h"
#include "platform/text1252.h"
#include "platform/wildcard.h"

namespace fs = std::filesystem;

namespace {

constexpr std::size_t Chunk = 1 << 16;

// Devices and pipes are no files: reading one may never end.
bool Is_File(const fs::path& Path) {
    std::error_code Error;
    return fs::is_regular_file(Path, Error);
}

// The file as a stream; not open when there is none.
std::ifstream Open_To_Read(std::string_view Path) {
    const std::optional<fs::path> Native = Native_Path(Path);
    std::ifstream In;
    if (Native && Is_File(*Native)) In.open(*Native, std::ios::binary);
    return In;
}

// Size is only a first guess: a file may grow while it is read.
bool Read_All(std::ifstream& In, std::size_t Size, std::string& Text) {
    std::size_t Got = 0;
    for (std::size_t Room = Size + 1;; Room = Got + std::max(Got, Chunk)) {
        Text.resize(Room);
        In.read(Text.data() + Got, static_cast<std::streamsize>(Room - Got));
        Got += static_cast<std::size_t>(In.gcount());
        if (!In) break;
    }
    Text.resize(Got);
    return In.eof() && !In.bad();
}

}  // namespace

bool File_Exists(std::string_view Path) {
    const std::optional<fs::path> Native = Native_Path(Path);
    return Native && Is_File(*Native);
}

bool File_Or_Link_Exists(std::string_view Path) {
    const std::optional<fs::path> Native = Native_Path(Path);
    std::error_code Error;
    if (!Native) return false;
    const fs::file_status Status = fs::symlink_status(*Native, Error);
    return fs::is_regular_file(Status) || fs::is_symlink(Status);
}

bool Dir_Exists(std::string_view Path) {
    const std::optional<fs::path> Native = Native_Path(Path);
    std::error_code Error;
    return Native && fs::is_directory(*Native, Error);
}

bool Dir_Create(std::string_view Path) {
    const std::optional<fs::path> Native = Native_Path(Path);
    if (!Native) return false;
    std::error_code Error;
    fs::create_directories(*Native, Error);
    return fs::is_directory(*Native, Error);
}

bool File_Delete(std::string_view Path) {
    if (!File_Or_Link_Exists(Path)) return false;
    std::error_code Error;
    return fs::remove(*Native_Path(Path), Error);
}

bool File_Same(std::string_view A, std::string_view B) {
    const std::optional<fs::path> Native_A = Native_Path(A), Native_B = Native_Path(B);
    std::error_code Error;
    return Native_A && Native_B && fs::equivalent(*Native_A, *Native_B, Error);
}

std::string File_Key(std::string_view Path, bool Through_Link) {
    const std::optional<fs::path> Native = Native_Path(Path);
    if (!Native) return {};
    std::error_code Error;
    const fs::path Whole = fs::absolute(*Native, Error);
    if (Through_Link) {
        const fs::path End = fs::weakly_canonical(Whole, Error);
        return Utf8_From_Path(Error ? Whole : End);
    }
    const fs::path Dir = fs::weakly_canonical(Whole.parent_path(), Error);
    return Utf8_From_Path(Error ? Whole : Dir / Whole.filename());
}

bool File_Copy(std::string_view From, std::string_view To) {
    std::ifstream In = Open_To_Read(From);
    if (!In.is_open()) return false;
    File_Writer Out(To, File_Writer::Mode::Safe);
    if (!Out.Is_Open()) return false;
    std::string Block(Chunk, '\0');
    while (In) {
        In.read(Block.data(), static_cast<std::streamsize>(Block.size()));
        Out.Put(std::string_view(Block).substr(0, static_cast<std::size_t>(In.gcount())));
    }
    const bool Whole = In.eof() && !In.bad();
    In.close();  // a file in use can't be replaced everywhere, and it may be the same
    return Whole && Out.Commit();
}

bool File_Move(std::string_view From, std::string_view To) {
    const std::optional<fs::path> Old = Native_Path(From), New = Native_Path(To);
    if (!Old || !New) return false;
    std::error_code Error;
    fs::rename(*Old, *New, Error);
    if (!Error) return true;
    if (fs::is_symlink(fs::symlink_status(*Old, Error))) {
        fs::copy_symlink(*Old, *New, Error);
        if (Error) return false;
    } else if (!File_Copy(From, To)) {
        return false;
    }
    if (fs::remove(*Old, Error)) return true;
    fs::remove(*New, Error);
    return false;
}

bool Dir_Delete(std::string_view Dir) {
    const std::optional<fs::path> Native = Native_Path(Dir);
    std::error_code Error;
    return Native && fs::is_directory(*Native, Error) && fs::remove(*Native, Error);
}

std::optional<std::string> File_Read_Or_Throw(std::string_view Path) {
    std::ifstream In = Open_To_Read(Path);
    if (!In.is_open()) return std::nullopt;
    In.seekg(0, std::ios::end);
    const std::streamoff End = In.tellg();
    In.seekg(0);
    std::string Text;
    if (!Read_All(In, End > 0 ? static_cast<std::size_t>(End) : 0, Text)) return std::nullopt;
    return Text;
}

std::optional<std::string> File_Read(std::string_view Path) {
    try {
        return File_Read_Or_Throw(Path);
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    } catch (const std::length_error&) {
        return std::nullopt;
    }
}

namespace {

// Names in Dir of what Wanted takes, in order of their capitals.
template <typename Test>
std::vector<std::string> Names_In(std::string_view Dir, Test Wanted) {
    const std::optional<fs::path> Native = Native_Path(Dir);
    if (!Native) return {};
    std::vector<std::pair<std::string, std::string>> Keyed;  // capitals, name
    std::error_code Error;
    for (fs::directory_iterator At(*Native, Error), End; !Error && At != End; At.increment(Error)) {
        const std::optional<std::string> Name = From_Utf8(Utf8_From_Path(At->path().filename()));
        if (!Name || Name->find('\\') != std::string::npos || !Wanted(At->path(), *Name)) continue;
        Keyed.emplace_back(Upper_1252(std::string_view(*Name)), *Name);
    }
    std::sort(Keyed.begin(), Keyed.end());
    std::vector<std::string> Names;
    Names.reserve(Keyed.size());
    for (auto& [Capitals, Name] : Keyed) Names.push_back(std::move(Name));
    return Names;
}

}  // namespace

std::vector<std::string> Dir_Files(std::string_view Dir) {
    return Names_In(Dir, [](const fs::path& Path, const std::string&) { return Is_File(Path); });
}

std::vector<std::string> Dir_Dirs(std::string_view Dir) {
    return Names_In(Dir, [](const fs::path& Path, const std::string& Name) {
        std::error_code Error;
        return !Name.starts_with('.') && fs::is_directory(Path, Error);
    });
}

std::vector<std::string> Files_Matching(std::string_view Stem, std::string_view Pattern) {
    if (Stem.empty()) return {};
    const std::string_view Dir = Path_Dir(Stem), Head = Path_Name(Stem);
    std::vector<std::string> Paths;
    for (const std::string& Name : Dir_Files(Dir.empty() ? "." : Dir)) {
        const std::string_view Text = Name;
        if (Equal_No_Case(Text.substr(0, Head.size()), Head) &&
            Wildcard_Match(Text.substr(std::min(Head.size(), Text.size())), Pattern))
            Paths.push_back(std::string(Dir) + Name);
    }
    return Paths;
}
