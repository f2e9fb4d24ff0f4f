#include "Framework/Config.h"

#include "Framework/GameInfo.h"
#include "Framework/config/SettingNames.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <limits>

namespace quorva::config {

namespace {

// Two tails: some reports have a blank before the comma, and keep it.
constexpr const char* spaced_tail = " , using default: ";
constexpr const char* plain_tail = ", using default: ";

unsigned short numberOr(const ConfigValuesT& table, char letter, unsigned short fallback) {
    try {
        return static_cast<unsigned short>(table.getIntVal(letter));
    } catch (const ConfigValueException&) {
        return fallback;
    }
}

bool flagOr(const ConfigValuesT& table, char letter, bool fallback) {
    try {
        return table.getBoolVal(letter);
    } catch (const ConfigValueException&) {
        return fallback;
    }
}

/// Stores `v`, or else the default with a report.
template <class Store, class T>
void storeOrDefault(const Store& store, const std::string& name, T v, T defaultValue,
                    const char* tail) {
    try {
        store(v);
    } catch (const ConfigValueException&) {
        try {
            store(defaultValue);
            std::cerr << "Invalid " << name << tail << defaultValue << '\n';
        } catch (const ConfigValueException&) {
            writeSetValueError(name);
        }
    }
}

void storeNumber(ConfigValuesT& table, char letter, const std::string& name, unsigned short v,
                 int defaultValue, const char* tail) {
    const auto store = [&](int value) { table.setValue(letter, value); };
    storeOrDefault(store, name, static_cast<int>(v), defaultValue, tail);
}

void storeFlag(ConfigValuesT& table, const std::string& name, bool v, bool defaultValue) {
    const auto store = [&](bool value) {
        table.setValue(value ? name : default_negative_prefix + name, 0);
    };
    storeOrDefault(store, name, v, defaultValue, plain_tail);
}

} // namespace

void writeSetValueError(const std::string& name) {
    std::cerr << "Couldn't set " << name << '\n';
}

int numberFromText(const char* text) {
    const long number = std::strtol(text, nullptr, 10);
    return static_cast<int>(
        std::clamp<long>(number, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

ConfigClass::ConfigClass() {
    try {
        file = std::make_unique<ConfigFile>(GameInfo::Instance().configFile);
    } catch (...) {
        // No file: the defaults hold, without a word.
    }
    configValues = std::make_unique<ConfigValuesT>();
    activatedValues = std::make_unique<ConfigValuesT>();
}

void ConfigClass::activateConfig() {
    activatedValues = std::make_unique<ConfigValuesT>(*configValues);
    configured = true;
}

bool ConfigClass::configActivated() const {
    return *activatedValues == *configValues;
}

void ConfigClass::setDefaults() {
    for (const ConfigValueAnon* setting : configValues->getAnonNames())
        configValues->setDefault(setting->shortName);
    configured = true;
}

const std::vector<ConfigValueAnon*>& ConfigClass::getAllConfigValueInfos() const {
    return configValues->getAnonNames();
}
const ConfigValueAnon& ConfigClass::getConfigValueInfo(char key) {
    return configValues->getTypelessValue(key);
}
const ConfigValueAnon& ConfigClass::getConfigValueInfo(const char* key) {
    return configValues->getTypelessValue(key);
}
const ConfigValueAnon& ConfigClass::getConfigValueInfo(const std::string& key) {
    return configValues->getTypelessValue(key.c_str());
}

namespace {

template <class Key>
void storeText(ConfigValuesT& table, Key key, const char* text) {
    try {
        table.setValue(key, numberFromText(text));
        return;
    } catch (const ConfigValueException&) {
        // A word, perhaps.
    }
    const char* const words[] = {"low", "medium", "high"};
    const auto* const word = std::find(std::begin(words), std::end(words), std::string(text));
    if (word == std::end(words)) throw ConfigValueException(ConfigValueException::invalid_value);
    table.setValue(key, static_cast<QualityE>(word - words));
}

} // namespace

void ConfigClass::setSomeValue(char key, const char* text) {
    storeText(*configValues, key, text);
}
void ConfigClass::setSomeValue(const char* key, const char* text) {
    storeText(*configValues, key, text);
}

unsigned short ConfigClass::getScreenWidth() const {
    return numberOr(*activatedValues, 'w', 800);
}
unsigned short ConfigClass::getScreenHeight() const {
    return numberOr(*activatedValues, 'l', 600);
}
unsigned short ConfigClass::getColourDepth() const {
    return numberOr(*activatedValues, 'c', 600); // deliberate: its neighbour's fallback
}
bool ConfigClass::getFullScreen() const {
    return flagOr(*activatedValues, 'f', false);
}
bool ConfigClass::getAntiAlias() const {
    return flagOr(*activatedValues, 'a', true);
}
bool ConfigClass::getCompatibility() const {
    return flagOr(*activatedValues, 'o', true);
}
unsigned short ConfigClass::getRate() const {
    return numberOr(*activatedValues, 'r', 41000);
}
unsigned short ConfigClass::getSoftwareChannels() const {
    return numberOr(*activatedValues, 'n', 40);
}
bool ConfigClass::getJoyStickSupport() const {
    return flagOr(*activatedValues, 'j', true);
}
unsigned short ConfigClass::getActiveJoystick() const {
    return numberOr(*activatedValues, 'k', 0);
}
unsigned short ConfigClass::getJoystickSensitivity() const {
    return numberOr(*activatedValues, 'y', 3200);
}
bool ConfigClass::getInvertJoystick() const {
    return flagOr(*activatedValues, 'e', false);
}
bool ConfigClass::getIgnoreTime() const {
    return flagOr(*activatedValues, 'x', false);
}
bool ConfigClass::getPlayMusic() const {
    return flagOr(*activatedValues, 'm', true);
}
bool ConfigClass::getPlaySound() const {
    return flagOr(*activatedValues, 's', true);
}
unsigned short ConfigClass::getMusicVolume() const {
    return numberOr(*activatedValues, 'h', 100);
}
unsigned short ConfigClass::getFXVolume() const {
    return numberOr(*activatedValues, 'g', 100);
}
unsigned short ConfigClass::getCollisionAccuracy() const {
    return numberOr(*activatedValues, 'z', 10);
}
bool ConfigClass::getSaveCPU() const {
    return flagOr(*activatedValues, 'u', false);
}

void ConfigClass::setScreenWidth(unsigned short v) {
    storeNumber(*configValues, 'w', default_screen_width_ln, v, 800, spaced_tail);
}
void ConfigClass::setScreenHeight(unsigned short v) {
    storeNumber(*configValues, 'l', default_screen_height_ln, v, 600, spaced_tail);
}
void ConfigClass::setColourDepth(unsigned short v) {
    storeNumber(*configValues, 'c', default_colour_depth_ln, v, 32, plain_tail);
}
void ConfigClass::setCollisionAccuracy(unsigned short v) {
    storeNumber(*configValues, 'z', default_collision_accuracy_ln, v, 10, spaced_tail);
}
void ConfigClass::setFXVolume(unsigned short v) {
    storeNumber(*configValues, 'g', default_fx_vol_ln, v, 100, spaced_tail);
}
void ConfigClass::setMusicVolume(unsigned short v) {
    storeNumber(*configValues, 'h', default_music_vol_ln, v, 100, spaced_tail);
}
void ConfigClass::setRate(unsigned short v) {
    storeNumber(*configValues, 'r', default_rate_ln, v, 41000, plain_tail);
}
void ConfigClass::setSoftwareChannels(unsigned short v) {
    storeNumber(*configValues, 'n', default_software_channels_ln, v, 40, plain_tail);
}
void ConfigClass::setActiveJoystick(unsigned short v) {
    storeNumber(*configValues, 'k', default_active_joystick_ln, v, 0, plain_tail);
}
void ConfigClass::setJoystickSensitivity(unsigned short v) {
    storeNumber(*configValues, 'y', default_joystick_sensitivity_ln, v, 3200, plain_tail);
}
void ConfigClass::setJoystickSupport(bool v) {
    // Deliberate: the letter alone chooses the value of a flag, and this one means true. Only
    // the name form, NoUseJoystick, turns it off.
    storeNumber(*configValues, 'j', default_use_joystick_ln, v, true, plain_tail);
}
void ConfigClass::setFullScreen(bool v) {
    storeFlag(*configValues, default_fullscreen_ln, v, false);
}
void ConfigClass::setAntiAlias(bool v) {
    storeFlag(*configValues, default_antialias_ln, v, true);
}
void ConfigClass::setCompatibility(bool v) {
    storeFlag(*configValues, default_compatibility_ln, v, true);
}
void ConfigClass::setInvertJoystick(bool v) {
    storeFlag(*configValues, default_invert_joystick_Y_ln, v, false);
}
void ConfigClass::setIgnoreTime(bool v) {
    storeFlag(*configValues, default_ignore_time_ln, v, false);
}
void ConfigClass::setPlayMusic(bool v) {
    storeFlag(*configValues, default_play_music_ln, v, true);
}
void ConfigClass::setPlaySound(bool v) {
    storeFlag(*configValues, default_play_sound_ln, v, true);
}
void ConfigClass::setSaveCPU(bool v) {
    storeFlag(*configValues, default_save_cpu_ln, v, false);
}

} // namespace quorva::config
