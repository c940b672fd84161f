// A long pass: what the program holds of the system must not grow with the documents done.

#include <cstdlib>
#include <iostream>

#include "scenario.h"
#include "tracking/tracking_ids.h"

namespace driver {
namespace {

/// TARNWICK_SOAK in the environment makes the pass longer (2000 for a real soak).
int Documents() {
    const char* wanted = std::getenv("TARNWICK_SOAK");
    return wanted ? std::atoi(wanted) : 150;
}

class Soak : public Scenario {
 protected:
    /// Goes from the current line to this one-based line, saving all between.
    void AdvanceTo(int line) {
        for (; current_ < line; ++current_) {
            app.Click(IDC_FORM3_CMDSUIV);
            app.WaitForText(IDC_FORM3_NBFICH1, std::to_string(current_ + 1));
        }
    }

 private:
    int current_ = 1;
};

TEST_F(Soak, ResourcesStayFlat) {
    const int count = Documents();
    std::string list;
    for (int i = 0; i < count; ++i) {
        list += ListLine("0", sandbox.AddDocument("piece " + std::to_string(i) + ".SLDPRT"));
    }
    sandbox.WriteList(list);
    cad.Start({"--hidden"});
    StartAndResume();
    app.WaitForText(IDC_FORM3_NBFICH1, "1");

    AdvanceTo(count > 200 ? 100 : 20);
    const Resources before = app.ResourcesInUse();
    AdvanceTo(count);
    const Resources after = app.ResourcesInUse();
    std::cout << "before: " << before.Describe() << "\nafter:  " << after.Describe() << '\n';

    constexpr size_t kBreathing = 1 << 20;
    EXPECT_GT(before.kernelHandles, 0u);
    EXPECT_GT(before.gdiObjects, 0u);
    EXPECT_GT(before.memoryBytes, 0u);
    EXPECT_LE(after.kernelHandles, before.kernelHandles + 5);
    EXPECT_LE(after.gdiObjects, before.gdiObjects + 5);
    EXPECT_LE(after.windows, before.windows);
    EXPECT_LE(after.memoryBytes, before.memoryBytes + kBreathing);
}

}  // namespace
}  // namespace driver
