#pragma once

#include <string>
#include <string_view>

#include "searchfolders/configurations.h"

class MessageBoxes;
struct Module1;

/// Stores the parts of a text between semicolons from entry 1 on, empty parts too; nothing for an
/// empty text. The entries behind are left as they are. Raises 9 past 200 parts.
void splitFolders(std::wstring_view folders, Configuration& configuration);

/// The directories up to the first empty one, with semicolons between. Raises 9 when all 200
/// entries are in use: there is no end to find.
std::wstring joinFolders(const Configuration& configuration);

/// Reads the CAD application's search folders into row 0, under the name "En Cours". Raises what
/// the application answers, and 9 past 200 folders.
void LireRepCourants(Module1& module);

/// Makes a row of the table the CAD application's search folders, and tells the user whether the
/// application took them. Raises what the application answers, and 9 as joinFolders.
void AppliquerConf(Module1& module, MessageBoxes& boxes, long index);
