// ui/frm/undo_controls.h - what the menu Edit and its buttons show.
#pragma once

/// Undo and Redo name their step in Language, and are in reach when there is one.
void Undo_Controls_Show();
