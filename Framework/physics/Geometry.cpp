#include "Framework/physics/Geometry.h"

#include <algorithm>

namespace quorva::physics {

using math::Point;
using math::Vector;

double getSide(const Point& a, const Point& b, const Point& p) {
    return (a.y - p.y) * (b.x - p.x) - (a.x - p.x) * (b.y - p.y);
}

namespace {

double planeArea(double x1, double y1, double x2, double y2, double x3, double y3) {
    return (x1 - x2) * (y2 - y3) - (x2 - x3) * (y1 - y2);
}

} // namespace

void Barycentric(Point a, Point b, Point c, Point p, double& u, double& v, double& w) {
    const Vector ab = b - a, ac = c - a;
    const Vector normal(ab.y * ac.z - ab.z * ac.y, ab.z * ac.x - ab.x * ac.z,
                        ab.x * ac.y - ab.y * ac.x);
    const double x = std::fabs(normal.x), y = std::fabs(normal.y), z = std::fabs(normal.z);
    double areaU, areaV, scale;
    if (x >= y && x >= z) {
        areaU = planeArea(p.y, p.z, b.y, b.z, c.y, c.z);
        areaV = planeArea(p.y, p.z, c.y, c.z, a.y, a.z);
        scale = 1.0 / normal.x;
    } else if (y >= x && y >= z) {
        areaU = planeArea(p.x, p.z, b.x, b.z, c.x, c.z);
        areaV = planeArea(p.x, p.z, c.x, c.z, a.x, a.z);
        scale = 1.0 / -normal.y;
    } else {
        areaU = planeArea(p.x, p.y, b.x, b.y, c.x, c.y);
        areaV = planeArea(p.x, p.y, c.x, c.y, a.x, a.y);
        scale = 1.0 / normal.z;
    }
    u = areaU * scale;
    v = areaV * scale;
    w = 1.0 - u - v;
}

namespace {

/// Whether value lies between the ends, bounds included, whichever end is the smaller.
bool liesBetween(double value, double end1, double end2) {
    return value >= std::min(end1, end2) && value <= std::max(end1, end2);
}

bool onOneSide(double a, double b, double bound) {
    return (a > bound && b > bound) || (a < bound && b < bound);
}

} // namespace

bool LinesInterect(const Point& a1, const Point& a2, const Point& b1, const Point& b2) {
    const bool horizontal = a1.y == a2.y;
    const double k = horizontal ? a1.y : a1.x;
    // Cheap refusals come before the division. The odd case has to get past them: an edge without
    // a slope meets a vertical line by its height, wherever it lies.
    if (horizontal && onOneSide(b1.y, b2.y, k)) return false;
    const bool aside = !horizontal && onOneSide(b1.x, b2.x, k);
    if (aside && !math::fuzzyEqual(b1.y, k)) return false;

    const double m = math::fuzzyEqual(b1.x, b2.x) ? 0.0 : (b2.y - b1.y) / (b2.x - b1.x);
    const double c = b1.y - m * b1.x;
    if (horizontal) return liesBetween(m != 0.0 ? (k - c) / m : b1.x, a1.x, a2.x);
    if (m == 0.0) return math::fuzzyEqual(b1.y, k);
    return !aside && liesBetween(k * m + c, a1.y, a2.y);
}

Vector getCollisionCorrectionVector(const Vector& a, const Vector& b, Vector& work) {
    const bool flat = std::fabs(a.y) <= std::fabs(a.x);
    const auto projected = [&b, &work] {
        Vector axis = work;
        axis.normalise();
        return axis * axis.dot(b);
    };
    work = flat ? Vector(0.0, a.y, a.z) : Vector(a.x, 0.0, a.z);
    const Vector minor = projected();
    if (!math::fuzzyZero(minor.length())) return minor;
    work = flat ? Vector(a.x, 0.0, a.z) : Vector(0.0, a.y, a.z);
    return projected();
}

} // namespace quorva::physics
