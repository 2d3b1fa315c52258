// platform/posix/spawn.h - starting a program of this system, or a Windows program through wine.
#pragma once

#include <spawn.h>
#include <sys/types.h>

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "platform/posix/command_line.h"

/// The words of a start: the file that runs, then what it gets.
struct Start {
    std::filesystem::path File;
    std::vector<std::string> Words;
};

/// Whether the program of C is one for Windows.
bool Needs_Wine(const Command& C);

/// How C is started. Nothing for a Windows program where there is no wine.
std::optional<Start> Start_Of(const Command& C);

/// The files that a child finds open.
class Child_Files {
public:
    Child_Files() { posix_spawn_file_actions_init(&Actions_); }
    ~Child_Files() { posix_spawn_file_actions_destroy(&Actions_); }
    Child_Files(const Child_Files&) = delete;
    Child_Files& operator=(const Child_Files&) = delete;

    /// Descriptor To is Path there, or what From is here.
    void Open(int To, const char* Path, int Flags) {
        posix_spawn_file_actions_addopen(&Actions_, To, Path, Flags, 0);
    }
    void Copy(int From, int To) { posix_spawn_file_actions_adddup2(&Actions_, From, To); }

    const posix_spawn_file_actions_t& Actions() const { return Actions_; }

private:
    posix_spawn_file_actions_t Actions_;
};

/// Starts it with signals as a program finds them at first; Own_Group makes it the head of a
/// process group of its number.
std::optional<pid_t> Spawn(Start& S, const Child_Files& Files, bool Own_Group = false);
