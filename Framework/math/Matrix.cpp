#include "Framework/math/Matrix.h"

#include "Framework/math/Elementary.h"

#include <algorithm>
#include <ostream>

namespace quorva::math {

Matrix::Matrix(double a, double b, double c, double d, double e, double f, double g, double h,
               double i, double j, double k, double l, double n, double o, double p, double q) {
    set(a, b, c, d, e, f, g, h, i, j, k, l, n, o, p, q);
}

void Matrix::set(double a, double b, double c, double d, double e, double f, double g, double h,
                 double i, double j, double k, double l, double n, double o, double p, double q) {
    m = {a, e, i, n, b, f, j, o, c, g, k, p, d, h, l, q};
}

void Matrix::makeIdentity() {
    set(1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1);
}

void Matrix::makeRotation(double angle, double x, double y, double z) {
    Vector axis(x, y, z);
    axis.normalise();
    const double radians = angle * pi / 180.0;
    const double c = math::cos(radians), s = math::sin(radians), t = 1.0 - c;
    makeIdentity();
    m[0] = axis.x * axis.x * t + c;
    m[1] = axis.x * axis.y * t + axis.z * s;
    m[2] = axis.x * axis.z * t - axis.y * s;
    m[4] = axis.x * axis.y * t - axis.z * s;
    m[5] = axis.y * axis.y * t + c;
    m[6] = axis.y * axis.z * t + axis.x * s;
    m[8] = axis.x * axis.z * t + axis.y * s;
    m[9] = axis.y * axis.z * t - axis.x * s;
    m[10] = axis.z * axis.z * t + c;
}

void Matrix::transpose() {
    for (std::size_t row = 0; row < 4; ++row)
        for (std::size_t column = 0; column < row; ++column)
            std::swap(m[row * 4 + column], m[column * 4 + row]);
}

double Matrix::determinant() const {
    // Laplace expansion by the two-by-two minors of the first and the last two columns.
    const auto minorOf = [this](std::size_t c, std::size_t r1, std::size_t r2) {
        return m[c * 4 + r1] * m[(c + 1) * 4 + r2] - m[c * 4 + r2] * m[(c + 1) * 4 + r1];
    };
    return minorOf(0, 0, 1) * minorOf(2, 2, 3) - minorOf(0, 0, 2) * minorOf(2, 1, 3) +
           minorOf(0, 0, 3) * minorOf(2, 1, 2) + minorOf(0, 1, 2) * minorOf(2, 0, 3) -
           minorOf(0, 1, 3) * minorOf(2, 0, 2) + minorOf(0, 2, 3) * minorOf(2, 0, 1);
}

namespace {

double halfTurnDegrees(double radians) {
    double degrees = radians * 180.0 / pi;
    while (degrees > 180.0)
        degrees -= 360.0;
    while (degrees <= -180.0)
        degrees += 360.0;
    return degrees;
}

} // namespace

Vector Matrix::getEulerXYZ() const {
    Vector angles;
    angles.y = math::asin(m[8]);
    if (angles.y >= right_angle) {
        angles.x = math::atan2(m[1], m[5]);
    } else if (angles.y <= -right_angle) {
        angles.x = -math::atan2(m[1], m[5]);
    } else {
        angles.x = math::atan2(-m[9], m[10]);
        angles.z = math::atan2(-m[4], m[0]);
    }
    return {halfTurnDegrees(angles.x), halfTurnDegrees(angles.y), halfTurnDegrees(angles.z)};
}

Quaternion Matrix::getQuaternion() const {
    const double t = m[0] + m[5] + m[10] + 1.0;
    if (!fuzzyZero(t)) {
        const double s = 0.5 / std::sqrt(t);
        return {0.25 / s, (m[6] - m[9]) * s, (m[8] - m[2]) * s, (m[1] - m[4]) * s};
    }
    if (m[0] > m[5] && m[0] > m[10]) {
        const double s = 2.0 * std::sqrt(1.0 + m[0] - m[5] - m[10]);
        return {(m[9] - m[6]) / s, 0.25 * s, (m[1] + m[4]) / s, (m[2] + m[8]) / s};
    }
    if (m[5] > m[10]) {
        const double s = 2.0 * std::sqrt(1.0 + m[5] - m[0] - m[10]);
        return {(m[8] - m[2]) / s, (m[1] + m[4]) / s, 0.25 * s, (m[6] + m[9]) / s};
    }
    const double s = 2.0 * std::sqrt(1.0 + m[10] - m[0] - m[5]);
    return {(m[4] - m[1]) / s, (m[2] + m[8]) / s, (m[6] + m[9]) / s, 0.25 * s};
}

Matrix operator+(const Matrix& a, const Matrix& b) {
    Matrix sum;
    for (std::size_t i = 0; i < sum.m.size(); ++i)
        sum[i] = a[i] + b[i];
    return sum;
}

Matrix operator-(const Matrix& a, const Matrix& b) {
    Matrix difference;
    for (std::size_t i = 0; i < difference.m.size(); ++i)
        difference[i] = a[i] - b[i];
    return difference;
}

Matrix operator*(const Matrix& a, const Matrix& b) {
    Matrix product;
    for (std::size_t column = 0; column < 4; ++column)
        for (std::size_t row = 0; row < 4; ++row)
            for (std::size_t k = 0; k < 4; ++k)
                product[column * 4 + row] += a[k * 4 + row] * b[column * 4 + k];
    return product;
}

Matrix operator*(double s, const Matrix& a) {
    Matrix scaled;
    for (std::size_t i = 0; i < scaled.m.size(); ++i)
        scaled[i] = s * a[i];
    return scaled;
}

Point operator*(const Matrix& a, const Point& p) {
    return {a[0] * p.x + a[4] * p.y + a[8] * p.z + a[12],
            a[1] * p.x + a[5] * p.y + a[9] * p.z + a[13],
            a[2] * p.x + a[6] * p.y + a[10] * p.z + a[14]};
}

Vector operator*(const Matrix& a, const Vector& v) {
    return {a[0] * v.x + a[4] * v.y + a[8] * v.z, a[1] * v.x + a[5] * v.y + a[9] * v.z,
            a[2] * v.x + a[6] * v.y + a[10] * v.z};
}

std::ostream& operator<<(std::ostream& out, const Matrix& a) {
    for (std::size_t row = 0; row < 4; ++row) {
        for (std::size_t column = 0; column < 4; ++column)
            out << (column == 0 ? "" : " ") << a[column * 4 + row];
        out << '\n';
    }
    return out;
}

bool inverse(Matrix& out, const Matrix& in) {
    const double determinant = in.determinant();
    if (fuzzyZero(determinant)) return false;
    out = (1.0 / determinant) * in;
    return true;
}

bool fastInverse(Matrix& out, const Matrix& in) {
    return inverse(out, in);
}

} // namespace quorva::math
