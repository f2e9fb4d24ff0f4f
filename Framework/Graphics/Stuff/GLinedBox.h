#pragma once

#include "Framework/Graphics/Shape.h"
#include "Framework/Primitives/Box.h"

/// The outline of a rectangle, in the line width of the shape before it.
class GLinedBox : public quorva::graphics::Shape {
public:
    void render() override;

    quorva::primitives::Box box; ///< world units, relative to `position`
};
