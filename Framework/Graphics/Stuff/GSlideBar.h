#pragma once

#include "Framework/Graphics/Shape.h"

/// A track with a knob on it that stands for a value. The knob is three times as high as the track,
/// and square.
class GSlideBar : public quorva::graphics::Shape {
public:
    void render() override;

    const float* value = nullptr;             ///< 0 at the left end, 1 at the right; not owned
    double halfWidth = 0.0, halfHeight = 0.0; ///< of the track, world units
};
