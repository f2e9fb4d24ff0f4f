#include "Framework/menus/Resolutions.h"

#include "Framework/config/Settings.h"

#include <algorithm>
#include <tuple>

namespace quorva::menus {

const std::array<Resolution, 24> resolution_table = {{
    {320, 240},   {640, 480},   {720, 480},   {720, 576},   {800, 600},   {960, 600},
    {1024, 768},  {1088, 612},  {1152, 864},  {1280, 720},  {1280, 768},  {1280, 800},
    {1280, 960},  {1280, 1024}, {1366, 768},  {1440, 900},  {1440, 1050}, {1600, 1024},
    {1600, 1200}, {1680, 1050}, {1920, 1080}, {1920, 1200}, {1920, 1440}, {2048, 1536},
}};

namespace {

bool isInRange(std::uint16_t value, char letter) {
    const auto& range = config::settingWith(letter).range;
    return value >= range.min && value <= range.max;
}

bool isSetting(const Resolution& size) {
    return isInRange(size.width, 'w') && isInRange(size.height, 'l');
}

bool isOfShape(const Resolution& a, const Resolution& b) {
    return std::uint32_t(a.width) * b.height == std::uint32_t(b.width) * a.height;
}

} // namespace

std::optional<Resolution> fullScreenResolution(const Resolution& desktop) {
    const auto hasShape = [&](const Resolution& size) { return isOfShape(size, desktop); };
    if (isSetting(desktop) &&
        std::any_of(resolution_table.begin(), resolution_table.end(), hasShape))
        return desktop;

    const auto rank = [&](const Resolution& size) {
        return std::make_tuple(hasShape(size), std::uint32_t(size.width) * size.height);
    };
    std::optional<Resolution> best;
    for (const Resolution& size : resolution_table) {
        const bool fits = size.width <= desktop.width && size.height <= desktop.height;
        if (fits && isSetting(size) && (!best || rank(size) > rank(*best))) best = size;
    }
    return best;
}

} // namespace quorva::menus
