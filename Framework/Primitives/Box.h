#pragma once

namespace quorva::primitives {

/// A rectangle, or the extents of a text, in world units.
class Box {
public:
    double top = 0.0;
    double bottom = 0.0;
    double left = 0.0;
    double right = 0.0;
    double near = 0.0; ///< extents of a text only
    double far = 0.0;

    Box() = default;
    Box(double top_, double bottom_, double left_, double right_, double near_ = 0.0,
        double far_ = 0.0)
        : top(top_), bottom(bottom_), left(left_), right(right_), near(near_), far(far_) {}

    // Deliberate: a copy passes through single precision. The score of a rectangle and its
    // indicator are computed from copies, so an exact copy would change both.
    Box(const Box& other) { *this = other; }
    Box& operator=(const Box& other) {
        top = throughSingle(other.top);
        bottom = throughSingle(other.bottom);
        left = throughSingle(other.left);
        right = throughSingle(other.right);
        near = throughSingle(other.near);
        far = throughSingle(other.far);
        return *this;
    }

private:
    /// By way of memory: g++ 12 vectorises such a row of conversions, and leaves some of them out.
    static double throughSingle(double x) {
        const volatile auto single = static_cast<float>(x);
        return single;
    }
};

} // namespace quorva::primitives
