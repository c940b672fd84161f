#pragma once

#include <string>
#include <string_view>

#include "searchfolders/configurations.h"

class Files;
struct Module1;

// The configuration file: per configuration a header line, the marker "Configuration:" and the
// name, then one line for each directory.

/// Reads the text of a configuration file into the rows from 1 on and sets NbConf. Lines before
/// the first header go into row 0; blank and comment lines are directories like any other line.
/// Raises 9 at a 51st header, or at a 201st line under one header.
void parseConfFile(std::wstring_view text, std::wstring_view marker, Configurations& configs);

/// The text for all named rows but row 0. Empty entries are left out, which closes holes.
std::wstring formatConfFile(const Configurations& configs, std::wstring_view marker);

/// Clears the rows from 1 on and reads the configuration file, if there is one, into them.
/// Raises 9, and 70 or 75 when the file can't be read.
void LireConfigs(Module1& module, Files& files);

/// Replaces the configuration file. Raises 70, 75 or 76.
void EcrireConfigs(Module1& module, Files& files);
