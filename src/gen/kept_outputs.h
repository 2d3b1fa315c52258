// gen/kept_outputs.h - outputs of the former generation, kept in the home's Temp until the next
// one has ended.
//
// A generation moves what it finds into an open set and closes it at its end; the set then takes
// the place of the one before. A generation that was killed leaves its set open and the next goes
// on with it; of an output that both found the first stays, since what a killed generation made
// is no better.
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Moves the file or link Path of the open project into the open set. False when it is still
/// where it was.
bool Kept_Take(std::string_view Path);

/// Moves what was taken from Path back to it.
bool Kept_Put_Back(std::string_view Path);

/// Notes in the open set that Path is made where none stood, unless one was taken from there.
void Kept_Note_New(std::string_view Path);

/// Whether there is an open set.
bool Kept_Is_Open();

/// Ends the open set, if there is one. Of the set before it the outputs of this project stay
/// which neither stand in their place nor are in the newer set.
void Kept_Close();

/// An output of a closed set.
struct Kept_Output {
    std::string File;  // where it is kept; empty when none stood at Path
    std::string Path;  // where it belongs
};

/// The outputs of the open project that the closed set holds.
std::vector<Kept_Output> Kept_Outputs();

/// Forgets what a file of Kept_Outputs was, once it has been moved away.
void Kept_Forget(const Kept_Output& Output);
