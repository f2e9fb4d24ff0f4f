#include "Framework/physics/NearbyObstacles.h"

#include "Framework/math/Fuzzy.h"
#include "Framework/physics/Geometry.h"
#include "Framework/physics/PhysicsObject.h"
#include "game/TrapLine.h"

#include <algorithm>
#include <cmath>

namespace quorva::physics {

namespace {

/// Widens the tolerance of fuzzyEqual enough to cover all rounding.
constexpr double fuzzy_margin = 2.0 * math::fuzzy_tolerance;

/// Coordinates of at most this size may differ by this much and still count as the same.
double marginOf(double size1, double size2) {
    return fuzzy_margin * std::max({1.0, std::fabs(size1), std::fabs(size2)});
}

/// Where the corners of a triangle can be while its position is within a region.
class Extents {
public:
    Extents(const PhysicsObject& body, const Bounds& region);

    /// Whether the line can be in the triangle's way.
    bool mayMeet(const TrapLine& line) const { return !known || mayTouch(line); }
    /// Whether the rectangle can hold the triangle.
    bool mayBeHeldBy(const Bounds& rectangle) const;

private:
    bool mayHaveLevelEdge(const PhysicsObject& body) const;
    bool mayTouch(const TrapLine& line) const;

    std::array<Bounds, 3> corners;
    Bounds all;
    bool known = true;      ///< they are numbers
    bool levelEdge = false; ///< an edge's slope may count as zero
};

/// A corner lies at position + vertex. Rounding never turns an order round, so the corners of
/// the region's two ends bound that corner everywhere in it, exactly.
Extents::Extents(const PhysicsObject& body, const Bounds& region) {
    for (std::size_t i = 0; i < corners.size(); ++i) {
        const math::Point& v = body.vertices[i];
        corners[i] = {region.left + v.x, region.right + v.x, region.bottom + v.y, region.top + v.y};
        const Bounds& c = corners[i];
        known = known && std::isfinite(c.left) && std::isfinite(c.right) &&
                std::isfinite(c.bottom) && std::isfinite(c.top);
    }
    const auto& [a, b, c] = corners;
    all = {std::min({a.left, b.left, c.left}), std::max({a.right, b.right, c.right}),
           std::min({a.bottom, b.bottom, c.bottom}), std::max({a.top, b.top, c.top})};
    levelEdge = mayHaveLevelEdge(body);
}

/// The slope of an edge counts as zero if its ends have the same y, or an x that is fuzzily the
/// same. Neither can be where the vertices differ by more than the margin in both.
bool Extents::mayHaveLevelEdge(const PhysicsObject& body) const {
    const double marginX = marginOf(all.left, all.right), marginY = marginOf(all.bottom, all.top);
    const auto& [a, b, c] = body.vertices;
    const auto slopes = [&](const math::Point& from, const math::Point& to) {
        return std::fabs(from.x - to.x) > marginX && std::fabs(from.y - to.y) > marginY;
    };
    return !(slopes(a, b) && slopes(a, c) && slopes(b, c));
}

/// LinesInterect refuses an edge whose two ends lie beyond the line's fixed coordinate on the
/// same side, but for one odd case that comes first: an edge whose slope counts as zero meets a
/// vertical line if its y is the line's x, wherever it lies. So a vertical line is refused only
/// if there is no such edge, or if no corner can have such a y. Comparisons with not-a-number
/// keep the line.
bool Extents::mayTouch(const TrapLine& line) const {
    if (line.start.y == line.end.y) {
        const double y = line.start.y;
        return !(y < all.bottom || y > all.top);
    }
    const double x = line.start.x;
    const bool aside = x < all.left || x > all.right;
    if (!aside || !levelEdge) return !aside;
    const double margin = std::max(marginOf(all.bottom, all.top), marginOf(x, x));
    return !(x < all.bottom - margin || x > all.top + margin);
}

bool Extents::mayBeHeldBy(const Bounds& rectangle) const {
    if (!known) return true;
    return std::count_if(corners.begin(), corners.end(), [&rectangle](const Bounds& corner) {
               return corner.meet(rectangle);
           }) >= caught_corners;
}

} // namespace

Corners worldCorners(const PhysicsObject& body) {
    Corners corners;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        corners[i] = body.position;
        corners[i].x += body.vertices[i].x;
        corners[i].y += body.vertices[i].y;
    }
    return corners;
}

bool isInTheWay(const TrapLine& line, const Corners& c) {
    return LinesInterect(line.start, line.end, c[0], c[1]) ||
           LinesInterect(line.start, line.end, c[0], c[2]) ||
           LinesInterect(line.start, line.end, c[1], c[2]);
}

void NearbyObstacles::refresh(const PhysicsObject& body, const Epochs& now) {
    const math::Point& at = body.position;
    if (linesEpoch == now.lines && region.hold(at.x, at.y)) return;
    const double dx = std::fabs(body.velocity.x), dy = std::fabs(body.velocity.y);
    region = {at.x - dx, at.x + dx, at.y - dy, at.y + dy};
    linesEpoch = now.lines;
    rectanglesEpoch = 0; // looked up over another region
    tested = false;
    lines.clear();
    const Extents extents(body, region);
    for (const TriLine& line : body.lines)
        if (extents.mayMeet(*line.line)) lines.push_back(line.line);
}

bool NearbyObstacles::isStopped(const PhysicsObject& body, const Epochs& now) {
    refresh(body, now);
    if (lines.empty()) return false;
    if (tested && testedAt.x == body.position.x && testedAt.y == body.position.y) return stopped;
    const Corners at = worldCorners(body);
    stopped = std::any_of(lines.begin(), lines.end(),
                          [&at](const TrapLine* line) { return isInTheWay(*line, at); });
    tested = true;
    testedAt = body.position;
    return stopped;
}

bool NearbyObstacles::isNearAny(const std::vector<Bounds>& rectangles, const PhysicsObject& body,
                                const Epochs& now) {
    refresh(body, now);
    if (rectanglesEpoch == now.rectangles) return nearRectangle;
    rectanglesEpoch = now.rectangles;
    const Extents extents(body, region);
    nearRectangle = std::any_of(rectangles.begin(), rectangles.end(),
                                [&extents](const auto& r) { return extents.mayBeHeldBy(r); });
    return nearRectangle;
}

} // namespace quorva::physics
