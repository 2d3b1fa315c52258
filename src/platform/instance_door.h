// platform/instance_door.h - how a second start hands its project to the running program.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

/// Open while the one running instance of a user (instance_lock.h) takes projects. Only this
/// user's programs reach it.
class Instance_Door {
public:
    Instance_Door();
    ~Instance_Door();
    Instance_Door(const Instance_Door&) = delete;
    Instance_Door& operator=(const Instance_Door&) = delete;

    /// The next path that was handed over, in the program's form.
    std::optional<std::string> Take();
    /// The descriptor that can be read when there is one; -1 where one has to ask now and then,
    /// or where nothing can come.
    std::intptr_t Descriptor() const;

private:
    struct Handle;
    std::unique_ptr<Handle> Handle_;  // null when the system offers none
};

/// Hands Path to the running instance. False when it has no door, or does not take it.
bool Instance_Hand_Over(std::string_view Path);
