// A long pass: what the program holds of the system must not grow with the documents done.

#include <cstdlib>

#include "scenario.h"

struct Soak : Scenario {
    /// What the program holds once it has come to this one-based line.
    Resources heldAt(int line) const {
        for (int at = 1; at <= line; ++at) {
            waitFor("a document", [&] { return std::stoi(app.textOf(IDC_FORM3_NBFICH1)) >= at; });
        }
        return app.resourcesInUse();
    }
};

TEST_F(Soak, ResourcesStayFlatWhileAPassGoesOnAlone) {
    // TARNWICK_SOAK in the environment makes the pass longer (8001 for a real soak).
    const char* wanted = std::getenv("TARNWICK_SOAK");
    const int count = wanted ? std::atoi(wanted) : 150;
    std::vector<std::string> names;
    for (int i = 0; i < count; ++i) names.push_back("piece " + std::to_string(i) + ".SLDPRT");
    resume(names, {"--hidden"});
    app.waitForText(IDC_FORM3_NBFICH1, "1");
    app.chooseInSystemMenu(kTracking, IDM_FORM3_SEUL);
    app.answerBox(IDYES);

    const Resources before = heldAt(count > 200 ? 100 : 20);
    const Resources after = heldAt(count - 10);
    EXPECT_TRUE(before.kernelHandles > 0 && before.gdiObjects > 0);
    EXPECT_LE(after.kernelHandles, before.kernelHandles + 5);
    EXPECT_LE(after.gdiObjects, before.gdiObjects + 5);
    EXPECT_LE(after.windows, before.windows);
    // A thread that COM happens to start on the way takes a megabyte once.
    EXPECT_LE(after.memoryBytes, before.memoryBytes + (2 << 20));
}
