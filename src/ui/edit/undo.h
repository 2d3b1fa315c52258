// ui/edit/undo.h - taking back and doing again what was done to the project, on the canvas.
#pragma once

/// The commands. Afterwards no tool is on, the object, texture or altitude point that changed is
/// selected if it is there and its mode on, and the view shows something of what changed.
void Cmd_Undo();
void Cmd_Redo();

/// Whether they are in reach: there is a step, and no form beside the main one is at work on
/// the project.
bool May_Undo();
bool May_Redo();
