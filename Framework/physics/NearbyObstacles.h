#pragma once

#include "Framework/math/Vector.h"
#include "Framework/physics/Bounds.h"

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

/// The trap lines and rectangles that a triangle can meet while it stays within a small region,
/// as wide as one tick's move to either side. A tick has up to 1000 sub-steps: each then tests
/// those few instead of all. They are looked up again when the triangle leaves the region or an
/// epoch has passed, so a wrong guess of the region costs time and never a result.
class NearbyObstacles {
public:
    /// What has been looked up holds for one epoch only. Each counter is incremented whenever
    /// the lines, or the rectangles, change.
    struct Epochs {
        std::uint32_t lines = 0;
        std::uint32_t rectangles = 0;
    };

    /// Whether one of `body.lines` is in the way of the triangle where it is now. A triangle that
    /// has not moved since the last call gets the same answer.
    bool isStopped(const PhysicsObject& body, const Epochs& now);

    /// False if none of the rectangles can hold the triangle.
    bool isNearAny(const std::vector<Bounds>& rectangles, const PhysicsObject& body,
                   const Epochs& now);

private:
    void refresh(const PhysicsObject& body, const Epochs& now);

    // Kept small, and what every sub-step reads kept together, so that a thousand triangles stay
    // in cache.
    Bounds region{1.0, -1.0, 1.0, -1.0};               ///< of positions; holds none at first
    std::uint32_t linesEpoch = 0, rectanglesEpoch = 0; ///< of `lines`, of `nearRectangle`
    bool nearRectangle = false;
    bool tested = false; ///< against `lines`, at testedAt, with the answer `stopped`
    bool stopped = false;
    math::Point testedAt;
    boost::container::small_vector<const TrapLine*, 4> lines; ///< the ones within reach
};

} // namespace quorva::physics
