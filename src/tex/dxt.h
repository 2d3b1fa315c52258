// tex/dxt.h - pixels in compressed blocks of 4 by 4.
#pragma once

#include "tex/pixels.h"

/// As the converters of pixels.h. Width and height are multiples of 4. The alpha of DXT3, the
/// first half of each block, plays no part.
void Dxt1_To_Bmp24(const Stored_Pixels& From, Picture& To);
void Dxt3_To_Bmp24(const Stored_Pixels& From, Picture& To);
