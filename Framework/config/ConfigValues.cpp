#include "Framework/config/ConfigValues.h"

#include "Framework/config/Settings.h"

#include <cctype>

namespace quorva::config {

namespace {

[[noreturn]] void fail(ConfigValueException::Reason reason) {
    throw ConfigValueException(reason);
}

bool isLower(char letter) {
    return std::islower(static_cast<unsigned char>(letter)) != 0;
}

char otherCase(char letter, int (*convert)(int)) {
    return static_cast<char>(convert(static_cast<unsigned char>(letter)));
}

template <class Values, class Key>
auto& require(Values& values, const Key& key, ConfigValueException::Reason reason) {
    auto* const found = findSetting(values, key);
    if (found == nullptr) fail(reason);
    return *found;
}

template <class Values, class Key>
auto& requireValue(Values& values, const Key& key) {
    return require(values, key, ConfigValueException::invalid_value);
}

/// The value behind the current one, or before it, wrapping.
int neighbour(const ConfigValue<int>& setting, bool forward) {
    const auto& valid = setting.validValues;
    if (valid.empty()) {
        if (setting.value == (forward ? setting.range.max : setting.range.min))
            return forward ? setting.range.min : setting.range.max;
        return setting.value + (forward ? 1 : -1);
    }
    const auto found = std::find(valid.begin(), valid.end(), setting.value);
    if (found == valid.end()) fail(ConfigValueException::invalid_value);
    const std::size_t index = found - valid.begin();
    return valid[(index + (forward ? 1 : valid.size() - 1)) % valid.size()];
}

constexpr int quality_count = 3;

QualityE neighbour(const ConfigValue<QualityE>& setting, bool forward) {
    return static_cast<QualityE>((setting.value + (forward ? 1 : quality_count - 1)) %
                                 quality_count);
}

template <class Values>
bool haveSameValues(const Values& ours, const Values& others) {
    return std::all_of(others.begin(), others.end(), [&ours](const auto& other) {
        const auto* const own = findSetting(ours, other.longName);
        return own != nullptr && own->value == other.value;
    });
}

template <class Key>
void restoreDefault(ConfigValuesT& table, const Key& key) {
    if (auto* const number = findSetting(table.intValues, key))
        return number->set(number->defaultValue);
    if (auto* const flag = findSetting(table.boolValues, key)) return flag->set(flag->defaultValue);
    auto& quality = require(table.qualityValues, key, ConfigValueException::no_such_setting);
    quality.set(quality.defaultValue);
}

template <class Key>
ConfigValueAnon& typeless(ConfigValuesT& table, const Key& key) {
    if (auto* const number = findSetting(table.intValues, key)) return *number;
    return require(table.boolValues, key, ConfigValueException::no_such_setting);
}

void addNumber(std::vector<ConfigValue<int>>& numbers, const Setting& setting) {
    numbers.emplace_back(setting.shortName, setting.longName, setting.description,
                         setting.defaultValue, setting.range, setting.section);
    for (const int v : setting.validValues)
        numbers.back().addValid(v);
}

/// The entry that lists "No" and the name of a boolean setting.
ConfigValueAnon negativeOf(const Setting& setting) {
    return {otherCase(setting.shortName, std::toupper), default_negative_prefix + setting.longName,
            setting.negativeDescription, setting.section};
}

void addFlag(std::vector<ConfigValue<bool>>& flags, const ConfigValueAnon& entry, bool value) {
    flags.emplace_back(entry.shortName, entry.longName, entry.description, value,
                       CVRange<bool>{false, true}, entry.section);
    flags.back().addValid(true);
    flags.back().addValid(false);
}

} // namespace

ConfigValuesT::ConfigValuesT() {
    for (const Setting& setting : allSettings()) {
        if (!setting.isFlag) {
            addNumber(intValues, setting);
            continue;
        }
        addFlag(boolValues, setting, setting.defaultValue != 0);
        if (!setting.has(no_negative_entry))
            addFlag(boolValues, negativeOf(setting), setting.defaultValue != 0);
    }
    for (auto& setting : intValues)
        anonNames.push_back(&setting);
    for (auto& setting : boolValues)
        anonNames.push_back(&setting);
    for (auto& setting : qualityValues)
        anonNames.push_back(&setting);
}

int ConfigValuesT::getIntVal(char key) const {
    return requireValue(intValues, key).value;
}
int ConfigValuesT::getIntVal(const std::string& key) const {
    return requireValue(intValues, key).value;
}
bool ConfigValuesT::getBoolVal(char key) const {
    return requireValue(boolValues, key).value;
}
bool ConfigValuesT::getBoolVal(const char* key) const {
    return requireValue(boolValues, key).value;
}
bool ConfigValuesT::getBoolVal(const std::string& key) const {
    return requireValue(boolValues, key).value;
}
QualityE ConfigValuesT::getQualityVal(char key) const {
    return requireValue(qualityValues, key).value;
}
QualityE ConfigValuesT::getQualityVal(const std::string& key) const {
    return requireValue(qualityValues, key).value;
}

int ConfigValuesT::getNextIntVal(char key) const {
    return neighbour(requireValue(intValues, key), true);
}
int ConfigValuesT::getNextIntVal(const std::string& key) const {
    return neighbour(requireValue(intValues, key), true);
}
int ConfigValuesT::getPrevIntVal(char key) const {
    return neighbour(requireValue(intValues, key), false);
}
int ConfigValuesT::getPrevIntVal(const std::string& key) const {
    return neighbour(requireValue(intValues, key), false);
}
QualityE ConfigValuesT::getNextQualityVal(char key) const {
    return neighbour(requireValue(qualityValues, key), true);
}
QualityE ConfigValuesT::getNextQualityVal(const std::string& key) const {
    return neighbour(requireValue(qualityValues, key), true);
}
QualityE ConfigValuesT::getPrevQualityVal(char key) const {
    return neighbour(requireValue(qualityValues, key), false);
}
QualityE ConfigValuesT::getPrevQualityVal(const std::string& key) const {
    return neighbour(requireValue(qualityValues, key), false);
}

bool ConfigValuesT::setValue(char key, int v) {
    if (auto* const number = findSetting(intValues, key)) {
        number->set(v);
        return true;
    }
    const bool on = isLower(key); // `v` is not asked
    const char letter = on ? key : otherCase(key, std::tolower);
    require(boolValues, letter, ConfigValueException::no_such_setting).set(on);
    return true;
}

bool ConfigValuesT::setValue(const char* key, int v) {
    if (auto* const number = findSetting(intValues, key)) {
        number->set(v);
        return true;
    }
    const std::string name(key);
    // Deliberate: a name that is too short for the prefix counts as a bad value, not as unknown.
    if (name.size() < default_negative_prefix.size()) fail(ConfigValueException::invalid_value);
    const bool on = name.compare(0, default_negative_prefix.size(), default_negative_prefix) != 0;
    const std::string positive = on ? name : name.substr(default_negative_prefix.size());
    require(boolValues, positive, ConfigValueException::no_such_setting).set(on);
    return true;
}

bool ConfigValuesT::setValue(char key, QualityE q) {
    requireValue(qualityValues, key).set(q);
    return true;
}

bool ConfigValuesT::setValue(const std::string& key, QualityE q) {
    requireValue(qualityValues, key).set(q);
    return true;
}

void ConfigValuesT::setDefault(char key) {
    restoreDefault(*this, key);
}
void ConfigValuesT::setDefault(const std::string& key) {
    restoreDefault(*this, key);
}

ConfigValueAnon& ConfigValuesT::getTypelessValue(const char* key) {
    return typeless(*this, key);
}
ConfigValueAnon& ConfigValuesT::getTypelessValue(char key) {
    return typeless(*this, key);
}

bool ConfigValuesT::operator==(const ConfigValuesT& other) const {
    return haveSameValues(intValues, other.intValues) &&
           haveSameValues(boolValues, other.boolValues) &&
           haveSameValues(qualityValues, other.qualityValues);
}

} // namespace quorva::config
