#pragma once

#include "Framework/Managers/Property.h"
#include "Framework/Managers/ResourceManager.h"

namespace quorva {

/// Points by name, used as a blackboard: the player writes "Player Location", triangles read it.
using PointManager = DefaultSingleton<ResourceManager<resources::Property<math::Point>, true>>;

} // namespace quorva
