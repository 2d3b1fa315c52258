// core/model_changes.h - whether what is drawn has changed since somebody looked.
#pragma once

#include <cstdint>

/// Grows with every change of Tab_Obj or Tab_Pt by model_ops.h and by the reading of a project.
/// Whoever writes to them directly adds 1. It never goes back, so whoever keeps something that
/// was worked out from them compares it with the value of that time.
inline std::uint64_t Model_Changes = 0;
