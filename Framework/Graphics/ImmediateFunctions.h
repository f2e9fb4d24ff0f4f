#pragma once

#include "Framework/Graphics/GLFunctions.h"

namespace quorva::graphics {

/// Immediate mode: a call a vertex.
class ImmediateFunctions : public GLFunctions {
public:
    void beginShape(ShapeEnum shape) override;
    void endShape() override;
    void plotVertex3D(double x, double y, double z) override;
    void plotVertex2D(double x, double y) override;
};

} // namespace quorva::graphics
