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

class QAbstractButton;

/// While the program works the user can press this button all the same, and Escape presses it.
void Let_Through_Busy(QAbstractButton& Button);

/// While one of these lives input comes through: a box asks something while the program works.
class Busy_Pause {
public:
    Busy_Pause();
    ~Busy_Pause();
    Busy_Pause(const Busy_Pause&) = delete;
    Busy_Pause& operator=(const Busy_Pause&) = delete;

private:
    int Depth_;
};

/// Handles what the window system has sent, input dropped.
void Process_Events_Busy();
