#include "Framework/Graphics/Font.h"

#include "Framework/Files.h"
#include "Framework/Utility.h"

#include <FTGL/ftgl.h>

#include <cstdlib>
#include <iostream>

namespace quorva::graphics {

namespace {

// One point at 72 dots per inch: a font unit is about one world unit.
constexpr unsigned int face_size = 1, face_resolution = 72;
constexpr const char* source_path = "Framework/Graphics/Font";

template <class T>
FTFont* makeFace(const char* path) {
    return new T(path);
}

/// In the order of FontRenderModeE.
const struct {
    const char* text;
    FTFont* (*make)(const char* path);
} modes[] = {
    {"Polygon", makeFace<FTGLPolygonFont>}, {"Bitmap", makeFace<FTGLBitmapFont>},
    {"Pixmap", makeFace<FTGLPixmapFont>},   {"Outline", makeFace<FTGLOutlineFont>},
    {"Texture", makeFace<FTGLTextureFont>},
};

bool isKnown(FontRenderModeE mode) {
    return static_cast<unsigned int>(mode) < std::size(modes);
}

} // namespace

FontRenderModeE getFontRenderModeFromString(const std::string& text) {
    for (std::size_t i = 0; i < std::size(modes); ++i)
        if (text == modes[i].text) return static_cast<FontRenderModeE>(i);
    std::cerr << "String Font Render Mode invalid in: " << source_path << '\n';
    return FR_POLYGON;
}

std::string getStringFromFontRenderMode(FontRenderModeE mode) {
    if (isKnown(mode)) return modes[mode].text;
    std::cerr << "Font Render Mode invalid in: " << source_path << '\n';
    return "Polygon";
}

Font::Font(FontRenderModeE mode_) : mode(mode_) {}

Font::Font(FontRenderModeE mode_, const std::string& path) : mode(mode_) {
    loadFont(path);
    loaded = true; // whatever the load gave
}

void Font::loadFont(const std::string& path) {
    if (loaded) return;
    if (!isKnown(mode)) {
        std::cerr << "Unknown font type for: " << utility::printable(path) << '\n';
        std::abort(); // a programming fault, also where assertions are left out
    }
    font.reset(modes[mode].make(utility::regularOrNone(path).c_str()));
    if (font->Error() != 0) {
        std::cerr << "Couldn't load font: " << utility::printable(path) << '\n';
        loaded = false;
        return;
    }
    loaded = true;
    name = path;
    font->FaceSize(face_size, face_resolution);
    font->CharMap(FT_ENCODING_UNICODE);
}

bool Font::isUsable() const {
    return font != nullptr && !name.empty();
}

primitives::Box Font::getBoundingBox(const std::string& text) {
    if (font == nullptr) return {1.0, -1.0, -1.0, 1.0, 0.0, 1.0};
    if (!isUsable()) return {};
    float left, bottom, near, right, top, far;
    font->BBox(text.c_str(), left, bottom, near, right, top, far);
    return {top, bottom, left, right, near, far};
}

void Font::render(const std::string& text) const {
    if (isUsable()) font->Render(text.c_str());
}

} // namespace quorva::graphics
