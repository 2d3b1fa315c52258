// gen/outputs.h - the simulator's files that a generation makes, and those it finds.
//
// A project may come from anybody, and it says where its outputs go. So an output is touched
// only when its name ends in ".bgl" and is neither the project, its map nor one of its textures.
#pragma once

#include <string_view>

/// A generation begins: what was told of outputs is told again.
void Outputs_Begin();

/// Whether the output Path may be deleted and written. When not, a plain box tells it, once a
/// generation; whoever wanted to make it goes on with the next.
bool Bgl_May_Be_Made(std::string_view Path);

/// Deletes an older output if there is one and it may be, and tells the host. A link goes, not
/// what it leads to. In a dry run the host is told and nothing else happens.
void Bgl_Delete(std::string_view Path);
