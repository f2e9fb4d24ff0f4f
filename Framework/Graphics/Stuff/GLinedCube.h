#pragma once

#include "Framework/Graphics/Stuff/GCube.h"

/// The edges of a box about the origin, also those behind. Depth test, culling and filling are on
/// afterwards.
class GLinedCube : public GCube {
public:
    void render() override;
};
