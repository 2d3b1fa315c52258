// platform/terminal.h - what the standard streams are joined to.
#pragma once

/// Whether standard error is a terminal, so that a line may be written over.
bool Error_Is_Terminal();
