// qt/busy.h - the window repaints while the program works, and takes no input.
#pragma once

/// While one of these lives, what the user does is dropped and no window closes.
class Busy {
public:
    Busy();
    ~Busy();
    Busy(const Busy&) = delete;
    Busy& operator=(const Busy&) = delete;

    static bool Is_On();
};

/// Handles what the window system has sent, input dropped.
void Process_Events_Busy();
