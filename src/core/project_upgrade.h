// core/project_upgrade.h - bringing the records of a version 4.0 file up to date.
#pragma once

#include "core/model.h"

/// Changes one object as The_V24 asks.
void Upgrade_Obj(Attr& A);

/// Moves the exclusion classes of one Cell to their places of version 5.
void Upgrade_Excl(Excl& E);
