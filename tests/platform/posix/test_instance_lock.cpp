// tests/platform/posix/test_instance_lock.cpp - the file behind the lock.
#include <gtest/gtest.h>

#include "platform/instance_lock.h"
#include "platform/process.h"
#include "support/environment.h"
#include "support/temp_dir.h"

namespace fs = std::filesystem;

TEST(Instance_Lock, AToolStillRunningDoesNotHoldIt) {
    const Temp_Dir Dir;
    const Environment_Scope None("TERRAFOLD_LOCK");
    for (const char* Variable : {"XDG_RUNTIME_DIR", "TMPDIR"}) {
        const Environment_Scope No_Runtime("XDG_RUNTIME_DIR");
        const Environment_Scope Place(Variable, Dir.Native().string());
        {
            Instance_Lock Lock;
            EXPECT_TRUE(Lock.Take());
            EXPECT_FALSE(Instance_Lock().Take());
            ASSERT_TRUE(Process_Run("sh -c \"sleep 3 >/dev/null 2>&1 &\"", true));
        }
        EXPECT_TRUE(Instance_Lock().Take());
    }
}

TEST(Instance_Lock, WhatIsNotOursIsNoLock) {
    const Temp_Dir Dir;
    const Environment_Scope Own("TERRAFOLD_LOCK", Dir.Native("lock").string());
    Dir.Write("victim", "kept");
    fs::create_symlink("victim", Dir.Native("lock"));
    Instance_Lock First, Second;
    EXPECT_TRUE(First.Take()) << "a link is not followed; the program starts";
    EXPECT_TRUE(Second.Take());
    EXPECT_EQ(Dir.Read("victim"), "kept");
}
