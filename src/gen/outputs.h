// gen/outputs.h - the simulator's files that a generation makes, and those it finds.
//
// A project may come from anybody, and it says where its outputs go. So an output is touched
// only when its name ends in ".bgl" and is neither the project, its map nor one of its textures.
// One that is there is moved away, not destroyed (kept_outputs.h).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "gen/makers.h"

enum class Output_State {
    Made,         // its tool has ended, and it is there; in a dry run, it would have run
    Missing,      // its tool has ended without having made it
    Not_Started,  // its tool could not be started
    Ended,        // the user has ended its tool
    Passed_Over,  // it may not be touched, or what was there could not be kept
};

struct Output_Fact {
    std::string Path;
    Output_State State = Output_State::Made;
};

/// What became of the outputs that the last generation was to make, in their order.
const std::vector<Output_Fact>& Output_Facts();

/// A generation begins: what was told of outputs is told again, and Output_Facts is empty.
void Outputs_Begin();

/// Whether the output Path may be deleted and written. When not, a plain box tells it, once a
/// generation; whoever wanted to make it goes on with the next.
bool Bgl_May_Be_Made(std::string_view Path);

/// Moves an older output away if there is one and it may be, and tells the host that it is
/// deleted. A link goes, not what it leads to. In a dry run the host is told and nothing else
/// happens. One that can't be moved may not be made.
void Bgl_Delete(std::string_view Path);

/// Moves an older output away for as long as its tools run; Bgl_Ended puts it back when they have
/// made no other. False when it can't be moved.
bool Bgl_Set_Aside(std::string_view Path);

/// The tools that were to make Path have run, or could not be started. When they have run and it
/// is not there, the host is told that it is missing.
void Bgl_Ended(std::string_view Path, bool Have_Run);

/// A generation has ended, be it in the middle: what was set aside goes back.
void Outputs_End();

/// Deletes the outputs that an earlier generation has made: the exclusions, and what is named by
/// the stem of NameBgl, "_" and digits. What a maker that is left out has made stays.
void Delete_Older_Outputs(bool (*Is_Left_Out)(Maker) = [](Maker) { return false; });
