// A long pass: what the program holds of the system must not grow with the documents done.

#include <cstdlib>
#include <iostream>

#include "scenario.h"

namespace {

class Soak : public Scenario {
 protected:
    /// Goes on from one to another one-based line, saving all between; gives what the program holds
    /// there.
    Resources advance(int from, int to) {
        while (from++ < to) {
            app.click(IDC_FORM3_CMDSUIV);
            app.waitForText(IDC_FORM3_NBFICH1, std::to_string(from));
        }
        const Resources held = app.resourcesInUse();
        std::cout << held.describe() << '\n';
        return held;
    }
};

TEST_F(Soak, ResourcesStayFlat) {
    // TARNWICK_SOAK in the environment makes the pass longer (2000 for a real soak).
    const char* wanted = std::getenv("TARNWICK_SOAK");
    const int count = wanted ? std::atoi(wanted) : 150;
    std::vector<std::string> names;
    for (int i = 0; i < count; ++i) names.push_back("piece " + std::to_string(i) + ".SLDPRT");
    writeListOf(names);
    cad.start({"--hidden"});
    startAndResume();
    app.waitForText(IDC_FORM3_NBFICH1, "1");

    const int warm = count > 200 ? 100 : 20;
    const Resources before = advance(1, warm);
    const Resources after = advance(warm, count);
    EXPECT_TRUE(before.kernelHandles > 0 && before.gdiObjects > 0);
    EXPECT_LE(after.kernelHandles, before.kernelHandles + 5);
    EXPECT_LE(after.gdiObjects, before.gdiObjects + 5);
    EXPECT_LE(after.windows, before.windows);
    // A thread that COM happens to start on the way takes a megabyte once.
    EXPECT_LE(after.memoryBytes, before.memoryBytes + (2 << 20));
}

}  // namespace
