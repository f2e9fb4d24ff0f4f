#pragma once

#include "Framework/Graphics/Shape.h"

/// A circle about the origin, drawn without depth test, which is on afterwards.
class GOutlinedCircle : public quorva::graphics::Shape {
public:
    void render() override;

    float lineWidth = 1.0F;       ///< pixels, whatever the screen
    float radius = 1.0F;          ///< world units
    unsigned int resolution = 12; ///< points
};
