// core/within_memory.h - work that may need more memory than there is.
#pragma once

#include <new>
#include <stdexcept>
#include <string>

/// Does Work. False when memory ran out; what Work had taken is free again then, and whoever
/// called puts the rest back and tells the user.
template <typename F>
bool Within_Memory(F Work) {
    try {
        Work();
        return true;
    } catch (const std::bad_alloc&) {
        return false;
    } catch (const std::length_error&) {  // a list longer than any memory
        return false;
    }
}

/// What, in either language, needs more memory than there is; and a plain box with that.
std::string No_Memory_Text(const char* English, const char* French);
void Box_No_Memory(const char* English, const char* French);
