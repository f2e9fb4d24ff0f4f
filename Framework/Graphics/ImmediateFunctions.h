#pragma once

#include "Framework/Graphics/GLFunctions.h"

namespace quorva::graphics {

/// Immediate mode: one call of GL for every vertex, which is quick enough for some hundred lines
/// and keeps nothing in GL that a new video mode would lose.
class ImmediateFunctions : public GLFunctions {
public:
    void beginShape(ShapeEnum shape) override;
    void endShape() override;
    void plotVertex3D(double x, double y, double z) override;
    void plotVertex2D(double x, double y) override;
};

} // namespace quorva::graphics
