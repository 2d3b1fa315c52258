// tests/support/environment.h - an environment variable for the time of a test.
#pragma once

#include <cstdlib>
#include <optional>
#include <string>

/// Sets Name to Value, or takes it away without one, until the end of this object's life.
class Environment_Scope {
public:
    explicit Environment_Scope(std::string Name, std::optional<std::string> Value = std::nullopt)
        : Name_(std::move(Name)) {
        if (const char* Old = std::getenv(Name_.c_str())) Old_ = Old;
        Set(Value);
    }
    ~Environment_Scope() { Set(Old_); }
    Environment_Scope(const Environment_Scope&) = delete;
    Environment_Scope& operator=(const Environment_Scope&) = delete;

private:
    void Set(const std::optional<std::string>& Value) const {
        if (Value)
            setenv(Name_.c_str(), Value->c_str(), 1);
        else
            unsetenv(Name_.c_str());
    }

    std::string Name_;
    std::optional<std::string> Old_;
};
