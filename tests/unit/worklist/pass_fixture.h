#pragma once

#include "fakes/fake_services.h"
#include "unit/unit_test.h"
#include "worklist/pass.h"

/// The text of a list file of the documents c:\0, c:\1 … whose codes these are.
inline std::string listOf(const std::vector<std::string>& codes) {
    std::string text;
    for (std::size_t i = 0; i < codes.size(); ++i) {
        text += codes[i] + std::string(3 - codes[i].size(), ' ') + "c:\\" + std::to_string(i);
        text += "\r\n";
    }
    return text;
}

/// The same from one-character codes: "0132".
inline std::string listOf(const std::string& codes) {
    std::vector<std::string> each;
    for (const char code : codes) each.emplace_back(1, code);
    return listOf(each);
}

inline std::string codesOf(const Pass& pass) {
    std::string codes;
    for (int i = 0; i <= pass.list().last; ++i) codes += pass.list().lines[i].code.text();
    return codes;
}

inline LineSelected only(std::vector<int> lines) {
    return [lines](int line) { return std::ranges::find(lines, line) != lines.end(); };
}

inline const LineSelected kAllLines = [](int) { return true; };

struct PassFixture : testing::Test {
    Pass& begin(const std::string& listFile) {
        pass.emplace(clock);
        pass->read(listFile);
        return *pass;
    }
    /// Begun on a list with one-character codes, and started.
    Pass& started(const std::string& codes) {
        begin(listOf(codes)).start();
        return *pass;
    }

    FakeClock clock;
    std::optional<Pass> pass;
};
