#pragma once

#include "Framework/Primitives/Box.h"

#include <boost/shared_ptr.hpp>

#include <string>

class FTFont;

namespace quorva::graphics {

/// How the glyphs are drawn: as filled polygons, as pixels that no scale reaches (black and white,
/// or with greys), as outlines, or as textures. Each has an FTGL class of its own.
enum FontRenderModeE : int { FR_POLYGON, FR_BITMAP, FR_PIXMAP, FR_OUTLINE, FR_TEXTURE };

/// Exact comparison with "Polygon", "Bitmap", "Pixmap", "Outline", "Texture". Anything else is
/// reported on standard error and gives FR_POLYGON.
FontRenderModeE getFontRenderModeFromString(const std::string& text);
/// The reverse; a number outside the enumeration is reported and gives "Polygon".
std::string getStringFromFontRenderMode(FontRenderModeE mode);

/// A font at a size of about one world unit. Copies share the one FTGL object.
class Font {
public:
    explicit Font(FontRenderModeE mode = FR_POLYGON);    ///< empty
    Font(FontRenderModeE mode, const std::string& path); ///< loaded, for better or worse

    /// Loads the file once. A file that can't be read as a font is reported on standard error,
    /// and the font then draws nothing. A mode outside the enumeration ends the process.
    void loadFont(const std::string& path);

    /// Extents of `text` in world units, (0, 0) being its origin; without a font two by two
    /// units about the origin, with a font that failed to load all zero.
    primitives::Box getBoundingBox(const std::string& text);

    void render(const std::string& text) const; ///< at the origin of the current matrix

    FontRenderModeE mode;
    boost::shared_ptr<FTFont> font; ///< null until loaded
    std::string name;               ///< path of the file, set on success only
    bool loaded = false;            ///< loadFont has nothing more to do

private:
    bool isUsable() const; ///< FTGL faults on a font that failed to load
};

} // namespace quorva::graphics
