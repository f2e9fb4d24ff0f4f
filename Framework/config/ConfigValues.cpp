#include "Framework/config/ConfigValues.h"

#include "Framework/config/SettingNames.h"

#include <cctype>

namespace quorva::config {

namespace {

const struct {
    const std::string& name;
    char letter;
    int value, min, max;
    std::vector<int> valid;
    config_variable_section_e section;
    const std::string& description;
} int_settings[] = {
    {default_screen_width_ln, 'w', 800, 480, 1920, {}, section_video, default_screen_width_desc},
    {default_screen_height_ln, 'l', 600, 480, 1920, {}, section_video, default_screen_height_desc},
    {default_colour_depth_ln, 'c', 32, 16, 32, {16, 32}, section_video, default_colour_depth_desc},
    {default_rate_ln,
     'r',
     41000,
     10250,
     41000,
     {10250, 20500, 41000},
     section_sound,
     default_rate_desc},
    {default_software_channels_ln,
     'n',
     40,
     10,
     255,
     {},
     section_sound,
     default_software_channels_desc},
    {default_fx_vol_ln, 'g', 100, 0, 100, {}, section_sound, default_fx_vol_desc},
    {default_music_vol_ln, 'h', 100, 0, 100, {}, section_sound, default_music_vol_desc},
    {default_active_joystick_ln, 'k', 0, 0, 16, {}, section_input, default_active_joystick_desc},
    {default_joystick_sensitivity_ln,
     'y',
     3200,
     0,
     32768,
     {},
     section_input,
     default_joystick_sensitivity_desc},
    {default_collision_accuracy_ln,
     'z',
     10,
     1,
     1000,
     {},
     section_misc,
     default_collision_accuracy_desc},
};

/// An empty negative description: no negative entry.
const struct {
    const std::string& name;
    char letter;
    bool value;
    config_variable_section_e section;
    const std::string& description;
    const std::string negativeDescription;
} bool_settings[] = {
    {default_fullscreen_ln, 'f', false, section_video, default_fullscreen_desc,
     default_fullscreen_desc_neg},
    {default_antialias_ln, 'a', true, section_video, default_antialias_desc,
     default_antialias_desc_neg},
    {default_compatibility_ln, 'o', true, section_video, default_compatibility_desc,
     default_compatibility_desc_neg},
    {default_play_sound_ln, 's', true, section_sound, default_play_sound_desc, ""},
    {default_play_music_ln, 'm', true, section_sound, default_play_music_desc, ""},
    {default_use_joystick_ln, 'j', true, section_input, default_use_joystick_desc,
     default_use_joystick_desc_neg},
    {default_invert_joystick_Y_ln, 'e', false, section_input, default_invert_joystick_Y_desc,
     default_invert_joystick_Y_desc_neg},
    {default_ignore_time_ln, 'x', false, section_misc, default_ignore_time_desc,
     default_ignore_time_desc_neg},
    {default_save_cpu_ln, 'u', false, section_misc, default_save_cpu_desc,
     default_save_cpu_desc_neg},
};

[[noreturn]] void fail(ConfigValueException::Reason reason) {
    throw ConfigValueException(reason);
}

bool isLower(char letter) {
    return std::islower(static_cast<unsigned char>(letter)) != 0;
}

char otherCase(char letter, int (*convert)(int)) {
    return static_cast<char>(convert(static_cast<unsigned char>(letter)));
}

/// The first setting of that key; null if there is none.
template <class Values, class Key>
auto find(Values& values, const Key& key) -> decltype(values.data()) {
    const auto found =
        std::find_if(values.begin(), values.end(), [&key](const auto& v) { return v == key; });
    return found == values.end() ? nullptr : &*found;
}

template <class Values, class Key>
auto& require(Values& values, const Key& key, ConfigValueException::Reason reason) {
    auto* const found = find(values, key);
    if (found == nullptr) fail(reason);
    return *found;
}

template <class Values, class Key>
auto& requireValue(Values& values, const Key& key) {
    return require(values, key, ConfigValueException::invalid_value);
}

/// The value `forward` or back from the current one, wrapping.
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
        const auto* const own = find(ours, other.longName);
        return own != nullptr && own->value == other.value;
    });
}

template <class Key>
void restoreDefault(ConfigValuesT& table, const Key& key) {
    if (auto* const number = find(table.intValues, key)) return number->set(number->defaultValue);
    if (auto* const flag = find(table.boolValues, key)) return flag->set(flag->defaultValue);
    auto& quality = require(table.qualityValues, key, ConfigValueException::no_such_setting);
    quality.set(quality.defaultValue);
}

template <class Key>
ConfigValueAnon& typeless(ConfigValuesT& table, const Key& key) {
    if (auto* const number = find(table.intValues, key)) return *number;
    return require(table.boolValues, key, ConfigValueException::no_such_setting);
}

} // namespace

ConfigValuesT::ConfigValuesT() {
    for (const auto& row : int_settings) {
        intValues.emplace_back(row.letter, row.name, row.description, row.value,
                               CVRange<int>{row.min, row.max}, row.section);
        for (const int v : row.valid)
            intValues.back().addValid(v);
    }
    const auto addFlag = [this](char letter, const std::string& name, const std::string& text,
                                bool value, config_variable_section_e section) {
        boolValues.emplace_back(letter, name, text, value, CVRange<bool>{false, true}, section);
        boolValues.back().addValid(true);
        boolValues.back().addValid(false);
    };
    for (const auto& row : bool_settings) {
        addFlag(row.letter, row.name, row.description, row.value, row.section);
        if (row.negativeDescription.empty()) continue;
        addFlag(otherCase(row.letter, std::toupper), default_negative_prefix + row.name,
                row.negativeDescription, row.value, row.section);
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
    if (auto* const number = find(intValues, key)) {
        number->set(v);
        return true;
    }
    const bool on = isLower(key);
    const char letter = on ? key : otherCase(key, std::tolower);
    require(boolValues, letter, ConfigValueException::no_such_setting).set(on);
    return true;
}

bool ConfigValuesT::setValue(const char* key, int v) {
    if (auto* const number = find(intValues, key)) {
        number->set(v);
        return true;
    }
    const std::string name(key);
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
