// core/restore.h - at the start of the program: journals that a crash has left behind.
#pragma once

/// Asks about the journals in App_Path\Temp that no running program uses, until one is to be
/// restored: its project is opened and its steps are done again. What the user does not want is
/// kept once more, and goes the next time. True when a project was opened.
bool Offer_Restore();
