// ui/keyboard.h - the keys of the main form and of the canvas.
#pragma once

#include <string_view>

#include "ui/events.h"

/// The letters that go with Alt, for whoever gives out others.
extern const std::string_view Alt_Letters;

/// A key of the main form, which sees each first: Alt with a key presses a button if that is
/// enabled, the arrows move the selected object (Shift by 1 canvas pixel, Ctrl by 5). True when
/// the key was used.
bool Frm_Key(Key_Event K);

/// A key that reaches the canvas: Escape and Delete, as the mode that is on takes them.
bool Pic_Key(Key_Event K);
