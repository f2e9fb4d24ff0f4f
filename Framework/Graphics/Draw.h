#pragma once

#include "Framework/Graphics/Colour.h"
#include "Framework/Graphics/ImmediateFunctions.h"
#include "Framework/math/Matrix.h"

#include <vector>

/// What the whole program draws with: free functions that forward to the way of drawing in
/// force. They act on the current matrix and state of GL, check nothing, and belong to the main
/// thread. Lengths are in world units; doubles become single precision at the last step.
namespace quorva::graphics::draw {

extern ImmediateFunctions i_fun;   ///< the only way of drawing that there is
extern FunctionsBase* render_mode; ///< the way of drawing in force; never null
extern bool in_outline_mode;       ///< what setOutlineMode and unsetOutlineMode did last

void setRenderMode(RenderMode mode); ///< any other number changes nothing
// Hooks of a way of drawing that gathers a frame; immediate mode needs none.
void startFrame();
void endFrame();

// Between begin and end stand vertices alone, and colours.
void begin(ShapeEnum shape);
void end();
void vertex3D(double x, double y, double z);
void vertex3D(const double* xyz);
void vertex3D(const math::Point& p);
void vertex3D(const math::Vector& v);
void vertex3D(const std::vector<double>& xyz); ///< at least three
void vertex2D(double x, double y);
void vertex2D(const double* xy);
void vertex2D(const math::Point& p);
void vertex2D(const math::Vector& v);
void vertex2D(const std::vector<double>& xy); ///< at least two

// Of the current matrix. Each push needs a pop; GL's stack holds at least 32.
void pushMatrix();
void popMatrix();
void translate(double x, double y, double z);
void translate(const math::Vector& v);
void translate(const math::Point& p);
void scale(double x, double y, double z);
void scale(const math::Vector& v);
void scale(const math::Point& p);
void rotate(double angle, double x, double y, double z); ///< degrees
void rotate(const math::Quaternion& q);                  ///< all zero turns by nothing
void rotate(const math::Matrix& matrix);                 ///< multiplies, whatever the matrix does

// Of all vertices that follow, in this shape and the next ones.
void setColour(float red, float green, float blue, float alpha);
/// Each from 0 to 255, which is exactly 1.
void setColour(unsigned char red, unsigned char green, unsigned char blue, unsigned char alpha);
void setColour(const Colour& colour);

// State that stays until it is changed: nothing restores it after a shape or a frame.
void enableBlending();
void disableBlending();
void enableCulling();
void disableCulling();
void drawSolid(); ///< polygons filled
void drawLine();  ///< of polygons the edges alone
void enableDepthTest();
void disableDepthTest();
void enableAlpha(); ///< the alpha test, whose function stays GL's default: all passes
void disableAlpha();
void setLineWidth(float width); ///< pixels
void saveBlendMode();
void setBlendMode(BlendModeEnum mode);
void restoreBlendMode(); ///< makes no GL call: GL follows at the next setBlendMode
void smoothLines(bool on);
bool isSmoothLines();
void smoothShapes(bool on);
bool isSmoothShapes();
void smoothShading(bool on);
bool isSmoothShading();

bool isOutLineMode();
void setOutlineMode();   ///< edges alone, without depth test
void unsetOutlineMode(); ///< filled, with depth test
void setupDefaults();    ///< the same state; the outline mode stays recorded as it was
void renderFlat();       ///< nothing smoothed
void renderSmooth();     ///< the game's look: smooth lines and shading

} // namespace quorva::graphics::draw
