#pragma once

#include "platform/web/gl/Matrices.h"

#include <array>
#include <cstdint>
#include <vector>

namespace quorva::web {

using Colour = std::array<float, 4>; ///< red, green, blue, alpha

/// As the page's vertex shader takes it.
struct Corner {
    Vertex position;
    std::array<std::uint8_t, 4> colour;
    // Of a line, in pixels: where it is from the line's middle, and up to where the line covers
    // whole pixels. A pixel further out it has faded away.
    float across, halfWidth, along, halfLength;
};

/// What has been drawn since the page was last given something to draw.
class Batch {
public:
    void setViewport(int width_, int height_);

    void addTriangle(const Vertex (&corners)[3], const Colour (&colours)[3]);
    /// @param width in pixels; edges and ends are smooth
    void addLine(const Vertex& from, const Vertex& to, const Colour& fromColour,
                 const Colour& toColour, float width);

    /// Nothing that was drawn before is to be seen.
    void clear(const Colour& background);

    /// Must be called before a state changes. Draws nothing if there is nothing.
    void flush(bool depthTest, bool blending);

private:
    std::vector<Corner> corners;
    float width = 1.0F, height = 1.0F; ///< of the viewport, in pixels
    bool clears = false;               ///< before the corners are drawn
    Colour background{};
};

} // namespace quorva::web
