#pragma once

#include "Framework/Graphics/FunctionsBase.h"

#include <stack>

namespace quorva::graphics {

/// The GL primitive of a shape. Deliberate: a quad strip maps to triangles and points to a
/// polygon mode, and what has no mapping is passed on unchanged.
unsigned int getGLShape(ShapeEnum shape);

/// The state of GL, set call by call and never asked for: what the is... functions give is what
/// was set last. Shapes and vertices are left to a derived class.
class GLFunctions : public FunctionsBase {
public:
    /// Records that everything is smooth. GL itself doesn't learn of it: the one object is made
    /// before main, without a context. The set-up of the video mode brings both together.
    GLFunctions();

    void startFrame() override {}
    void endFrame() override {}
    void rotate(double angle, double x, double y, double z) override;
    void multMatrix(const math::Matrix& matrix) override;
    void translate(double x, double y, double z) override;
    void scale(double x, double y, double z) override;
    void setColour(float red, float green, float blue, float alpha) override;
    void setColour(const float* components) override;
    void pushMatrix() override;
    void popMatrix() override;
    void enableBlending() override;
    void disableBlending() override;
    void enableCulling() override;
    void disableCulling() override;
    void drawSolid() override;
    void drawLine() override;
    void setLineWidth(float width) override;
    void enableDepthTest() override;
    void disableDepthTest() override;
    void enableAlpha() override;
    void disableAlpha() override;
    void saveBlendMode() override;
    void setBlendMode(BlendModeEnum mode) override;
    void restoreBlendMode() override; ///< without a call to GL; an empty stack has no effect
    void smoothLines(bool on) override;
    bool isSmoothLines() override { return smoothLinesOn; }
    void smoothShapes(bool on) override;
    bool isSmoothShapes() override { return smoothShapesOn; }
    void smoothShading(bool on) override;
    bool isSmoothShading() override { return smoothShadingOn; }

    bool smoothLinesOn = true;
    bool smoothShapesOn = true; ///< of polygons, whose edges the game leaves rough
    bool smoothShadingOn = true;
    std::stack<BlendModeEnum> blendModeStack;        ///< holds the first mode from the start
    BlendModeEnum currentBlendMode = BLEND_STANDARD; ///< as set or restored last
};

} // namespace quorva::graphics
