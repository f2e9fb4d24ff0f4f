#pragma once

#include "Framework/Config.h"

/// Changes settings by their names on the command line, and activates them. After each test they
/// are the defaults again.
inline void activate(std::initializer_list<std::pair<const char*, int>> settings) {
    auto& config = quorva::config::Config::Instance();
    for (const auto& [name, value] : settings)
        config.getConfigValues().setValue(name, value);
    config.activateConfig();
}
