#pragma once

#include "Framework/math/Vector.h"

namespace quorva::math {

constexpr double pi = 3.141592653589793;
constexpr double right_angle = 1.57079632679; ///< radians, as the game has always rounded it

/// An orientation. All zero at first, which means "not turned", and not the identity.
class Quaternion {
public:
    double w = 0.0;
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    constexpr Quaternion() = default;
    constexpr Quaternion(double w_, double x_, double y_, double z_) : w(w_), x(x_), y(y_), z(z_) {}

    /// The turn as an angle in degrees about a unit axis; 0 about x if there is no axis.
    /// A w that rounding has carried past 1 counts as 1.
    void getAngleAxis(double& angle, Vector& axis) const;
};

/// The game's way of spinning a thing: q leans towards the turn by `angle` degrees about `axis`,
/// being the normalised sum of both. It is no product: a caller spins by raising `angle`.
void rotate(double angle, const Vector& axis, Quaternion& q);

} // namespace quorva::math
