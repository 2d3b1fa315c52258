// tests/platform/posix/test_instance_lock.cpp - one instance a user.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include "platform/instance_lock.h"
#include "platform/process.h"
#include "support/environment.h"
#include "support/temp_dir.h"

namespace fs = std::filesystem;

namespace {

// Whether another process can take the lock now.
bool Free_For_Others() {
    const pid_t Child = fork();
    if (Child == 0) {
        Instance_Lock Lock;
        _exit(Lock.Take() ? 0 : 1);
    }
    int Status = -1;
    waitpid(Child, &Status, 0);
    EXPECT_TRUE(WIFEXITED(Status));
    return Status == 0;
}

}  // namespace

TEST(Instance_Lock, HeldByOneProcessUntilItEnds) {
    const Temp_Dir Dir;
    for (const char* Variable : {"XDG_RUNTIME_DIR", "TMPDIR"}) {
        const Environment_Scope No_Runtime("XDG_RUNTIME_DIR", std::nullopt);
        const Environment_Scope Place(Variable, Dir.Native().string());
        {
            Instance_Lock Lock;
            EXPECT_TRUE(Free_For_Others()) << "made, not taken";
            EXPECT_TRUE(Lock.Take());
            EXPECT_TRUE(Lock.Take()) << "twice";
            EXPECT_FALSE(Free_For_Others());
            EXPECT_FALSE(Instance_Lock().Take());
            ASSERT_TRUE(Process_Run("sh -c \"sleep 3 >/dev/null 2>&1 &\"", true));
        }
        EXPECT_TRUE(Free_For_Others()) << "a tool still running does not hold it";
    }
}

TEST(Instance_Lock, WhatIsNotOursIsNoLock) {
    const Temp_Dir Dir;
    const Environment_Scope Runtime("XDG_RUNTIME_DIR", Dir.Native().string());
    Dir.Write("victim", "kept");
    fs::create_symlink("victim", Dir.Native("terrafold.lock"));
    Instance_Lock First, Second;
    EXPECT_TRUE(First.Take()) << "a link is not followed; the program starts";
    EXPECT_TRUE(Second.Take());
    EXPECT_EQ(Dir.Read("victim"), "kept");
}
