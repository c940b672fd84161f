#pragma once

#include <string>
#include <vector>

// The calls that the CAD session receives, spelled as its journal spells them.
namespace driver::calls {

using Calls = std::vector<std::string>;

enum class Rebuild { None, TopLevel, AllLevels };

/// The type by which a document is opened.
int typeCode(const std::string& path);

/// What start-up asks of the session.
Calls atStartUp();

std::string closing(const std::string& path);
std::string saving(const std::string& path);

/// Opening a document, bringing it forward and zooming, as the loading options say.
Calls opening(const std::string& path, bool silent = true, Rebuild rebuild = Rebuild::AllLevels);

Calls together(const std::vector<Calls>& parts);

}  // namespace driver::calls
