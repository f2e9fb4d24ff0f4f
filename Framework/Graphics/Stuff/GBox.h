#pragma once

#include "Framework/Graphics/Shape.h"
#include "Framework/Primitives/Box.h"

namespace quorva::graphics {

/// A filled rectangle.
class GBox : public Shape {
public:
    void render() override;

    primitives::Box box; ///< world units, relative to `position`

protected:
    void plot() const; ///< the vertices alone
};

} // namespace quorva::graphics
