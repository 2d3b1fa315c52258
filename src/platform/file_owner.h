// platform/file_owner.h - whose a file is.
#pragma once

#include <string_view>

/// Whether Path is a file of another user in a directory where each may replace only what is
/// his, so that no save can give another file its name.
bool File_Only_Its_Owner_Replaces(std::string_view Path);
