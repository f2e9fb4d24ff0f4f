#pragma once

#include "Framework/math/Quaternion.h"

#include <array>
#include <iosfwd>

namespace quorva::math {

/// Four by four, column-major as OpenGL takes it: elements 12, 13, 14 are the translation.
/// It acts on a column vector from the left.
class Matrix {
public:
    std::array<double, 16> m{};

    Matrix() = default;

    /// Values row by row: the first four are the first row (elements 0, 4, 8, 12).
    Matrix(double a, double b, double c, double d, double e, double f, double g, double h, double i,
           double j, double k, double l, double n, double o, double p, double q);
    void set(double a, double b, double c, double d, double e, double f, double g, double h,
             double i, double j, double k, double l, double n, double o, double p, double q);

    void makeIdentity();
    /// Rotation by `angle` degrees about (x, y, z), which is normalised first.
    void makeRotation(double angle, double x, double y, double z);
    void transpose();
    double determinant() const;

    // Of the rotation part.
    Vector getEulerXYZ() const; ///< degrees about x, y, z, each in (-180, 180] or not-a-number
    Quaternion getQuaternion() const;

    double& operator[](std::size_t index) { return m[index]; }
    double operator[](std::size_t index) const { return m[index]; }
};

Matrix operator+(const Matrix& a, const Matrix& b);
Matrix operator-(const Matrix& a, const Matrix& b);
Matrix operator*(const Matrix& a, const Matrix& b);
Matrix operator*(double s, const Matrix& a);
Point operator*(const Matrix& a, const Point& p);   ///< no division by the fourth row
Vector operator*(const Matrix& a, const Vector& v); ///< without the translation
std::ostream& operator<<(std::ostream& out, const Matrix& a);

/// Deliberately no inverse: `out` becomes `in` times 1 over its determinant. Nothing calls it.
/// @return false, with `out` left alone, if the determinant is fuzzyZero
bool inverse(Matrix& out, const Matrix& in);
bool fastInverse(Matrix& out, const Matrix& in); ///< the same as inverse

} // namespace quorva::math
