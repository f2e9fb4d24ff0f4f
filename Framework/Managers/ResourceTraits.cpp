#include "Framework/Managers/ResourceTraits.h"

#include "Framework/Constants.h"
#include "Framework/Utility.h"

#include <boost/algorithm/string/trim.hpp>
#include <boost/filesystem/path.hpp>

#include <cstdlib>
#include <iostream>
#include <stdexcept>

namespace quorva::resources {

using boost::algorithm::trim;
using utility::splitCompressed;

namespace {

double toNumber(const std::string& text) {
    return std::strtod(text.c_str(), nullptr);
}
float toFloat(const std::string& text) {
    return static_cast<float>(toNumber(text));
}

const struct {
    const char* text;
    graphics::FontRenderModeE mode;
} font_modes[] = {
    {"Polygon", graphics::FR_POLYGON}, {"Outline", graphics::FR_OUTLINE},
    {"Bitmap", graphics::FR_BITMAP},   {"Pixmap", graphics::FR_PIXMAP},
    {"Texture", graphics::FR_TEXTURE},
};

graphics::FontRenderModeE modeFromWord(const std::string& word) {
    for (const auto& row : font_modes)
        if (word == row.text) return row.mode;
    std::cerr << "Unknown font mode, defaulted to FR_POLYGON: " << utility::printable(word) << '\n';
    return graphics::FR_POLYGON;
}

} // namespace

bool ResourceTraits<graphics::Colour>::parseLine(std::string& line, std::string& name,
                                                 graphics::Colour& value) {
    std::vector<std::string> fields = splitCompressed(line, ",");
    if (fields.size() != 2) return false;
    trim(fields[1]);
    const std::vector<std::string> numbers = splitCompressed(fields[1], " ");
    if (numbers.size() != 4) return false;
    value = graphics::Colour(toFloat(numbers[0]), toFloat(numbers[1]), toFloat(numbers[2]),
                             toFloat(numbers[3]));
    name = fields[0];
    return true;
}

bool ResourceTraits<graphics::Font>::parseLine(std::string& line, std::string& name,
                                               graphics::Font& value) {
    std::vector<std::string> fields = splitCompressed(line, ",");
    if (fields.size() != 4) return false;
    trim(fields[0]);
    trim(fields[2]);
    trim(fields[3]);
    name = fields[0];
    return makeFont(fields[2], value, fields[3]);
}

graphics::Font ResourceTraits<graphics::Font>::defaultValue() {
    graphics::Font font(graphics::FR_POLYGON);
    makeFont(default_font_filename, font, "Polygon");
    return font;
}

bool ResourceTraits<Property<math::Point>>::parseLine(std::string& line, std::string& name,
                                                      Property<math::Point>& value) {
    std::vector<std::string> fields = splitCompressed(line, ",");
    if (fields.size() != 2) return true;
    trim(fields[0]);
    trim(fields[1]);
    const std::vector<std::string> numbers = splitCompressed(fields[1], "#");
    if (numbers.size() != 4 && numbers.size() != 5) return false;
    value.value = math::Point(toNumber(numbers[0]), toNumber(numbers[1]), toNumber(numbers[2]));
    name = fields[0];
    return true;
}

bool makeFont(const std::string& file, graphics::Font& font, const std::string& mode) {
    const std::string path = boost::filesystem::path(font_folder).string() + "/" + file;
    font.mode = modeFromWord(mode);
    font.loadFont(path);
    return true;
}

graphics::Font makeFont(const std::string& file, const std::string& mode) {
    graphics::Font font(graphics::getFontRenderModeFromString(mode));
    if (!makeFont(file, font, mode) && !makeFont(default_font_filename, font, mode))
        throw std::runtime_error("Bad font");
    return font;
}

} // namespace quorva::resources
