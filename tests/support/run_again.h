// tests/support/run_again.h - this very program in another process.
#pragma once

#include <string>

/// Runs the test Name, which is DISABLED_ in ordinary runs, in a process of its own and waits
/// for its end. What it learns it leaves in files; the environment tells it where.
void Run_Again(const std::string& Name);

/// The value of an environment variable that a test run again relies on.
std::string Told(const char* Variable);
