#include "Framework/Graphics/Draw.h"

namespace quorva::graphics::draw {

ImmediateFunctions i_fun;
FunctionsBase* render_mode = &i_fun;
bool in_outline_mode = false;

void setRenderMode(RenderMode mode) {
    if (mode == RENDER_IMMEDIATE || mode == RENDER_OTHER) render_mode = &i_fun;
}

void startFrame() {
    render_mode->startFrame();
}
void endFrame() {
    render_mode->endFrame();
}

void begin(ShapeEnum shape) {
    render_mode->beginShape(shape);
}
void end() {
    render_mode->endShape();
}
void vertex3D(double x, double y, double z) {
    render_mode->plotVertex3D(x, y, z);
}
void vertex3D(const double* xyz) {
    vertex3D(xyz[0], xyz[1], xyz[2]);
}
void vertex3D(const math::Point& p) {
    vertex3D(p.x, p.y, p.z);
}
void vertex3D(const math::Vector& v) {
    vertex3D(v.x, v.y, v.z);
}
void vertex3D(const std::vector<double>& xyz) {
    vertex3D(xyz.at(0), xyz.at(1), xyz.at(2));
}
void vertex2D(double x, double y) {
    render_mode->plotVertex2D(x, y);
}
void vertex2D(const double* xy) {
    vertex2D(xy[0], xy[1]);
}
void vertex2D(const math::Point& p) {
    vertex2D(p.x, p.y);
}
void vertex2D(const math::Vector& v) {
    vertex2D(v.x, v.y);
}
void vertex2D(const std::vector<double>& xy) {
    vertex2D(xy.at(0), xy.at(1));
}

void pushMatrix() {
    render_mode->pushMatrix();
}
void popMatrix() {
    render_mode->popMatrix();
}
void translate(double x, double y, double z) {
    render_mode->translate(x, y, z);
}
void translate(const math::Vector& v) {
    translate(v.x, v.y, v.z);
}
void translate(const math::Point& p) {
    translate(p.x, p.y, p.z);
}
void scale(double x, double y, double z) {
    render_mode->scale(x, y, z);
}
void scale(const math::Vector& v) {
    scale(v.x, v.y, v.z);
}
void scale(const math::Point& p) {
    scale(p.x, p.y, p.z);
}
void rotate(double angle, double x, double y, double z) {
    render_mode->rotate(angle, x, y, z);
}

void rotate(const math::Quaternion& q) {
    static double angle;
    static math::Vector axis;
    q.getAngleAxis(angle, axis);
    rotate(angle, axis.x, axis.y, axis.z);
}

void rotate(const math::Matrix& matrix) {
    render_mode->multMatrix(matrix);
}

void setColour(float red, float green, float blue, float alpha) {
    render_mode->setColour(red, green, blue, alpha);
}

void setColour(unsigned char red, unsigned char green, unsigned char blue, unsigned char alpha) {
    const auto share = [](unsigned char byte) { return static_cast<float>(byte / 255.0); };
    setColour(share(red), share(green), share(blue), share(alpha));
}

void setColour(const Colour& colour) {
    render_mode->setColour(colour.data());
}

void enableBlending() {
    render_mode->enableBlending();
}
void disableBlending() {
    render_mode->disableBlending();
}
void enableCulling() {
    render_mode->enableCulling();
}
void disableCulling() {
    render_mode->disableCulling();
}
void drawSolid() {
    render_mode->drawSolid();
}
void drawLine() {
    render_mode->drawLine();
}
void enableDepthTest() {
    render_mode->enableDepthTest();
}
void disableDepthTest() {
    render_mode->disableDepthTest();
}
void enableAlpha() {
    render_mode->enableAlpha();
}
void disableAlpha() {
    render_mode->disableAlpha();
}
void setLineWidth(float width) {
    render_mode->setLineWidth(width);
}
void saveBlendMode() {
    render_mode->saveBlendMode();
}
void setBlendMode(BlendModeEnum mode) {
    render_mode->setBlendMode(mode);
}
void restoreBlendMode() {
    render_mode->restoreBlendMode();
}
void smoothLines(bool on) {
    render_mode->smoothLines(on);
}
bool isSmoothLines() {
    return render_mode->isSmoothLines();
}
void smoothShapes(bool on) {
    render_mode->smoothShapes(on);
}
bool isSmoothShapes() {
    return render_mode->isSmoothShapes();
}
void smoothShading(bool on) {
    render_mode->smoothShading(on);
}
bool isSmoothShading() {
    return render_mode->isSmoothShading();
}

bool isOutLineMode() {
    return in_outline_mode;
}

void setOutlineMode() {
    in_outline_mode = true;
    disableDepthTest();
    drawLine();
}

void unsetOutlineMode() {
    enableDepthTest();
    drawSolid();
    in_outline_mode = false;
}

void setupDefaults() {
    enableDepthTest();
    drawSolid();
}

void renderFlat() {
    smoothLines(false);
    smoothShapes(false);
    smoothShading(false);
}

void renderSmooth() {
    smoothLines(true);
    smoothShapes(false);
    smoothShading(true);
}

} // namespace quorva::graphics::draw
