// gen/home_turn.h - one generation at a time in a home, since its files have fixed names.
#pragma once

#include <memory>

/// While one of these lives no other program's can begin in this home; in this program any
/// number may. The system ends it with the program, however that ends.
class Home_Turn {
public:
    Home_Turn();
    /// False when another program has its turn; a plain box has told so.
    bool Is_Taken() const { return Lock_ != nullptr; }

private:
    struct Lock;
    static std::weak_ptr<Lock> Held_;
    std::shared_ptr<Lock> Lock_;
};
