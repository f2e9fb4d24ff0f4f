#pragma once

#include "Framework/Graphics/Colour.h"
#include "Framework/Managers/ResourceManager.h"

namespace quorva {

using ColourManager = DefaultSingleton<ResourceManager<graphics::Colour, true>>;

} // namespace quorva
