#pragma once

namespace quorva::math {

class Vector;

/// A location in world units: +x right, +y up; actors keep z at 0.
class Point {
public:
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    constexpr Point() = default;
    constexpr Point(double x_, double y_, double z_) : x(x_), y(y_), z(z_) {}
    inline Point(const Vector& v);
    inline Point& operator=(const Vector& v);

    inline Point& operator+=(const Vector& v);

    // As of the vector from the origin.
    inline double dot(const Vector& v) const;
    inline double length() const;
    inline void normalise();
};

} // namespace quorva::math

#include "Framework/math/Vector.h" // completes the conversions between the two
