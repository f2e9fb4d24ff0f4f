#include <GL/glew.h>

#include "Framework/Graphics/GLFunctions.h"

#include <algorithm>
#include <array>

namespace quorva::graphics {

namespace {

float narrow(double value) {
    return static_cast<float>(value);
}

void setCapability(GLenum capability, bool on) {
    if (on)
        glEnable(capability);
    else
        glDisable(capability);
}

} // namespace

unsigned int getGLShape(ShapeEnum shape) {
    switch (shape) {
    case SHAPE_TRIANGLES:
        return GL_TRIANGLES;
    case SHAPE_TRIANGLE_STRIP:
        return GL_TRIANGLE_STRIP;
    case SHAPE_TRIANGLE_FAN:
        return GL_TRIANGLE_FAN;
    case SHAPE_QUADS:
        return GL_QUADS;
    case SHAPE_LINES:
        return GL_LINES;
    case SHAPE_LINE_LOOP:
        return GL_LINE_LOOP;
    case SHAPE_LINE_STRIP:
        return GL_LINE_STRIP;
    case SHAPE_POINTS:
        return GL_POINT;
    case SHAPE_POLYGON:
        return GL_POLYGON;
    default:
        return static_cast<unsigned int>(shape);
    }
}

GLFunctions::GLFunctions() {
    glEnable(GL_LINE_SMOOTH);
    glEnable(GL_POLYGON_SMOOTH);
    glShadeModel(GL_SMOOTH);
    blendModeStack.push(currentBlendMode);
    glewInit();
}

void GLFunctions::rotate(double angle, double x, double y, double z) {
    glRotatef(narrow(angle), narrow(x), narrow(y), narrow(z));
}

void GLFunctions::multMatrix(const math::Matrix& matrix) {
    std::array<float, 16> elements;
    std::transform(matrix.m.begin(), matrix.m.end(), elements.begin(), narrow);
    glMultMatrixf(elements.data());
}

void GLFunctions::translate(double x, double y, double z) {
    glTranslatef(narrow(x), narrow(y), narrow(z));
}

void GLFunctions::scale(double x, double y, double z) {
    glScalef(narrow(x), narrow(y), narrow(z));
}

void GLFunctions::setColour(float red, float green, float blue, float alpha) {
    glColor4f(red, green, blue, alpha);
}

void GLFunctions::setColour(const float* components) {
    glColor4fv(components);
}
void GLFunctions::pushMatrix() {
    glPushMatrix();
}
void GLFunctions::popMatrix() {
    glPopMatrix();
}
void GLFunctions::enableBlending() {
    glEnable(GL_BLEND);
}
void GLFunctions::disableBlending() {
    glDisable(GL_BLEND);
}
void GLFunctions::enableCulling() {
    glEnable(GL_CULL_FACE);
}
void GLFunctions::disableCulling() {
    glDisable(GL_CULL_FACE);
}
void GLFunctions::drawSolid() {
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
}
void GLFunctions::drawLine() {
    glPolygonMode(GL_FRONT_AND_BACK, GL_LINE);
}
void GLFunctions::setLineWidth(float width) {
    glLineWidth(width);
}
void GLFunctions::enableDepthTest() {
    glEnable(GL_DEPTH_TEST);
}
void GLFunctions::disableDepthTest() {
    glDisable(GL_DEPTH_TEST);
}
void GLFunctions::enableAlpha() {
    glEnable(GL_ALPHA_TEST);
}
void GLFunctions::disableAlpha() {
    glDisable(GL_ALPHA_TEST);
}

void GLFunctions::saveBlendMode() {
    blendModeStack.push(currentBlendMode);
}

void GLFunctions::setBlendMode(BlendModeEnum mode) {
    currentBlendMode = mode; // also a number that GL has no function for
    if (mode == BLEND_STANDARD) glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
}

void GLFunctions::restoreBlendMode() {
    if (blendModeStack.empty()) return;
    currentBlendMode = blendModeStack.top();
    blendModeStack.pop();
}

void GLFunctions::smoothLines(bool on) {
    setCapability(GL_LINE_SMOOTH, on);
    smoothLinesOn = on;
}

void GLFunctions::smoothShapes(bool on) {
    setCapability(GL_POLYGON_SMOOTH, on);
    smoothShapesOn = on;
}

void GLFunctions::smoothShading(bool on) {
    glShadeModel(on ? GL_SMOOTH : GL_FLAT);
    smoothShadingOn = on;
}

} // namespace quorva::graphics
