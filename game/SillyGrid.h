#pragma once

#include "Framework/Graphics/Shape.h"

/// A sheet of horizontal lines across the view, stacked in depth.
class SillyGrid : public quorva::graphics::Shape {
public:
    void render() override;

    unsigned int rows = 0, planes = 0; ///< every fourth of them is drawn
    double spacing = 1.0;              ///< world units
};
