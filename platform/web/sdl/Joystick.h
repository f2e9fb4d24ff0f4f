#pragma once

#include <SDL.h>

namespace quorva::web {

/// @param position -32768 to 32767
void setAxis(int axis, Sint16 position);

} // namespace quorva::web
