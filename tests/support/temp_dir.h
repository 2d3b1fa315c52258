// tests/support/temp_dir.h - a directory of a test's own, gone at its end.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

class Temp_Dir {
public:
    Temp_Dir();
    ~Temp_Dir();
    Temp_Dir(const Temp_Dir&) = delete;
    Temp_Dir& operator=(const Temp_Dir&) = delete;

    /// The system's path of the directory, and of a file in it.
    const std::filesystem::path& Native() const { return Native_; }
    std::filesystem::path Native(std::string_view Name) const;  // Name in UTF-8
    /// The same in the program's form.
    std::string Path() const;
    std::string Path(std::string_view Name) const;

    /// Writes and reads a file byte by byte. Read stops the test when the file is not there.
    void Write(std::string_view Name, std::string_view Bytes) const;
    std::string Read(std::string_view Name) const;
    bool Has(std::string_view Name) const;

private:
    std::filesystem::path Native_;
};
