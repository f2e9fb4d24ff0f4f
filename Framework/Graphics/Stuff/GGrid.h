#pragma once

#include "Framework/Graphics/Shape.h"
#include "Framework/Primitives/Box.h"

#include <cstdint>

/// A rectangle ruled into equal parts both ways.
class GGrid : public quorva::graphics::Shape {
public:
    void render() override;

    std::uint16_t divisions = 1; ///< parts, one more line than these each way
    quorva::primitives::Box box; ///< world units, relative to `position`
};
