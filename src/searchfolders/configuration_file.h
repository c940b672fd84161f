#pragma once

#include <string>
#include <string_view>

#include "searchfolders/configurations.h"

class FileSystemObject;
class Files;

// The configuration file: per configuration a header line, the marker "Configuration:" and the
// name, then one line for each directory.

/// Reads the text of a configuration file into the rows from 1 on, the last of which it notes.
/// Lines before the first header go into row 0; blank and comment lines are directories like any
/// other line. Raises 9 at a 51st header, or at a 201st line under one header, and names that line
/// of the file.
void parseConfigurationFile(std::wstring_view text, Configurations& configurations,
                            const std::wstring& file);

/// The text for all named rows but row 0. Empty entries are left out, which closes holes.
std::wstring formatConfigurationFile(const Configurations& configurations);

/// Clears the rows from 1 on and reads the configuration file, if there is one, into them.
/// Raises 9, and 70 or 75 when the file can't be read.
void readConfigurations(Configurations& configurations, const std::wstring& file,
                        FileSystemObject& fileSystem, Files& files);
