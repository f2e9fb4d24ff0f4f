#pragma once

#include "Framework/Graphics/Colour.h"
#include "Framework/Graphics/ImmediateFunctions.h"
#include "Framework/math/Matrix.h"

#include <vector>

/// All drawing goes through these, to whichever way of drawing is in force. Doubles become
/// single precision at the last step.
namespace quorva::graphics::draw {

extern ImmediateFunctions i_fun;
extern FunctionsBase* render_mode; ///< the way of drawing in force
extern bool in_outline_mode;

void setRenderMode(RenderMode mode);
void startFrame();
void endFrame();

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

void pushMatrix();
void popMatrix();
void translate(double x, double y, double z);
void translate(const math::Vector& v);
void translate(const math::Point& p);
void scale(double x, double y, double z);
void scale(const math::Vector& v);
void scale(const math::Point& p);
void rotate(double angle, double x, double y, double z); ///< degrees
void rotate(const math::Quaternion& q);
void rotate(const math::Matrix& matrix);

void setColour(float red, float green, float blue, float alpha);
void setColour(unsigned char red, unsigned char green, unsigned char blue, unsigned char alpha);
void setColour(const Colour& colour);

void enableBlending();
void disableBlending();
void enableCulling();
void disableCulling();
void drawSolid();
void drawLine();
void enableDepthTest();
void disableDepthTest();
void enableAlpha();
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
void setOutlineMode();
void unsetOutlineMode();
void setupDefaults();
void renderFlat();
void renderSmooth(); ///< the game's look: smooth lines and shading

} // namespace quorva::graphics::draw
