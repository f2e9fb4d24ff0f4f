#pragma once

#include "Framework/Graphics/Shape.h"

/// The three axes: x green, y red, z blue, whatever the colour of the shape. For debugging.
class GAxesIndicator : public quorva::graphics::Shape {
public:
    void render() override;

    double length = 1.0; ///< world units
};
