// platform/files.h - files: the only code that opens, lists, renames or deletes them.
//
// Paths are in the program's form (paths.h). Failures are return values; nothing throws.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

bool File_Exists(std::string_view Path);          // a file: no directory, device or pipe
bool File_Or_Link_Exists(std::string_view Path);  // a link counts wherever it leads
bool Dir_Exists(std::string_view Path);
bool Dir_Create(std::string_view Path);  // with its parents; true when it stands at the end

/// Deletes one file, or a link. False when there was none or it could not be deleted.
bool File_Delete(std::string_view Path);

/// Whether both paths lead to one file that is there, be it by other names or links.
bool File_Same(std::string_view A, std::string_view B);

/// A text that two paths share when they are one name in one directory, by whatever links the
/// directory is reached; empty when Path can't exist. With Through_Link that of what the name, if
/// it is a link, leads to.
std::string File_Key(std::string_view Path, bool Through_Link = false);

/// Copies a file, replacing an older one.
bool File_Copy(std::string_view From, std::string_view To);

/// Gives a file, or a link, the path To, on another disk as well; what has that path goes. False
/// when it is still where it was.
bool File_Move(std::string_view From, std::string_view To);

/// Deletes a directory in which nothing is. False when it is still there.
bool Dir_Delete(std::string_view Dir);

/// The whole file, or nothing when it cannot be read.
std::optional<std::string> File_Read(std::string_view Path);

/// The same, but for a file that memory has no room for: that throws, to be told apart.
std::optional<std::string> File_Read_Or_Throw(std::string_view Path);

/// Names of the files in a directory, in order of their capitals; names that code page 1252
/// can't write are left out.
std::vector<std::string> Dir_Files(std::string_view Dir);

/// The same of the directories in it, without those that begin with a dot.
std::vector<std::string> Dir_Dirs(std::string_view Dir);

/// Paths of the files whose path is Stem followed by text that matches Pattern, in order of
/// their capitals. In Pattern "*" stands for any text and "?" for any one character; in Stem
/// they are ordinary characters. Case is ignored. Only the directory of Stem is looked at (the
/// current one when it names none); an empty Stem matches nothing.
std::vector<std::string> Files_Matching(std::string_view Stem, std::string_view Pattern);

/// A text file that is written from its start to its end.
///
/// In place: the old file goes first, and what is written is there at once. Safe: everything
/// goes to a temporary file in the same directory, which takes the name at Commit, so the
/// directory holds the whole old file or the whole new one at any moment. The new one has the
/// permissions of the old, and where Path is a link, the file behind it is replaced. A file
/// that this user may not write is not replaced either. A writer destroyed without Commit
/// leaves no temporary file and, when safe, the old file untouched.
class File_Writer {
public:
    enum class Mode { In_Place, Safe };

    File_Writer(std::string_view Path, Mode How);
    ~File_Writer();
    File_Writer(File_Writer&&) noexcept;
    File_Writer& operator=(File_Writer&&) = delete;

    /// False when the file could not be made; writing then has no effect.
    bool Is_Open() const;
    void Put(std::string_view Text) {
        if (Buffer_.size() + Text.size() > Buffer_Size) Flush();
        Buffer_.append(Text);
    }
    /// Writes what is left, makes a safe file durable and gives it its name. False when any
    /// write failed; a safe file is then dropped. Called again it says the same.
    bool Commit();
    /// Of all that was put into a safe file.
    std::uint64_t Sum() const;

private:
    static constexpr std::size_t Buffer_Size = 1 << 16;
    void Flush();

    struct Handle;
    std::string Buffer_;
    std::unique_ptr<Handle> Handle_;
};

/// Steps of a safe write, in order.
enum class Save_Step { Create, Write, Sync, Rename, Sync_Dir };

/// Called before each step of every safe write; tests end the program there.
inline std::function<void(Save_Step)> On_Save_Step;
