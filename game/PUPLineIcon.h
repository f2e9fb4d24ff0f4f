#pragma once

#include "Framework/Graphics/Shape.h"

/// Sign of the line power-ups: three strokes.
class PUPLineIcon : public quorva::graphics::Shape {
public:
    void render() override;
};
