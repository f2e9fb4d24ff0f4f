#include "Framework/math/Quaternion.h"

#include "Framework/math/Elementary.h"

namespace quorva::math {

void Quaternion::getAngleAxis(double& angle, Vector& axis) const {
    const double n = x * x + y * y + z * z;
    if (!(n > 0.0)) {
        angle = 0.0;
        axis = x_axis;
        return;
    }
    const double cosine = w > 1.0 ? 1.0 : w < -1.0 ? -1.0 : w;
    angle = 2.0 * math::acos(cosine) * 180.0 / pi;
    const double norm = std::sqrt(n);
    axis = Vector(x / norm, y / norm, z / norm);
}

namespace {

void divideByNorm(Quaternion& q) {
    const double norm = std::sqrt(q.w * q.w + q.x * q.x + q.y * q.y + q.z * q.z);
    if (!(norm > 0.0)) return;
    q = Quaternion(q.w / norm, q.x / norm, q.y / norm, q.z / norm);
}

} // namespace

void rotate(double angle, const Vector& axis, Quaternion& q) {
    const double half = 0.5 * angle * pi / 180.0;
    const auto [sine, cosine] = math::sinCos(half);
    Quaternion d(cosine, axis.x * sine, axis.y * sine, axis.z * sine);
    divideByNorm(d);
    q = Quaternion(q.w + d.w, q.x + d.x, q.y + d.y, q.z + d.z);
    divideByNorm(q);
}

} // namespace quorva::math
