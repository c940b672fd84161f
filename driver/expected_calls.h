#pragma once

#include <string>
#include <vector>

// The calls that the CAD session receives, spelled as its journal spells them.
namespace driver::calls {

using Calls = std::vector<std::string>;

enum class Rebuild { None, TopLevel, AllLevels };

/// The type by which a document is opened.
long TypeCode(const std::string& path);

/// What start-up asks of the session.
Calls AtStartUp();

std::string Close(const std::string& path);
std::string Save(const std::string& path);

/// Opening a document, bringing it forward and zooming, as the loading options say.
Calls Open(const std::string& path, bool silent = true, Rebuild rebuild = Rebuild::AllLevels);

Calls Together(const std::vector<Calls>& parts);

}  // namespace driver::calls
