#pragma once

namespace quorva::graphics {

/// To be called before SDL's video starts. Left alone, SDL tries its drivers one after the other,
/// down to those that draw letters: they have no OpenGL, and leave the terminal unusable. A driver
/// that SDL_VIDEODRIVER names is kept.
void keepToDriversWithGL();

} // namespace quorva::graphics
