#pragma once

namespace quorva::math {

/// Line widths are authored for a screen this wide, in pixels.
constexpr double reference_screen_width = 1280.0;

/// Width in pixels on the configured screen of a line authored `width` pixels wide; at least 1 if
/// the setting Compatibility is on.
float lineWidthScale(double width);

} // namespace quorva::math
