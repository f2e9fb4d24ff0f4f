#pragma once

#include "Framework/Graphics/Colour.h"
#include "Framework/Graphics/Font.h"
#include "Framework/Managers/Property.h"
#include "Framework/math/Vector.h"

#include <string>

namespace quorva::resources {

/// What a resource manager must know of its type T:
/// - `parseLine(line, name, value)`: reads one line of the type's file; true adds the value
/// - `typeName()`: the type's name, also the stem of its file name
/// - `empty()`: a value for parseLine to fill; `defaultValue()`: what an undefined name gets
template <class T>
class ResourceTraits;

/// `<name>,<red> <green> <blue> <alpha>`; the name is taken with its blanks.
template <>
class ResourceTraits<graphics::Colour> {
public:
    static bool parseLine(std::string& line, std::string& name, graphics::Colour& value);
    static const char* typeName() { return "Colour"; }
    static graphics::Colour empty() { return {}; }
    static graphics::Colour defaultValue() { return {1.0F, 1.0F, 1.0F, 0.5F}; }
};

/// `<name>,<unused>,<font file>,<mode>`, the file being in the font folder.
template <>
class ResourceTraits<graphics::Font> {
public:
    static bool parseLine(std::string& line, std::string& name, graphics::Font& value);
    static const char* typeName() { return "Font"; }
    static graphics::Font empty() { return graphics::Font(graphics::FR_POLYGON); }
    static graphics::Font defaultValue();
};

/// `<name>,<x>#<y>#<z>#<ignored>`. Deliberate: a line that isn't two fields at the comma is no
/// refusal, but adds the zero point under the empty name.
template <>
class ResourceTraits<Property<math::Point>> {
public:
    static bool parseLine(std::string& line, std::string& name, Property<math::Point>& value);
    static const char* typeName() { return "Point"; }
    static Property<math::Point> empty() { return {}; }
    static Property<math::Point> defaultValue() { return {}; }
};

/// Loads `file` of the font folder into `font`. An unknown mode is reported and counts as
/// "Polygon"; a file that is no font is reported by the font.
/// @return true, whatever happened
bool makeFont(const std::string& file, graphics::Font& font, const std::string& mode);
graphics::Font makeFont(const std::string& file, const std::string& mode);

} // namespace quorva::resources
