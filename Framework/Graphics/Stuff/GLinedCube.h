#pragma once

#include "Framework/Graphics/Stuff/GCube.h"

/// The edges of a box about the origin, seen through.
class GLinedCube : public GCube {
public:
    void render() override;
};
