#pragma once

namespace quorva::physics {

/// Surface figures of a box. No test reads them.
struct SurfaceDesc {
    double first = 0.0;
    double second = 0.05;
};

/// A box about its owner's position; half extents in world units.
struct AABB {
    AABB() = default;
    AABB(double halfWidth_, double halfHeight_) : halfWidth(halfWidth_), halfHeight(halfHeight_) {}

    double halfWidth = 0.0;
    double halfHeight = 0.0;
    SurfaceDesc surface;
};

} // namespace quorva::physics
