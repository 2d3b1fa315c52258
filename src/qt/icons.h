// qt/icons.h - the pictures of tool buttons, inked in the colours of the desktop's theme.
#pragma once

#include <QIcon>
#include <string_view>

/// The picture of that name, drawn at any size in the palette's text colour, paler while
/// disabled. An empty icon when there is none.
QIcon Themed_Icon(std::string_view Name);

/// The program's own icon.
QIcon Program_Icon();
