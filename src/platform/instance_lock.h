// platform/instance_lock.h - whether the program runs already.
#pragma once

#include <memory>

/// Held by the one running instance of a user. The system releases it when the program ends,
/// however it ends. TERRAFOLD_LOCK in the environment is the path of another lock in its place:
/// the tests have one of their own each.
class Instance_Lock {
public:
    Instance_Lock();
    ~Instance_Lock();
    Instance_Lock(const Instance_Lock&) = delete;
    Instance_Lock& operator=(const Instance_Lock&) = delete;

    /// Takes the lock. False when another instance holds it; true as well when the system
    /// offers no lock, since a program that cannot tell must start. Taking it twice is true.
    bool Take();

private:
    struct Handle;
    std::unique_ptr<Handle> Handle_;
};
