// Any bytes as a configuration file: they are read, or refused because a table is full; and what
// was written of them reads the same again.

#include "fuzz_input.h"
#include "searchfolders/configuration_file.h"

namespace {

constexpr std::wstring_view kMarker = L"Configuration:";

bool sameConfigurations(const Configurations& a, const Configurations& b) {
    for (long row = 1; row <= a.NbConf; ++row) {
        for (long entry = 0; entry <= kMostDirectories; ++entry) {
            if (a.ConfRep[row][entry] != b.ConfRep[row][entry]) return false;
        }
    }
    return a.NbConf == b.NbConf;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Configurations configs;
    const int error = errorOf([&] { parseConfFile(textOfBytes(data, size), kMarker, configs); });
    require(error == 0 || error == 9);
    if (error != 0) return 0;
    require(configs.NbConf >= 0 && configs.NbConf <= kMostConfigurations);

    // The first saving drops nameless rows and closes holes; from then on nothing changes.
    Configurations saved;
    Configurations again;
    if (errorOf([&] { parseConfFile(formatConfFile(configs, kMarker), kMarker, saved); }) != 0) {
        return 0;
    }
    parseConfFile(formatConfFile(saved, kMarker), kMarker, again);
    require(sameConfigurations(saved, again));
    return 0;
}
