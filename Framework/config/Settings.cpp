#include "Framework/config/Settings.h"

namespace quorva::config {

namespace {

Setting number(const char* name, char letter, int fileLine, int defaultValue, CVRange<int> range,
               config_variable_section_e section, const char* help, unsigned flags = no_flags) {
    return {{letter, name, help, section}, false, defaultValue, range, {}, "", fileLine, flags};
}

/// An integer that only takes the values of a list, which ascends.
Setting choice(const char* name, char letter, int fileLine, int defaultValue,
               const std::vector<int>& valid, config_variable_section_e section, const char* help,
               unsigned flags) {
    Setting setting = number(name, letter, fileLine, defaultValue, {valid.front(), valid.back()},
                             section, help, flags);
    setting.validValues = valid;
    return setting;
}

Setting flag(const char* name, char letter, int fileLine, bool defaultValue,
             config_variable_section_e section, const char* help, const char* negativeHelp,
             unsigned flags = no_flags) {
    return {{letter, name, help, section},
            true,
            defaultValue ? 1 : 0,
            {0, 1},
            {},
            negativeHelp,
            fileLine,
            flags};
}

} // namespace

const std::vector<Setting>& allSettings() {
    // Name, letter, line in the file, default, range or list, section, help, flags.
    static const std::vector<Setting> settings = {
        // Deliberate: each of the first two names the other's dimension.
        number("ScreenWidth", 'w', 1, 800, {480, 1920}, section_video,
               "=[NUM] Set Height at the same time", spaced_tail),
        number("ScreenHeight", 'l', 2, 600, {480, 1920}, section_video,
               "=[NUM] Set Width at the same time", spaced_tail),
        choice("ColourDepth", 'c', 3, 32, {16, 32}, section_video, "=[16|32] bit colour",
               not_in_replays),
        choice("Rate", 'r', 11, 41000, {10250, 20500, 41000}, section_sound,
               "=[10250|20500|41000] Set Audio Rate.", not_in_replays),
        number("Channels", 'n', 12, 40, {10, 255}, section_sound,
               "=[NUM] (10-255) Software Audio Channels.", not_in_replays),
        number("EffectsVolume", 'g', 16, 100, {0, 100}, section_sound, "=[NUM] (0-100)",
               spaced_tail),
        number("MusicVolume", 'h', 15, 100, {0, 100}, section_sound, "=[NUM] (0-100)", spaced_tail),
        number("ActiveJoystick", 'k', 8, 0, {0, 16}, section_input,
               "=[NUM] Sets which Joystick to use (default=0)", not_in_replays),
        number("JoystickSensitivity", 'y', 9, 3200, {0, 32768}, section_input,
               "=[0-32768] Sets Joystick Sens (default=3200)"),
        number("CollisionAccuracy", 'z', 18, 10, {1, 1000}, section_misc,
               "=[1-1000] Sets sweep test range (EXPERT ONLY)", spaced_tail),

        // Of these, both helps: the setting's and its negative entry's.
        flag("FullScreen", 'f', 4, false, section_video, "Forces Fullscreen.", "Forces Windowed."),
        flag("AntiAlias", 'a', 5, true, section_video, "Forces AntiAlias.",
             "Forces Non-AntiAlias."),
        flag("Compatibility", 'o', 6, true, section_video, "Forces Graphic Compatibility.",
             "Forces No Graphic Compatibility. (non ATI/NV)"),
        flag("PlaySound", 's', 13, true, section_sound, "Enables Playing sound",
             "Disables Playing sound", no_negative_entry),
        flag("PlayMusic", 'm', 14, true, section_sound, "Enables Playing music",
             "Disables Playing music", no_negative_entry),
        flag("UseJoystick", 'j', 7, true, section_input, "Enables Joystick Support",
             "Disables Joystick Support", stored_by_letter),
        // Deliberate: the two texts stand the wrong way round.
        flag("InvertJoystickAxis", 'e', 10, false, section_input, "Don't Invert joystick Y axis",
             "Invert joystick Y axis", never_restored | not_in_replays),
        flag("IgnoreTime", 'x', 17, false, section_misc,
             "Causes the game to run as fast as possible", "Causes the game to run normally",
             not_in_replays),
        flag("SaveCPU", 'u', 19, false, section_misc,
             "Makes the game sleep while not processing (experimental)",
             "Makes the game process as fast as it can (using 100% CPU)"),
    };
    return settings;
}

const Setting& settingWith(char letter) {
    const Setting* const setting = findSetting(allSettings(), letter);
    if (setting == nullptr) throw ConfigValueException(ConfigValueException::no_such_setting);
    return *setting;
}

} // namespace quorva::config
