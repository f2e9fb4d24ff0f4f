// Anything as arguments, one a line: the settings stay within their limits.

#include "Framework/Config.h"
#include "fuzz/Settings.h"

#include <sstream>

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool entered = (fuzz::enterPlayground(), true);
    static_cast<void>(entered);
    quorva::config::ConfigClass config;
    config.setDefaults();
    std::istringstream arguments(fuzz::textOf(data, size));
    std::string argument;
    while (std::getline(arguments, argument)) {
        config.parseCmdLineArgs("kov", argument.c_str());
        fuzz::requireValid(config.getConfigValues());
    }
    return 0;
}
