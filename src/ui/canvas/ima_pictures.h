// ui/canvas/ima_pictures.h - the pictures of textures that lie on the map.
#pragma once

#include <vector>

#include "core/numbers.h"
#include "core/resets.h"
#include "tex/picture.h"

/// The picture of element I of Tab_Ima is WPicIma[I - 1]; one that is not there, or could not be
/// read, is empty.
inline std::vector<Picture> WPicIma;
inline const bool WPicIma_Is_Reset = At_Reset([] { WPicIma.clear(); });

/// Reads the picture of element I from its DirFic. False, and the former picture stays, when the
/// file cannot serve.
bool Ima_Picture_Load(Long I);
/// The picture of element I, or null when it has none.
const Picture* Ima_Picture(Long I);
/// Empties the picture of element I.
void Ima_Picture_Drop(Long I);

/// Reads the pictures of all elements of a project; those that cannot be read are empty.
void Ima_Load();
/// Lets go of all pictures.
void Ima_Unload();
