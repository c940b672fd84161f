#pragma once

#include <string>
#include <string_view>

#include "searchfolders/configurations.h"

// The directories of a configuration as the CAD application has them: one text, with semicolons.

/// Stores the parts of a text between semicolons from entry 1 on, empty parts too; nothing for an
/// empty text. The entries behind are left as they are. Raises 9 past 200 parts.
void splitFolders(std::wstring_view folders, Configuration& configuration);

/// The directories up to the first empty one, with semicolons between. Raises 9 when all 200
/// entries are in use: there is no end to find.
std::wstring joinFolders(const Configuration& configuration);
