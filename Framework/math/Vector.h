#pragma once

#include "Framework/math/Fuzzy.h"
#include "Framework/math/Point.h"

#include <cmath>

namespace quorva::math {

/// A direction or a difference of two points, in world units.
class Vector {
public:
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;

    constexpr Vector() = default;
    constexpr Vector(double x_, double y_, double z_) : x(x_), y(y_), z(z_) {}
    constexpr Vector(const Point& p) : x(p.x), y(p.y), z(p.z) {}
    Vector& operator=(const Point& p) { return *this = Vector(p); }

    Vector& operator+=(const Vector& v) {
        x += v.x;
        y += v.y;
        z += v.z;
        return *this;
    }

    double dot(const Vector& v) const { return x * v.x + y * v.y + z * v.z; }
    double length() const { return std::sqrt(dot(*this)); }

    /// Scales to length 1. Deliberately without a check: a zero vector becomes not-a-number.
    void normalise() {
        const double scale = 1.0 / length();
        x *= scale;
        y *= scale;
        z *= scale;
    }
};

inline Point::Point(const Vector& v) : x(v.x), y(v.y), z(v.z) {}
inline Point& Point::operator=(const Vector& v) {
    return *this = Point(v);
}

inline Point& Point::operator+=(const Vector& v) {
    x += v.x;
    y += v.y;
    z += v.z;
    return *this;
}

inline double Point::dot(const Vector& v) const {
    return Vector(*this).dot(v);
}
inline double Point::length() const {
    return Vector(*this).length();
}
inline void Point::normalise() {
    Vector v(*this);
    v.normalise();
    *this = v;
}

inline Vector operator+(const Vector& a, const Vector& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline Vector operator-(const Vector& a, const Vector& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline Vector operator*(const Vector& v, double s) {
    return {v.x * s, v.y * s, v.z * s};
}
inline Vector operator*(double s, const Vector& v) {
    return v * s;
}

inline Point operator+(const Point& p, const Vector& v) {
    return {p.x + v.x, p.y + v.y, p.z + v.z};
}
inline Point operator-(const Point& p, const Vector& v) {
    return {p.x - v.x, p.y - v.y, p.z - v.z};
}
inline Vector operator-(const Point& a, const Point& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline Point operator*(const Point& p, double s) {
    return {p.x * s, p.y * s, p.z * s};
}

/// Sameness to within fuzzyEqual, component by component.
inline bool operator==(const Vector& a, const Vector& b) {
    return fuzzyEqual(a.x, b.x) && fuzzyEqual(a.y, b.y) && fuzzyEqual(a.z, b.z);
}
inline bool operator==(const Point& a, const Point& b) {
    return Vector(a) == Vector(b);
}
inline bool operator!=(const Vector& a, const Vector& b) {
    return !(a == b);
}
inline bool operator!=(const Point& a, const Point& b) {
    return !(a == b);
}

constexpr Point zero_point(0.0, 0.0, 0.0);
constexpr Vector zero_vector(0.0, 0.0, 0.0);
constexpr Vector x_axis(1.0, 0.0, 0.0);
constexpr Vector y_axis(0.0, 1.0, 0.0);
constexpr Vector z_axis(0.0, 0.0, 1.0);
constexpr Vector up_vector = y_axis;

} // namespace quorva::math
