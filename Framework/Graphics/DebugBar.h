#pragma once

namespace quorva::debug {

/// Draws a slider bar about the origin of the current matrix, world units: a track, and a knob
/// at `position` along it, as wide as the track is high and three times as high.
void drawBar(double halfWidth, double halfHeight, double position);

} // namespace quorva::debug
