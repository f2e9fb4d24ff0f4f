#pragma once

#include <string>

// Where the game finds its files. Every path is relative to the working directory.

const std::string STARTING_PATH;
const std::string data_file_directory = STARTING_PATH + "data/";
const std::string font_folder = STARTING_PATH + "fonts";
const std::string mp3_directory = "Songs";

namespace quorva::resources {

const std::string system_scope = "System"; ///< scope of what lasts as long as the game
const std::string default_font_filename = "VeraMono.ttf";
const std::string default_texture_folder = "textures";
const std::string default_texture_filename = "default.tga";

} // namespace quorva::resources
