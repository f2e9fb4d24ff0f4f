#pragma once

#include <algorithm>
#include <string>
#include <vector>

/// A setting of three grades, given as "low", "medium" or "high".
enum QualityE { quality_low, quality_medium, quality_high };

namespace quorva::config {

/// Groups the settings in the help.
enum config_variable_section_e {
    section_video,
    section_sound,
    section_effects,
    section_input,
    section_misc,
};

/// The values that a setting takes; both bounds are inclusive.
template <class T>
struct CVRange {
    T min;
    T max;
};

/// The part of a setting that has no type.
struct ConfigValueAnon {
    char shortName;       ///< letter on the command line
    std::string longName; ///< key in the file, and behind "--" on the command line
    std::string description;
    config_variable_section_e section;

    bool operator==(char letter) const { return shortName == letter; }
    bool operator==(const char* name) const { return longName == name; }
    bool operator==(const std::string& name) const { return longName == name; }
};

/// The first of `settings` with that letter or long name; null if there is none.
template <class Settings, class Key>
auto findSetting(Settings& settings, const Key& key) -> decltype(settings.data()) {
    const auto found =
        std::find_if(settings.begin(), settings.end(), [&key](const auto& s) { return s == key; });
    return found == settings.end() ? nullptr : &*found;
}

/// Thrown by value when a setting is not found, or a value is refused.
class ConfigValueException {
public:
    enum Reason { no_such_setting = 0, invalid_value = 1 };

    explicit ConfigValueException(int reason_) : reason(reason_) {}

    int reason;
};

/// If there are valid values, they alone decide; otherwise the range does.
template <class T>
bool isValid(T v, const std::vector<T>& validValues, const CVRange<T>& range) {
    if (validValues.empty()) return range.min <= v && v <= range.max;
    return std::find(validValues.begin(), validValues.end(), v) != validValues.end();
}

/// One setting with its value, in one table of settings.
template <class T>
class ConfigValue : public ConfigValueAnon {
public:
    ConfigValue(char letter, const std::string& name, const std::string& text, T value_,
                CVRange<T> range_, config_variable_section_e section_)
        : ConfigValueAnon{letter, name, text, section_}, value(value_), defaultValue(value_),
          range(range_) {}
    ConfigValue(const ConfigValue&) = default;
    ConfigValue& operator=(const ConfigValue&) = default;
    virtual ~ConfigValue() = default;

    void addValid(T v) { validValues.push_back(v); }

    bool isValid(T v) const { return config::isValid(v, validValues, range); }

    /// Throws ConfigValueException if `v` is not valid.
    void set(T v) {
        if (!isValid(v)) throw ConfigValueException(ConfigValueException::invalid_value);
        value = v;
    }

    T value;
    T defaultValue;
    CVRange<T> range;
    std::vector<T> validValues; ///< empty where the range decides
};

} // namespace quorva::config
