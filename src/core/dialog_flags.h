// core/dialog_flags.h - whether a dialog was cancelled, as those who open it ask.
//
// Each is set before its dialog is shown and cleared by the dialog's Ok.
#pragma once

#include "core/numbers.h"
#include "core/resets.h"

struct Dialog_Flags {
    Int Area_Cancelled = 1;    // squares: Frm_LOD and Frm_LOD8
    Int Excl_Cancelled = 1;    // Frm_Excl
    Int LC_Cancelled = 1;      // Frm_LC
    Int WC_Cancelled = 1;      // Frm_WC
    Int Route_Cancelled = 1;   // Frm_Route
    Int Ima_Cancelled = 1;     // Frm_Ima
    Int PtGrid_Cancelled = 1;  // Frm_PtGrid
};

inline Dialog_Flags The_Dialog_Flags;

inline Int& Area_Cancelled = The_Dialog_Flags.Area_Cancelled;
inline Int& Excl_Cancelled = The_Dialog_Flags.Excl_Cancelled;
inline Int& LC_Cancelled = The_Dialog_Flags.LC_Cancelled;
inline Int& WC_Cancelled = The_Dialog_Flags.WC_Cancelled;
inline Int& Route_Cancelled = The_Dialog_Flags.Route_Cancelled;
inline Int& Ima_Cancelled = The_Dialog_Flags.Ima_Cancelled;
inline Int& PtGrid_Cancelled = The_Dialog_Flags.PtGrid_Cancelled;

inline const bool Dialog_Flags_Are_Reset = At_Reset([] { The_Dialog_Flags = {}; });
