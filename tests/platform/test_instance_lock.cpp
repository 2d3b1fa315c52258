// tests/platform/test_instance_lock.cpp - one instance a user.
#include "platform/instance_lock.h"

#include <gtest/gtest.h>

#include <fstream>

#include "support/environment.h"
#include "support/run_again.h"
#include "support/temp_dir.h"

// Not a test: what another process does to tell whether it gets the lock.
TEST(Instance_Lock, DISABLED_Report) {
    Instance_Lock Lock;
    std::ofstream(Path_From_Utf8(Told("TERRAFOLD_TELL"))) << (Lock.Take() ? "taken" : "refused");
}

TEST(Instance_Lock, HeldByOneProcessUntilItEnds) {
    const Temp_Dir Dir;
    const Environment_Scope Own("TERRAFOLD_LOCK", Dir.Native("lock").string());
    const Environment_Scope Tell("TERRAFOLD_TELL", Dir.Native("told").string());
    const auto Other = [&Dir] {
        Run_Again("Instance_Lock.DISABLED_Report");
        return Dir.Read("told");
    };
    {
        Instance_Lock Lock;
        EXPECT_EQ(Other(), "taken") << "made, not taken";
        EXPECT_TRUE(Lock.Take()) << "the other process has ended";
        EXPECT_TRUE(Lock.Take()) << "twice";
        EXPECT_EQ(Other(), "refused");
        EXPECT_FALSE(Instance_Lock().Take());
        const Environment_Scope Another("TERRAFOLD_LOCK", Dir.Native("other").string());
        EXPECT_EQ(Other(), "taken") << "another lock";
    }
    EXPECT_EQ(Other(), "taken");
}
