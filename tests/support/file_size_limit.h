// tests/support/file_size_limit.h - a disk without room, for tests of POSIX systems.
#pragma once

#include <sys/resource.h>

/// No file of this process grows beyond so many bytes while this lives.
class File_Size_Limit {
public:
    explicit File_Size_Limit(rlim_t Bytes) {
        getrlimit(RLIMIT_FSIZE, &Former_);
        const rlimit Low{Bytes, Former_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &Low);
    }
    ~File_Size_Limit() { setrlimit(RLIMIT_FSIZE, &Former_); }
    File_Size_Limit(const File_Size_Limit&) = delete;
    File_Size_Limit& operator=(const File_Size_Limit&) = delete;

private:
    rlimit Former_{};
};
