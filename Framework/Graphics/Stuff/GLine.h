#pragma once

#include "Framework/Graphics/Shape.h"

/// A straight line, as thick on a large screen as on a small one.
class GLine : public quorva::graphics::Shape {
public:
    void render() override;

    quorva::math::Point start, end; ///< world units, relative to `position`
    float lineWidth = 1.0F;         ///< pixels on the reference screen
};
