#pragma once

#include "Framework/config/ConfigValues.h"
#include "fuzz/Playground.h"

namespace fuzz {

/// Whatever was read, no setting is outside its limits.
inline void requireValid(const quorva::config::ConfigValuesT& table) {
    for (const auto& setting : table.intValues)
        require(setting.isValid(setting.value), setting.longName.c_str());
    require(table.getAnonNames().size() == table.intValues.size() + table.boolValues.size(),
            "every setting is listed");
}

} // namespace fuzz
