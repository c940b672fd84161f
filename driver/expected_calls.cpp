#include "driver/expected_calls.h"

namespace driver::calls {
namespace {

std::string title(const std::string& path) { return path.substr(path.rfind('\\') + 1); }

std::string quoted(const std::string& text) { return "\"" + text + "\""; }

}  // namespace

int typeCode(const std::string& path) {
    if (path.ends_with("PRT")) return 1;
    return path.ends_with("ASM") ? 2 : 3;
}

Calls atStartUp() { return {"RevisionNumber()", "GetCurrentWorkingDirectory()"}; }

std::string closing(const std::string& path) { return "closedoc(" + quoted(path) + ")"; }

std::string saving(const std::string& path) { return title(path) + ".save2(True)"; }

Calls opening(const std::string& path) {
    const std::string document = title(path);
    return {"OpenDoc6(&" + quoted(path) + ", &" + std::to_string(typeCode(path)) +
                ":i2, 1:i4, \"\", &0:i4, &0:i4)",
            "ActivateDoc2(&" + quoted(path) + ", True, &0:i4)",
            "Visible = True",
            document + ".ForceRebuild3(False)",
            document + ".GetTitle()",
            document + ".ViewZoomtofit2()"};
}

Calls together(const std::vector<Calls>& parts) {
    Calls all;
    for (const Calls& part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
}

}  // namespace driver::calls
