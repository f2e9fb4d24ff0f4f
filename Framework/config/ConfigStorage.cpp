// The way of the settings from and to the configuration file.

#include "Framework/Config.h"
#include "Framework/Files.h"
#include "Framework/GameInfo.h"
#include "Framework/config/SettingNames.h"

#include <sstream>

namespace quorva::config {

namespace {

using SetNumber = void (ConfigClass::*)(unsigned short);
using SetFlag = void (ConfigClass::*)(bool);

/// Who takes a key of the file. InvertJoystickAxis is deliberately missing: it is written, and
/// never restored.
const struct {
    const std::string& key;
    SetNumber setNumber;
    SetFlag setFlag;
} readers[] = {
    {default_screen_width_ln, &ConfigClass::setScreenWidth, nullptr},
    {default_screen_height_ln, &ConfigClass::setScreenHeight, nullptr},
    {default_colour_depth_ln, &ConfigClass::setColourDepth, nullptr},
    {default_fullscreen_ln, nullptr, &ConfigClass::setFullScreen},
    {default_antialias_ln, nullptr, &ConfigClass::setAntiAlias},
    {default_compatibility_ln, nullptr, &ConfigClass::setCompatibility},
    {default_use_joystick_ln, nullptr, &ConfigClass::setJoystickSupport},
    {default_active_joystick_ln, &ConfigClass::setActiveJoystick, nullptr},
    {default_joystick_sensitivity_ln, &ConfigClass::setJoystickSensitivity, nullptr},
    {default_rate_ln, &ConfigClass::setRate, nullptr},
    {default_software_channels_ln, &ConfigClass::setSoftwareChannels, nullptr},
    {default_play_music_ln, nullptr, &ConfigClass::setPlayMusic},
    {default_play_sound_ln, nullptr, &ConfigClass::setPlaySound},
    {default_fx_vol_ln, &ConfigClass::setFXVolume, nullptr},
    {default_music_vol_ln, &ConfigClass::setMusicVolume, nullptr},
    {default_ignore_time_ln, nullptr, &ConfigClass::setIgnoreTime},
    {default_collision_accuracy_ln, &ConfigClass::setCollisionAccuracy, nullptr},
    {default_save_cpu_ln, nullptr, &ConfigClass::setSaveCPU},
};

/// The settings in the order of the file.
const std::string* const written[] = {
    &default_screen_width_ln,
    &default_screen_height_ln,
    &default_colour_depth_ln,
    &default_fullscreen_ln,
    &default_antialias_ln,
    &default_compatibility_ln,
    &default_use_joystick_ln,
    &default_active_joystick_ln,
    &default_joystick_sensitivity_ln,
    &default_invert_joystick_Y_ln,
    &default_rate_ln,
    &default_software_channels_ln,
    &default_play_sound_ln,
    &default_play_music_ln,
    &default_music_vol_ln,
    &default_fx_vol_ln,
    &default_ignore_time_ln,
    &default_collision_accuracy_ln,
    &default_save_cpu_ln,
};

int valueOf(const ConfigValuesT& table, const std::string& name) {
    for (const auto& setting : table.intValues)
        if (setting == name) return setting.value;
    return table.getBoolVal(name) ? 1 : 0;
}

} // namespace

void ConfigClass::readFile() {
    if (file != nullptr) {
        for (const auto& [key, value] : file->getKeyVals()) {
            for (const auto& reader : readers) {
                if (key != reader.key) continue;
                const long number = std::strtol(value.c_str(), nullptr, 10);
                if (reader.setNumber != nullptr)
                    (this->*reader.setNumber)(static_cast<unsigned short>(number));
                else
                    (this->*reader.setFlag)(number != 0);
            }
        }
    }
    activateConfig();
}

void ConfigClass::saveConfig() {
    if (file != nullptr) file->backup();
    const GameInfoClass& info = GameInfo::Instance();
    std::ostringstream out;
    out << "#Config file for: " << info.title << ". v." << info.version << '\n';
    for (const std::string* name : written)
        out << *name << " = " << valueOf(*activatedValues, *name) << '\n';
    out << "#eof\n";
    utility::replaceContents(info.configFile, out.str()); // a failure is passed over
}

} // namespace quorva::config
