// core/model_sound.h - whether a model holds together, so that all that reads it may rely on it.
#pragma once

/// Every object's points are one chain of as many as it says, which no other has; every number is
/// finite, and every square one of the globe's. A project file is read so that it cannot be
/// otherwise; a model that came as bytes is asked before it is shown.
bool Model_Is_Sound();
