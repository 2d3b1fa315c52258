// platform/file_reader.h - a file read piece by piece, where whole files would be too large.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string_view>

/// Failures are return values. A file that grows or shrinks meanwhile keeps the size it had.
class File_Reader {
public:
    /// Path is in the program's form (paths.h).
    explicit File_Reader(std::string_view Path);
    ~File_Reader();
    File_Reader(const File_Reader&) = delete;
    File_Reader& operator=(const File_Reader&) = delete;

    bool Is_Open() const;
    std::uint64_t Size() const;
    /// Fills Into with the bytes from position At on. False when not all of them are there.
    bool Read(std::uint64_t At, std::span<std::uint8_t> Into);

private:
    struct Handle;
    std::unique_ptr<Handle> Handle_;
};
