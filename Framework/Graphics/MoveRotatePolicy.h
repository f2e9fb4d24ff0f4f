#pragma once

#include "Framework/math/Quaternion.h"

namespace quorva::graphics {

/// Common base of what can move a shape.
class MovementPolicyBase {
protected:
    ~MovementPolicyBase() = default;
};

/// Where a shape stands inside its layer.
class MoveRotatePolicy : public MovementPolicyBase {
public:
    math::Quaternion rotation;         ///< all zero: not turned
    math::Point position;              ///< world units
    math::Vector scale{1.0, 1.0, 1.0}; ///< factors along the axes

    /// The same factor along all axes.
    void setScale(double factor) { scale = math::Vector(factor, factor, factor); }

protected:
    ~MoveRotatePolicy() = default;

    void applyTransform() const; ///< translates, rotates and scales the current matrix
};

} // namespace quorva::graphics
