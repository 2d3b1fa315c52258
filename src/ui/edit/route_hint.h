// ui/edit/route_hint.h - what the next click does in Mode_Route, in a few words.
#pragma once

#include "ui/form/wording.h"

Wording Route_Hint();
