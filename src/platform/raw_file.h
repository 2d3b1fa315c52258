// platform/raw_file.h - a new file, byte by byte as the system gives it.
//
// For the sources of platform/ only. Failures are return values.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string_view>

class Raw_File {
public:
    Raw_File() = default;
    ~Raw_File() { Close(); }
    Raw_File(const Raw_File&) = delete;
    Raw_File& operator=(const Raw_File&) = delete;

    /// Makes the file. False when anything has that name already.
    bool Create(const std::filesystem::path& Path);
    /// Opens a file that is there, to write behind its end.
    bool Open(const std::filesystem::path& Path);
    /// Locks the open file against every other program that does so; false when one has it.
    bool Lock();
    /// Whether Path is still a name of the open file.
    bool Is_At(const std::filesystem::path& Path) const;
    bool Is_Open() const { return Handle_ != None; }

    /// Gives the file the owner and permissions of Other, as far as this user may.
    void Take_Rights_Of(const std::filesystem::path& Other);

    /// All of Bytes, or false.
    bool Write(std::string_view Bytes);
    /// Has everything put on the disk.
    bool Sync();
    /// The open file, whose name is From and which is on the disk, takes the name To; a file of
    /// that name goes, in the same step. Closed at the end; false when it still is From.
    bool Replace(const std::filesystem::path& From, const std::filesystem::path& To);
    /// Deletes the open file, whose name is Path, and closes it. No other program's goes.
    void Delete(const std::filesystem::path& Path);
    /// False when the system reports at the end that something was not written.
    bool Close();

private:
    static constexpr std::intptr_t None = -1;
    std::intptr_t Handle_ = None;
};

/// Whether a file at Path could be replaced: there is none, or it is a plain file which this
/// user may write.
bool File_Replaceable(const std::filesystem::path& Path);

/// Has the names in Dir put on the disk, where the system can do so.
void Dir_Sync(const std::filesystem::path& Dir);

/// When a file was changed last, in the system's own count and as finely as it knows.
std::optional<std::int64_t> File_Changed_At(const std::filesystem::path& Path);
