// platform/append_file.h - a file that grows record by record and is this program's alone.
//
// Paths are in the program's form. Failures are return values.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string_view>

/// While it is open no other program can claim the file. What was appended is the system's at
/// once, so that it outlives the program, and on the disk at the latest a second later; a thread
/// of the file's own waits for the disk.
class Append_File {
public:
    Append_File();
    ~Append_File();
    Append_File(const Append_File&) = delete;
    Append_File& operator=(const Append_File&) = delete;

    /// Makes the file. False when anything has that name, or it cannot be made.
    bool Create(std::string_view Path);
    /// Opens a file that is there, if no program has it open so.
    bool Claim(std::string_view Path);
    bool Is_Open() const;
    /// False when not all was written.
    bool Append(std::string_view Bytes);
    /// Waits until everything is on the disk.
    bool Sync();
    void Close();
    /// Closes the file, whose path is Path, and deletes it unless another program has it by then.
    void Delete(std::string_view Path);

private:
    struct Handle;
    std::unique_ptr<Handle> Handle_;
};

/// What tells one state of a file from another.
struct File_Mark {
    std::uint64_t Size = 0;
    std::int64_t Time = 0;  // of the last change, in the system's own count
    bool operator==(const File_Mark&) const = default;
};
std::optional<File_Mark> File_Mark_Of(std::string_view Path);

/// From takes the name To, if nothing has it.
bool File_Rename(std::string_view From, std::string_view To);
