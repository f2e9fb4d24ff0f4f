#pragma once

#include "Framework/Graphics/Shape.h"

/// The three axes: x green, y red, z blue.
class GAxesIndicator : public quorva::graphics::Shape {
public:
    void render() override;

    double length = 1.0; ///< world units
};
