#pragma once

#include "Framework/math/Vector.h"

#include <boost/container/small_vector.hpp>

#include <array>
#include <cstdint>
#include <vector>

class TrapLine;

namespace quorva::physics {

class PhysicsObject;

/// Corners of a triangle that must be inside a rectangle for it to be caught.
constexpr int caught_corners = 2;

using Corners = std::array<math::Point, 3>;

/// The corners of a triangle, in world units.
Corners worldCorners(const PhysicsObject& body);

/// Whether the line meets an edge of the triangle.
bool isInTheWay(const TrapLine& line, const Corners& corners);

/// A closed rectangle with its tolerance, in world units.
struct SquareBounds {
    double top, bottom, left, right;

    bool hold(double x, double y) const {
        return x >= left && x <= right && y <= top && y >= bottom;
    }
    bool covers(const SquareBounds& other) const {
        return top >= other.top && bottom <= other.bottom && left <= other.left &&
               right >= other.right;
    }
};

/// In world units.
struct Bounds {
    double left, right, bottom, top;
};

/// The trap lines and rectangles that a triangle can meet while it stays within a small region,
/// as wide as one tick's move to either side. A tick has up to 1000 sub-steps: each then tests
/// those few instead of all. They are looked up again when the triangle leaves the region or an
/// epoch has passed, so a wrong guess of the region costs time and never a result.
class Reach {
public:
    /// Counters that go on when the lines, or the rectangles, have changed.
    struct Epochs {
        std::uint32_t lines = 0;
        std::uint32_t rectangles = 0;
    };

    /// Whether one of `body.lines` is in the way of the triangle where it is now. A triangle that
    /// has not moved since it was last asked gets the same answer.
    bool isStopped(const PhysicsObject& body, const Epochs& now);

    /// False if none of the rectangles can hold the triangle.
    bool isNearAny(const std::vector<SquareBounds>& rectangles, const PhysicsObject& body,
                   const Epochs& now);

private:
    void follow(const PhysicsObject& body, const Epochs& now);
    bool covers(const math::Point& position) const;

    // Few bytes, and those of every sub-step together: a thousand triangles should stay near the
    // processor.
    Bounds region{1.0, -1.0, 1.0, -1.0};               ///< of positions; holds none at first
    std::uint32_t linesEpoch = 0, rectanglesEpoch = 0; ///< of `lines`, of `nearRectangle`
    bool nearRectangle = false;
    bool tested = false; ///< against `lines`, at testedAt, with the answer `stopped`
    bool stopped = false;
    math::Point testedAt;
    boost::container::small_vector<const TrapLine*, 4> lines; ///< those that can be met
};

} // namespace quorva::physics
