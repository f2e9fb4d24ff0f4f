#pragma once

#include "Framework/Graphics/Shape.h"

/// The title KOV: straight strokes, a circle, and three nested arrows in the first letter.
class Logo : public quorva::graphics::Shape {
public:
    void render() override;
};
