// core/history.h - what the user has done to the open project, to be taken back and done again.
//
// Nothing that edits knows of it. When an act of the user has ended, the model is compared with
// how it stood before, of which a copy is kept; the difference is a step. So whatever changes
// the project can be taken back, and none of it can be forgotten.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "core/step.h"

/// The most that all steps take together, in bytes; the oldest go first, the newest never.
inline std::size_t History_Limit = std::size_t{256} << 20;

/// The open project as it stands is the state that steps begin from; there are none yet.
void History_Start();
/// No project is open: the steps are forgotten.
void History_End();
bool History_Is_On();

/// An act has ended that was done to the form Owner: what it changed is a new step, and nothing
/// can be done again any more. What ticks of Owner change belongs to the step before it if that
/// one was Owner's as well. False when nothing has changed.
bool History_Act_Ended(std::string_view Owner = {}, bool Is_Tick = false);

/// The points have got other rows, which is no act: it belongs to the last step, so that the
/// steps before it find their rows again. Where there is none, or that would take too much of
/// what steps may take, they begin anew. Nothing may be there to be done again.
void History_Points_Tidied();

std::size_t History_Undo_Count();
std::size_t History_Redo_Count();
/// The step that Undo or Redo would be about; there must be one.
Step_Kind History_Next_Undo();
Step_Kind History_Next_Redo();

/// Takes back the step done last, or does again the one taken back last. Told is called with
/// each change of the model that it made, once all are made. False when there is none.
using Change_Told = std::function<void(const Step_Change&)>;
bool History_Undo(const Change_Told& Told);
bool History_Redo(const Change_Told& Told);

/// Does a step that was read: false, and nothing changes, when the model is not as it stood
/// before that step.
bool History_Do(std::string_view Bytes, bool Joins_Last);

/// Makes the model the one of a step like Step_Of_Whole_Model; false, and nothing changes, when
/// it is none.
bool History_Set_Model(std::string_view Bytes);
