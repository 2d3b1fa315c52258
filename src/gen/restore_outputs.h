// gen/restore_outputs.h - the way back from a generation to the one before it.
#pragma once

/// Puts the outputs of the open project that the last generation found back in their places, and
/// keeps in their stead those that it made, also where none stood. So a second call undoes the
/// first. The
/// host is told of each that is deleted and written. When none is kept, a plain box tells it.
void Restore_Outputs();
