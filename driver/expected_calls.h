#pragma once

#include <string>
#include <vector>

// The calls that the CAD session receives, as its journal spells them.
namespace driver::calls {

using Calls = std::vector<std::string>;

/// The type by which a document is opened.
int typeCode(const std::string& path);

/// The calls of the program's start.
Calls atStartUp();

std::string closing(const std::string& path);
std::string saving(const std::string& path);

/// The calls that open a document with the loading options of a first run, bring it forward and
/// zoom.
Calls opening(const std::string& path);

Calls together(const std::vector<Calls>& parts);

}  // namespace driver::calls
