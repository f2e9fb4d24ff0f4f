#pragma once

#include "Framework/Graphics/Shape.h"

/// A filled circle about the origin, drawn without depth test, which is on afterwards.
class GCircle : public quorva::graphics::Shape {
public:
    void render() override;

    float radius = 1.0F;          ///< world units
    unsigned int resolution = 12; ///< points
};
