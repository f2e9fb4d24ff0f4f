// Anything as game.conf: the settings stay within their limits, and what is saved reads back.

#include "Framework/Config.h"
#include "fuzz/Settings.h"

using quorva::config::ConfigClass;

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool entered = (fuzz::enterPlayground(), true);
    static_cast<void>(entered);
    fuzz::write("game.conf", data, size);
    ConfigClass config;
    config.setDefaults();
    config.readFile();
    fuzz::requireValid(config.getConfigValues());
    fuzz::require(config.configActivated(), "what was read is in force");

    config.saveConfig();
    ConfigClass again;
    again.setDefaults();
    again.readFile();
    fuzz::require(again.getConfigValues() == config.getConfigValues(), "what is saved reads back");
    return 0;
}
