#pragma once

#include "Framework/Graphics/ColourPolicy.h"
#include "Framework/Graphics/MoveRotatePolicy.h"
#include "Framework/Graphics/RenderInterface.h"

namespace quorva::graphics {

/// What every shape begins with: colour, position, rotation and scale. A shape neither
/// pushes nor pops the matrix: its layer does that.
class Shape : public RenderInterface, public ColourPolicy, public MoveRotatePolicy {
protected:
    /// The first line of every render().
    void begin() const {
        applyColour1();
        applyTransform();
    }
};

} // namespace quorva::graphics
