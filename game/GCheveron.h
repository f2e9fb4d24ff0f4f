#pragma once

#include "Framework/Graphics/Shape.h"

/// An arrowhead.
class GCheveron : public quorva::graphics::Shape {
public:
    void render() override;

    quorva::math::Point tip, left, right; ///< world units, relative to `position`
    float lineWidth = 1.0F;               ///< pixels, not scaled with the screen
};
