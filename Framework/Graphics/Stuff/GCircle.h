#pragma once

#include "Framework/Graphics/Shape.h"

/// A filled circle about the origin.
class GCircle : public quorva::graphics::Shape {
public:
    void render() override;

    float radius = 1.0F;          ///< world units
    unsigned int resolution = 12; ///< points
};
