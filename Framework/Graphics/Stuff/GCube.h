#pragma once

#include "Framework/Graphics/Shape.h"

/// A filled box about the origin.
class GCube : public quorva::graphics::Shape {
public:
    void render() override;

    double sizeX = 0.0, sizeY = 0.0, sizeZ = 0.0; ///< world units

protected:
    void plotFaces() const; ///< top, bottom, front, back, left, right
};
