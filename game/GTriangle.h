#pragma once

#include "Framework/Graphics/Shape.h"

#include <array>

/// The outline of a triangle.
class GTriangle : public quorva::graphics::Shape {
public:
    void render() override;
    void renderDeathMode(); ///< the same outline as three separate lines

    quorva::math::Point& a() { return points[0]; }
    quorva::math::Point& b() { return points[1]; }
    quorva::math::Point& c() { return points[2]; }

    std::array<quorva::math::Point, 3> points; ///< world units, relative to `position`
    bool deathMode = false; ///< render() draws by renderDeathMode(); nothing sets it
};
