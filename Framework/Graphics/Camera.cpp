#include <GL/glew.h>

#include "Framework/Graphics/Camera.h"

#include "Framework/Config.h"

#include <algorithm>
#include <iostream>

namespace quorva::graphics {

namespace {

constexpr math::Point home(0.0, 0.0, -100.0);
constexpr double menu_half_height = 7.5, menu_half_width = 5.625; // before they are doubled

/// Half extents by the screen's width over height, before they are doubled. The first row that
/// matches counts.
const struct {
    double ratio; ///< at most
    double halfWidth, halfHeight;
} screen_shapes[] = {
    {0.5625, 5.625, 10.0},   // 9 by 16, upright
    {0.625, 5.625, 9.0},     // 10 by 16, upright
    {0.75, 5.625, 7.5},      // 3 by 4, upright
    {1.3333334F, 10.0, 7.5}, // 4 by 3, and all from 0.75 on
    {1.6, 12.0, 7.5},        // 16 by 10
};
constexpr double square_half_extent = 7.5;
constexpr double widest_half_width = 13.333330154418945, widest_half_height = 7.5; // 16 by 9
constexpr double widest_ratio = 1.7777778F; // beyond it the shape is a guess

constexpr double near_flat = 5.0, far_flat = 500.0;   // orthographic
constexpr double near_deep = 50.0, far_deep = 5000.0; // perspective

float narrow(double value) {
    return static_cast<float>(value);
}

} // namespace

CameraClass::CameraClass() : homePosition(home), position(home) {
    modelMatrix.makeIdentity();
}

void CameraClass::setupProjection() {
    const auto& config = config::Config::Instance();
    glViewport(0, 0, config.getScreenWidth(), config.getScreenHeight());
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    chooseExtents();
    aspectCorrection = 1.0F;
    project();
    for (double* extent :
         {&menuTop, &menuBottom, &menuLeft, &menuRight, &top, &bottom, &left, &right})
        *extent *= 2.0; // from here on in world units
    glDepthRange(0.0, 5000.0);
    glTranslatef(narrow(position.x), narrow(position.y), narrow(position.z));
    glRotatef(narrow(rotation.x), 1.0F, 0.0F, 0.0F);
    glRotatef(narrow(rotation.y), 0.0F, 1.0F, 0.0F);
    glRotatef(narrow(rotation.z), 0.0F, 0.0F, 1.0F);
    if (!orthographic) glScalef(1.0F, 1.0F, narrow(perspectiveScaleZ));
    glMatrixMode(GL_MODELVIEW);
}

void CameraClass::chooseExtents() {
    menuTop = menu_half_height;
    menuBottom = -menu_half_height;
    menuLeft = -menu_half_width;
    menuRight = menu_half_width;

    const auto& config = config::Config::Instance();
    const unsigned short width = config.getScreenWidth(), height = config.getScreenHeight();
    const double ratio = static_cast<double>(width) / height;
    const auto set = [this](double halfWidth, double halfHeight) {
        left = -halfWidth;
        right = halfWidth;
        bottom = -halfHeight;
        top = halfHeight;
    };
    if (width == height) return set(square_half_extent, square_half_extent);
    for (const auto& shape : screen_shapes)
        if (ratio <= shape.ratio) return set(shape.halfWidth, shape.halfHeight);
    if (ratio > widest_ratio) std::cerr << "Can't guess screen ratio - using 16x9\n";
    set(widest_half_width, widest_half_height);
}

void CameraClass::project() const {
    if (orthographic)
        glOrtho(narrow(2.0 * left), narrow(2.0 * right), narrow(2.0 * bottom), narrow(2.0 * top),
                near_flat, far_flat);
    else
        glFrustum(narrow(left), narrow(right), narrow(bottom), narrow(top), near_deep, far_deep);
}

primitives::Box CameraClass::getViewBox() const {
    return {narrow(top), narrow(bottom), narrow(left), narrow(right)};
}

void CameraClass::setupFrustum() {
    const math::Matrix& m = modelMatrix;
    std::transform(m.m.begin(), m.m.end(), projectionMatrix.begin(), narrow);
    glGetFloatv(GL_PROJECTION_MATRIX, projectionMatrix.data()); // overwrites all that, if it can
    // Deliberate: from the model matrix, not from what GL has given.
    for (std::size_t i = 0; i < 4; ++i) {
        const double w = m[i * 4 + 3], x = m[i * 4], y = m[i * 4 + 1];
        frustum[0][i] = narrow(w - x);
        frustum[1][i] = narrow(w + x);
        frustum[2][i] = narrow(w + y);
        frustum[3][i] = narrow(w - y);
    }
}

bool CameraClass::objectInFrustum(math::Point& point, float radius) const {
    return std::none_of(frustum.begin(), frustum.end(), [&](const auto& plane) {
        return plane[0] * point.x + plane[1] * point.y + plane[2] * point.z + plane[3] <= -radius;
    });
}

void CameraClass::menuModeBegin() {
    orthographicBeforeMenu = orthographic;
    savedPosition = position;
    savedRotation = rotation;
    orthographic = true;
    resetCamera();
}

void CameraClass::menuModeEnd() {
    position = savedPosition;
    rotation = savedRotation;
    if (!orthographicBeforeMenu) orthographic = false;
    setupProjection();
}

void CameraClass::resetCamera() {
    position = homePosition;
    rotation = math::zero_vector;
    setupProjection();
}

void CameraClass::shift(double& coordinate, double amount) {
    coordinate += amount;
    setupProjection();
}

void CameraClass::zoomIn(float amount) {
    shift(position.z, position.z < homePosition.z ? amount : 0.0);
}
void CameraClass::zoomOut(float amount) {
    shift(position.z, -amount);
}
void CameraClass::moveUp(float amount) {
    shift(position.y, amount);
}
void CameraClass::moveDown(float amount) {
    shift(position.y, -amount);
}
void CameraClass::strafeRight(float amount) {
    shift(position.x, amount);
}
void CameraClass::strafeLeft(float amount) {
    shift(position.x, -amount);
}
void CameraClass::rotateXPos(float amount) {
    shift(rotation.x, amount);
}
void CameraClass::rotateXNeg(float amount) {
    shift(rotation.x, -amount);
}
void CameraClass::rotateYPos(float amount) {
    shift(rotation.y, amount);
}
void CameraClass::rotateYNeg(float amount) {
    shift(rotation.y, -amount);
}
void CameraClass::rotateZPos(float amount) {
    shift(rotation.z, amount);
}
void CameraClass::rotateZNeg(float amount) {
    shift(rotation.z, -amount);
}

} // namespace quorva::graphics
