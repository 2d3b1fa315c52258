// core/messages.cpp
#include "core/messages.h"
