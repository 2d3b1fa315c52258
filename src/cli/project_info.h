// cli/project_info.h - an overview of the open project as JSON.
#pragma once

#include <string>

/// Counts, map, extent and outputs of the open project: one JSON object in UTF-8, with a line
/// end. Degrees are north and east positive.
std::string Project_Info();
