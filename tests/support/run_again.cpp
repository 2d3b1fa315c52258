// tests/support/run_again.cpp - starting the program that runs.
#include "support/run_again.h"

#include <gtest/gtest.h>

#include "platform/paths.h"
#include "platform/process.h"
#include "platform/system.h"

void Run_Again(const std::string& Name) {
    const std::string Self = Program_Path(Own_Program().value()).value();
    EXPECT_TRUE(Process_Run("\"" + Self +
                                "\" --gtest_brief=1 --gtest_also_run_disabled_tests"
                                " --gtest_filter=" +
                                Name,
                            true));
}

std::string Told(const char* Variable) {
    return Env_Text(Variable).value();
}
