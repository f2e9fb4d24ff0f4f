#pragma once

#include "Framework/math/Vector.h"

namespace quorva::physics {

constexpr math::Vector default_gravity(0.0, -9.8, 0.0);

/// Signed area (twice that of the triangle a, b, p) in the plane.
double getSide(const math::Point& a, const math::Point& b, const math::Point& p);

/// Whether p lies in the triangle a, b, c, in x and y. A point on an edge is inside only for
/// corners in counter-clockwise order: the asymmetry is deliberate, recorded games rest on it.
inline bool pointInTriangle(const math::Point& p, const math::Point& a, const math::Point& b,
                            const math::Point& c) {
    const double s1 = (b.x - a.x) * (p.y - a.y) - (b.y - a.y) * (p.x - a.x);
    const double s2 = (c.x - b.x) * (p.y - b.y) - (c.y - b.y) * (p.x - b.x);
    if ((s1 < 0.0) != (s2 < 0.0)) return false; // most points; not-a-number ends up false anyway
    const double s3 = (a.x - c.x) * (p.y - c.y) - (a.y - c.y) * (p.x - c.x);
    return (s1 < 0.0 && s2 < 0.0 && s3 < 0.0) || (s1 >= 0.0 && s2 >= 0.0 && s3 >= 0.0);
}

/// Barycentric coordinates of p, with u + v + w = 1, in the plane that drops the largest
/// component of the triangle's normal (Ericson 2005, Real-Time Collision Detection, 3.4).
void Barycentric(math::Point a, math::Point b, math::Point c, math::Point p, double& u, double& v,
                 double& w);

/// Whether the trap line a1-a2, parallel to an axis, meets the triangle's edge b1-b2; touching
/// counts. Horizontal is what has the same y at both ends, exactly.
/// Deliberate: an edge of slope zero meets a vertical line if its y is the line's x.
bool LinesInterect(const math::Point& a1, const math::Point& a2, const math::Point& b1,
                   const math::Point& b2);

/// The part of b along the minor axis of a, or along the major one if that part is zero.
/// @param work receives the axis
math::Vector getCollisionCorrectionVector(const math::Vector& a, const math::Vector& b,
                                          math::Vector& work);

} // namespace quorva::physics
