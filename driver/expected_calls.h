#pragma once

#include <string>
#include <vector>

// The calls that the CAD session receives, spelled as its journal spells them.
namespace driver::calls {

using Calls = std::vector<std::string>;

/// The type by which a document is opened.
int typeCode(const std::string& path);

/// What start-up asks of the session.
Calls atStartUp();

std::string closing(const std::string& path);
std::string saving(const std::string& path);

/// Opening a document with the loading options of a first run, bringing it forward and zooming.
Calls opening(const std::string& path);

Calls together(const std::vector<Calls>& parts);

}  // namespace driver::calls
