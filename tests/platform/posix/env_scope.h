// tests/platform/posix/env_scope.h - an environment variable for the time of a test.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

class Env_Scope {
public:
    /// Without a value the variable is taken away.
    Env_Scope(const char* Name, const std::optional<std::string>& Value) : Name_(Name) {
        if (const char* Old = std::getenv(Name)) Former_ = Old;
        Set(Value);
    }
    ~Env_Scope() { Set(Former_); }
    Env_Scope(const Env_Scope&) = delete;
    Env_Scope& operator=(const Env_Scope&) = delete;

private:
    void Set(const std::optional<std::string>& Value) {
        if (Value)
            setenv(Name_, Value->c_str(), 1);
        else
            unsetenv(Name_);
    }

    const char* Name_;
    std::optional<std::string> Former_;
};
