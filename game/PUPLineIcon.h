#pragma once

#include "Framework/Graphics/Shape.h"

/// The icon of the line power-ups: three strokes.
class PUPLineIcon : public quorva::graphics::Shape {
public:
    void render() override;
};
