#pragma once

#include "Framework/Graphics/Shape.h"

/// The icon of the cooldown power-ups: a small square.
class CDLineIcon : public quorva::graphics::Shape {
public:
    void render() override;
};
