#pragma once

#include "Framework/Graphics/Font.h"
#include "Framework/Managers/ResourceManager.h"

namespace quorva {

using FontManager = DefaultSingleton<ResourceManager<graphics::Font, true>>;

} // namespace quorva
