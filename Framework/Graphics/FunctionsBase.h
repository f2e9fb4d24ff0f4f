#pragma once

#include "Framework/math/Matrix.h"

namespace quorva::graphics {

/// What the vertices between begin and end make up.
enum ShapeEnum : int {
    SHAPE_TRIANGLES = 0,
    SHAPE_TRIANGLE_STRIP = 1,
    SHAPE_TRIANGLE_FAN = 2,
    SHAPE_QUADS = 3,
    SHAPE_QUAD_STRIP = 4,
    SHAPE_LINES = 5,
    SHAPE_LINE_LOOP = 6,
    SHAPE_LINE_STRIP = 7,
    SHAPE_POINTS = 8,
    SHAPE_POLYGON = 9,
    SHAPE_NONE = 11, ///< outside of begin and end; 10 is no shape
};

/// How a colour is mixed with what it is drawn over. Only the first has an effect in GL; any
/// other number is stored and handed back.
enum BlendModeEnum : int { BLEND_STANDARD = 0 };

/// How geometry goes to GL. There is one way; both values select it.
enum RenderMode : int { RENDER_IMMEDIATE = 0, RENDER_OTHER = 1 };

/// A way of sending geometry and state to GL. Each function of `draw` forwards to the operation of
/// its name, and explains it. Lengths in world units.
class FunctionsBase {
public:
    virtual ~FunctionsBase() = default;

    virtual void startFrame() = 0;
    virtual void endFrame() = 0;
    virtual void beginShape(ShapeEnum shape) = 0;
    virtual void endShape() = 0;
    virtual void plotVertex3D(double x, double y, double z) = 0;
    virtual void plotVertex2D(double x, double y) = 0;
    virtual void rotate(double angle, double x, double y, double z) = 0; ///< degrees
    virtual void multMatrix(const math::Matrix& matrix) = 0;
    virtual void translate(double x, double y, double z) = 0;
    virtual void scale(double x, double y, double z) = 0;
    virtual void setColour(float red, float green, float blue, float alpha) = 0;
    virtual void setColour(const float* components) = 0; ///< four
    virtual void pushMatrix() = 0;
    virtual void popMatrix() = 0;
    virtual void enableBlending() = 0;
    virtual void disableBlending() = 0;
    virtual void enableCulling() = 0;
    virtual void disableCulling() = 0;
    virtual void drawSolid() = 0;
    virtual void drawLine() = 0;
    virtual void setLineWidth(float width) = 0; ///< pixels
    virtual void enableDepthTest() = 0;
    virtual void disableDepthTest() = 0;
    virtual void enableAlpha() = 0;
    virtual void disableAlpha() = 0;
    virtual void saveBlendMode() = 0;
    virtual void setBlendMode(BlendModeEnum mode) = 0;
    virtual void restoreBlendMode() = 0;
    virtual void smoothLines(bool on) = 0;
    virtual bool isSmoothLines() = 0;
    virtual void smoothShapes(bool on) = 0;
    virtual bool isSmoothShapes() = 0;
    virtual void smoothShading(bool on) = 0;
    virtual bool isSmoothShading() = 0;

    ShapeEnum currentShape = SHAPE_NONE; ///< between begin and end
};

} // namespace quorva::graphics
