// Any bytes as a configuration file: they are read, or refused because a table is full; and what
// was written of them reads the same again.

#include "fuzz_input.h"
#include "searchfolders/configuration_file.h"

namespace {

bool sameConfigurations(const Configurations& a, const Configurations& b) {
    for (int row = 1; row <= a.last; ++row) {
        for (int entry = 0; entry <= kMostDirectories; ++entry) {
            if (a.rows[row][entry] != b.rows[row][entry]) return false;
        }
    }
    return a.last == b.last;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Configurations configs;
    const int error = errorOf([&] { parseConfigurationFile(textOfBytes(data, size), configs); });
    require(error == 0 || error == 9);
    if (error != 0) return 0;
    require(configs.last >= 0 && configs.last <= kMostConfigurations);

    // The first saving drops nameless rows and closes holes; from then on nothing changes.
    Configurations saved;
    Configurations again;
    if (errorOf([&] { parseConfigurationFile(formatConfigurationFile(configs), saved); }) != 0) {
        return 0;
    }
    parseConfigurationFile(formatConfigurationFile(saved), again);
    require(sameConfigurations(saved, again));
    return 0;
}
