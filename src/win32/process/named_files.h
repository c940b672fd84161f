#pragma once

#include <string>
#include <vector>

/// The files that the command line names after the program, by their full paths: relative ones are
/// taken from the current directory, short forms of names made long. What is no path at all stays
/// as it is.
std::vector<std::wstring> namedFiles();
