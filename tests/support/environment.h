// tests/support/environment.h - an environment variable for the time of a test.
#pragma once

#include <optional>
#include <string>

#include "platform/system.h"

/// Gives Name a value, in UTF-8, or takes it away.
void Set_Environment(const std::string& Name, const std::optional<std::string>& Value);

/// Sets Name to Value, or takes it away without one, until the end of this object's life.
class Environment_Scope {
public:
    explicit Environment_Scope(std::string Name,
                               const std::optional<std::string>& Value = std::nullopt)
        : Name_(std::move(Name)), Old_(Env_Text(Name_.c_str())) {
        Set_Environment(Name_, Value);
    }
    ~Environment_Scope() { Set_Environment(Name_, Old_); }
    Environment_Scope(const Environment_Scope&) = delete;
    Environment_Scope& operator=(const Environment_Scope&) = delete;

private:
    std::string Name_;
    std::optional<std::string> Old_;
};
