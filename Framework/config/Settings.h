#pragma once

#include "Framework/config/ConfigValue.h"

#include <string>
#include <vector>

namespace quorva::config {

/// In front of the long name of a boolean setting, this turns it off.
const std::string default_negative_prefix = "No";

/// What is peculiar to a setting.
enum SettingFlags : unsigned {
    no_flags = 0U,
    spaced_tail = 1U << 0U,       ///< the report of a bad value has a blank before its comma
    no_negative_entry = 1U << 1U, ///< the help doesn't list "No" and its name, which still works
    stored_by_letter = 1U << 2U,  ///< its setter stores by letter, which means true: never false
    never_restored = 1U << 3U,    ///< written to the file, but not taken from it
    not_in_replays = 1U << 4U,    ///< play, its pages and its pictures don't depend on it
};

/// All that the program knows of one setting.
struct Setting : ConfigValueAnon {
    bool isFlag;                     ///< boolean; else an integer
    int defaultValue;                ///< of a flag 0 or 1
    CVRange<int> range;              ///< of an integer
    std::vector<int> validValues;    ///< of an integer with a list, which then decides; else empty
    std::string negativeDescription; ///< of a flag, the help of its negative entry
    int fileLine;                    ///< line in the configuration file, from 1
    unsigned flags;                  ///< SettingFlags

    bool has(SettingFlags flag) const { return (flags & flag) != 0U; }
};

/// One row a setting, in the order of the help: integers, then booleans.
const std::vector<Setting>& allSettings();

/// The setting of that letter. Throws ConfigValueException if there is none.
const Setting& settingWith(char letter);

} // namespace quorva::config
