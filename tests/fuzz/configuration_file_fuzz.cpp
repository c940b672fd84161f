// Any bytes as a configuration file: they are read, or refused because a table is full; and what
// was written of them reads the same again.

#include "fuzz_input.h"
#include "searchfolders/configurations.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Configurations configs;
    const int error = raised([&] { parseConfigurationFile(textOfBytes(data, size), configs, {}); });
    require(error == 0 || error == 9);
    if (error != 0) return 0;
    require(configs.last >= 0 && configs.last <= kMostConfigurations);

    // The first saving drops nameless rows and closes holes; from then on nothing changes.
    const std::wstring saved = formatConfigurationFile(configs);
    Configurations again;
    if (raised([&] { parseConfigurationFile(saved, again, {}); }) != 0) return 0;
    require(formatConfigurationFile(again) == saved);
    return 0;
}
