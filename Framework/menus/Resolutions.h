#pragma once

#include <array>
#include <cstdint>
#include <optional>

namespace quorva::menus {

struct Resolution {
    std::uint16_t width, height; ///< pixels
};

/// Those of the configuration page. Fixed: the display is not asked what it can do.
extern const std::array<Resolution, 24> resolution_table;

/// The resolution for a full screen on a desktop of that size: its own if the settings take it and
/// the table has its shape. Else of those in the table that the settings take and that fit, the
/// largest of its shape, or the largest of all.
/// @return nothing if none fits
std::optional<Resolution> fullScreenResolution(const Resolution& desktop);

} // namespace quorva::menus
