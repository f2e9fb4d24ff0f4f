#pragma once

namespace quorva::physics {

/// An upright rectangle in world units, all four sides belonging to it. Exact, where a
/// primitives::Box is rounded by every copy.
struct Bounds {
    double left, right, bottom, top;

    bool hold(double x, double y) const {
        return x >= left && x <= right && y <= top && y >= bottom;
    }
    bool cover(const Bounds& other) const {
        return top >= other.top && bottom <= other.bottom && left <= other.left &&
               right >= other.right;
    }
    bool meet(const Bounds& other) const {
        return left <= other.right && right >= other.left && bottom <= other.top &&
               top >= other.bottom;
    }
};

} // namespace quorva::physics
