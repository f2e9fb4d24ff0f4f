#pragma once

#include "Framework/Graphics/Material.h"

#include <string>

namespace quorva::resources {

/// A texture as a line of a resource file names it.
struct TextureObject {
    std::string file;      ///< as the line has it, in the texture folder
    unsigned int name = 0; ///< of OpenGL
    int kind = 0;          ///< 1 when the line was of two fields
};

/// `<key>:<value>`, such as `MAT_DIFFUSE:Player Colour`. An unknown key has no effect.
/// @return false if the line isn't two fields
bool parseSubLine(std::string& line, graphics::Material& material);

/// `<name>,<file>`. Of a line of three or four fields the name alone is read: it asks for the
/// folder itself, which is no image.
/// @return false for any other number of fields
bool parseLineAndCreateTexture(std::string& line, std::string& name, TextureObject& texture);

std::string appendTexturePath(const std::string& file); ///< below the texture folder

/// Uploads a TGA image of 24 or 32 bits.
/// @return its OpenGL name; 0 for any other file
unsigned int loadTGA(std::string path);

} // namespace quorva::resources
