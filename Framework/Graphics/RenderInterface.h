#pragma once

namespace quorva::graphics {

/// Anything drawable: a shape, or a whole layer of shapes.
class RenderInterface {
public:
    virtual ~RenderInterface() = default;

    /// Draws at the current matrix. May leave colour, line width and other state changed.
    virtual void render() = 0;

    // From the next frame on.
    void activate() { active = true; }
    void deactivate() { active = false; }

    bool active = true; ///< drawn at all
};

} // namespace quorva::graphics
