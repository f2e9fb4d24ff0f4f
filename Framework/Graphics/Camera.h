#pragma once

#include "Framework/Primitives/Box.h"
#include "Framework/Singleton.h"
#include "Framework/math/Matrix.h"

#include <boost/array.hpp>

namespace quorva::graphics {

/// Owns the projection and the extents of the field, which follow from the shape of the screen:
/// a wide screen shows a wider field, not a stretched one.
class CameraClass {
public:
    CameraClass();

    /// Rebuilds the extents and GL's projection from the settings.
    void setupProjection();
    void setupFrustum(); ///< the clip planes, which stay those of the identity

    /// Whether the sphere is in front of the clip planes. Nothing in the game asks.
    bool objectInFrustum(math::Point& point, float radius) const;

    /// Between these calls the camera stands at its home position, without turn. They don't nest.
    void menuModeBegin();
    void menuModeEnd();

    void resetCamera(); ///< home, without turn

    /// The visible world, each side through single precision: the field to all rules of play but
    /// the player's own bounds, which are the exact fields below.
    primitives::Box getViewBox() const;

    // For debugging: each by an amount in world units or degrees, without one by the matching
    // speed, and at once. Only the menus move the camera in the game.
    void zoomIn() { zoomIn(zoomSpeed); }
    void zoomIn(float amount); ///< not past the home position
    void zoomOut() { zoomOut(zoomSpeed); }
    void zoomOut(float amount); ///< without limit
    void moveUp() { moveUp(moveSpeed); }
    void moveUp(float amount);
    void moveDown() { moveDown(moveSpeed); }
    void moveDown(float amount);
    void strafeRight() { strafeRight(moveSpeed); }
    void strafeRight(float amount);
    void strafeLeft() { strafeLeft(moveSpeed); }
    void strafeLeft(float amount);
    void rotateXPos() { rotateXPos(rotateSpeed); }
    void rotateXPos(float amount);
    void rotateXNeg() { rotateXNeg(rotateSpeed); }
    void rotateXNeg(float amount);
    void rotateYPos() { rotateYPos(rotateSpeed); }
    void rotateYPos(float amount);
    void rotateYNeg() { rotateYNeg(rotateSpeed); }
    void rotateYNeg(float amount);
    void rotateZPos() { rotateZPos(rotateSpeed); }
    void rotateZPos(float amount);
    void rotateZNeg() { rotateZNeg(rotateSpeed); }
    void rotateZNeg(float amount);

    math::Point homePosition;  ///< 100 world units in front of the field
    math::Point position;      ///< translation of the projection
    math::Vector rotation;     ///< degrees about x, y, z
    math::Point savedPosition; ///< menuModeBegin keeps these two
    math::Vector savedRotation;
    double menuTop = 0.0, menuBottom = 0.0, menuLeft = 0.0, menuRight = 0.0; ///< reference screen
    double top = 0.0, bottom = 0.0, left = 0.0, right = 0.0; ///< the visible world, world units
    float aspectCorrection = 1.0F;                           ///< nothing reads it
    float zoomSpeed = 10.0F;                                 ///< world units, as the next
    float moveSpeed = 1.0F;
    float rotateSpeed = 4.5F;                          ///< degrees
    math::Matrix modelMatrix;                          ///< stays the identity
    boost::array<float, 16> projectionMatrix{};        ///< as GL gave it; nothing reads it
    boost::array<boost::array<float, 4>, 4> frustum{}; ///< planes ax + by + cz + d
    bool orthographic = true;                          ///< the game never leaves it
    bool orthographicBeforeMenu = true;
    double perspectiveScaleZ = 0.0; ///< factor of z when not orthographic

private:
    void chooseExtents();
    void project() const;
    void shift(double& coordinate, double amount);
};

using Camera = ReturningSingleton<CameraClass>;

} // namespace quorva::graphics
