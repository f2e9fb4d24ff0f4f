#pragma once

#include <string>

// Long name and description of every setting, and the description of its negative entry.

namespace quorva::config {

const std::string default_negative_prefix = "No";

const std::string default_screen_width_ln = "ScreenWidth";
const std::string default_screen_width_desc = "=[NUM] Set Height at the same time";
const std::string default_screen_height_ln = "ScreenHeight";
const std::string default_screen_height_desc = "=[NUM] Set Width at the same time";
const std::string default_colour_depth_ln = "ColourDepth";
const std::string default_colour_depth_desc = "=[16|32] bit colour";
const std::string default_rate_ln = "Rate";
const std::string default_rate_desc = "=[10250|20500|41000] Set Audio Rate.";
const std::string default_software_channels_ln = "Channels";
const std::string default_software_channels_desc = "=[NUM] (10-255) Software Audio Channels.";
const std::string default_fx_vol_ln = "EffectsVolume";
const std::string default_fx_vol_desc = "=[NUM] (0-100)";
const std::string default_music_vol_ln = "MusicVolume";
const std::string default_music_vol_desc = "=[NUM] (0-100)";
const std::string default_active_joystick_ln = "ActiveJoystick";
const std::string default_active_joystick_desc = "=[NUM] Sets which Joystick to use (default=0)";
const std::string default_joystick_sensitivity_ln = "JoystickSensitivity";
const std::string default_joystick_sensitivity_desc =
    "=[0-32768] Sets Joystick Sens (default=3200)";
const std::string default_collision_accuracy_ln = "CollisionAccuracy";
const std::string default_collision_accuracy_desc = "=[1-1000] Sets sweep test range (EXPERT ONLY)";

const std::string default_fullscreen_ln = "FullScreen";
const std::string default_fullscreen_desc = "Forces Fullscreen.";
const std::string default_fullscreen_desc_neg = "Forces Windowed.";
const std::string default_antialias_ln = "AntiAlias";
const std::string default_antialias_desc = "Forces AntiAlias.";
const std::string default_antialias_desc_neg = "Forces Non-AntiAlias.";
const std::string default_compatibility_ln = "Compatibility";
const std::string default_compatibility_desc = "Forces Graphic Compatibility.";
const std::string default_compatibility_desc_neg = "Forces No Graphic Compatibility. (non ATI/NV)";
const std::string default_play_sound_ln = "PlaySound";
const std::string default_play_sound_desc = "Enables Playing sound";
const std::string default_play_sound_desc_neg = "Disables Playing sound"; // has no entry
const std::string default_play_music_ln = "PlayMusic";
const std::string default_play_music_desc = "Enables Playing music";
const std::string default_play_music_desc_neg = "Disables Playing music"; // has no entry
const std::string default_use_joystick_ln = "UseJoystick";
const std::string default_use_joystick_desc = "Enables Joystick Support";
const std::string default_use_joystick_desc_neg = "Disables Joystick Support";
const std::string default_invert_joystick_Y_ln = "InvertJoystickAxis";
// Deliberate: the two texts stand the wrong way round.
const std::string default_invert_joystick_Y_desc = "Don't Invert joystick Y axis";
const std::string default_invert_joystick_Y_desc_neg = "Invert joystick Y axis";
const std::string default_ignore_time_ln = "IgnoreTime";
const std::string default_ignore_time_desc = "Causes the game to run as fast as possible";
const std::string default_ignore_time_desc_neg = "Causes the game to run normally";
const std::string default_save_cpu_ln = "SaveCPU";
const std::string default_save_cpu_desc =
    "Makes the game sleep while not processing (experimental)";
const std::string default_save_cpu_desc_neg =
    "Makes the game process as fast as it can (using 100% CPU)";

} // namespace quorva::config
