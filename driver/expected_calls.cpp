#include "driver/expected_calls.h"

namespace driver::calls {
namespace {

std::string Title(const std::string& path) { return path.substr(path.rfind('\\') + 1); }

std::string Quoted(const std::string& text) { return "\"" + text + "\""; }

}  // namespace

long TypeCode(const std::string& path) {
    if (path.ends_with("PRT")) return 1;
    return path.ends_with("ASM") ? 2 : 3;
}

Calls AtStartUp() { return {"RevisionNumber()", "GetCurrentWorkingDirectory()"}; }

std::string Close(const std::string& path) { return "closedoc(" + Quoted(path) + ")"; }

std::string Save(const std::string& path) { return Title(path) + ".save2(True)"; }

Calls Open(const std::string& path, bool silent, Rebuild rebuild) {
    Calls calls{"OpenDoc6(&" + Quoted(path) + ", &" + std::to_string(TypeCode(path)) + ":i2, " +
                    (silent ? "1" : "0") + ":i4, \"\", &0:i4, &0:i4)",
                "ActivateDoc2(&" + Quoted(path) + ", True, &0:i4)", "Visible = True"};
    const std::string document = Title(path);
    if (rebuild == Rebuild::AllLevels) calls.push_back(document + ".ForceRebuild3(False)");
    if (rebuild == Rebuild::TopLevel) calls.push_back(document + ".ForceRebuild3(True)");
    calls.push_back(document + ".GetTitle()");
    calls.push_back(document + ".ViewZoomtofit2()");
    return calls;
}

Calls Together(const std::vector<Calls>& parts) {
    Calls all;
    for (const Calls& part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
}

}  // namespace driver::calls
