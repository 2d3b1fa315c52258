// core/resets.h - how folders above the core take part in the one reset.
#pragma once

/// Adds Reset to what Program_Reset does. Returns true: a header whose globals need it holds
///     inline const bool Thing_Is_Reset = At_Reset(Thing_Reset);
/// so that every program which has the globals resets them.
bool At_Reset(void (*Reset)());
