#include <GL/glew.h>

#include "Framework/Managers/TextureResources.h"

#include "Framework/Constants.h"
#include "Framework/Graphics/TGA.h"
#include "Framework/Managers/ColourManager.h"
#include "Framework/Utility.h"

#include <boost/algorithm/string/trim.hpp>
#include <boost/filesystem/path.hpp>

#include <cstdlib>

namespace quorva::resources {

using graphics::Material;

namespace {

using ColourOfMaterial = const graphics::Colour* Material::*;
using FlagOfMaterial = bool Material::*;

const struct {
    const char* key;
    ColourOfMaterial colour;
    FlagOfMaterial flag;
} colour_keys[] = {
    {"MAT_AMBIENT", &Material::ambient, &Material::hasAmbient},
    {"MAT_DIFFUSE", &Material::diffuse, &Material::hasDiffuse},
    {"MAT_SPECULAR", &Material::specular, &Material::hasSpecular},
    {"MAT_EMISSION", &Material::emissive, &Material::hasEmissive},
};

} // namespace

bool parseSubLine(std::string& line, Material& material) {
    boost::algorithm::trim(line);
    std::vector<std::string> fields = utility::splitCompressed(line, ":");
    if (fields.size() != 2) return false;
    utility::trimStringsInVector(fields);
    for (const auto& row : colour_keys) {
        if (fields[0] != row.key) continue;
        material.*row.colour = &ColourManager::Instance().getV(fields[1]);
        material.*row.flag = true;
    }
    if (fields[0] == "MAT_SHININESS")
        material.shininess = static_cast<float>(std::strtod(fields[1].c_str(), nullptr));
    return true;
}

bool parseLineAndCreateTexture(std::string& line, std::string& name, TextureObject& texture) {
    const std::vector<std::string> fields = utility::splitCompressed(line, ",");
    if (fields.size() < 2 || fields.size() > 4) return false;
    std::string file;
    if (fields.size() == 2) {
        file = fields[1];
        texture.kind = 1;
    }
    boost::algorithm::trim(file);
    texture.file = file;
    name = fields[0];
    texture.name = loadTGA(boost::algorithm::trim_copy(appendTexturePath(file)));
    return true;
}

std::string appendTexturePath(const std::string& file) {
    return boost::filesystem::path(default_texture_folder).string() + "/" + file;
}

unsigned int loadTGA(std::string path) {
    const graphics::TGA image(std::move(path));
    GLuint name = 0;
    glGenTextures(1, &name);
    glBindTexture(GL_TEXTURE_2D, name);
    const bool opaque = image.getBPP() == 24;
    if (!opaque && image.getBPP() != 32) return 0;
    glPixelStorei(GL_UNPACK_ALIGNMENT, 1); // rows follow one another without padding
    glTexImage2D(GL_TEXTURE_2D, 0, opaque ? 3 : 4, image.getWidth(), image.getHeight(), 0,
                 opaque ? GL_RGB : GL_RGBA, GL_UNSIGNED_BYTE, image.getImg());
    for (const GLenum filter : {GL_TEXTURE_MIN_FILTER, GL_TEXTURE_MAG_FILTER})
        glTexParameteri(GL_TEXTURE_2D, filter, GL_LINEAR);
    for (const GLenum wrap : {GL_TEXTURE_WRAP_S, GL_TEXTURE_WRAP_T})
        glTexParameteri(GL_TEXTURE_2D, wrap, GL_REPEAT);
    return name;
}

} // namespace quorva::resources
