#pragma once

namespace quorva::graphics {

/// Anything drawable: a shape, or a whole layer of shapes.
class RenderInterface {
public:
    virtual ~RenderInterface() = default;

    virtual void render() = 0;

    void activate() { active = true; }
    void deactivate() { active = false; }

    bool active = true; ///< drawn at all
};

} // namespace quorva::graphics
