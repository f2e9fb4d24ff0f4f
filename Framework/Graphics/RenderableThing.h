#pragma once

#include "Framework/Graphics/RenderInterface.h"
#include "Framework/math/Quaternion.h"

#include <vector>

namespace quorva::graphics {

/// When a layer is drawn: small numbers first, so that they lie behind. The three menu layers are
/// seen from the camera's home position, without depth test: each is painted over what is there.
enum LayerOrder : int {
    layer_world = 4,
    layer_bullets = 5,
    layer_menu_backdrop = 7,
    layer_menu_middle = 8, ///< not used yet
    layer_menu_text = 9,   ///< also the pause of a level
    layer_default = 10,    ///< of a layer that nobody has ordered
};

/// One layer of an entity's look: shapes that are placed, turned, sorted and drawn together.
class RenderableThing final : public RenderInterface {
public:
    RenderableThing() = default;
    ~RenderableThing() override;
    RenderableThing(const RenderableThing&) = delete;
    RenderableThing& operator=(const RenderableThing&) = delete;

    /// Takes the shape over, drawn after those before it. Null is ignored.
    void addGraphic(RenderInterface* graphic);

    /// Makes a shape and takes it over.
    template <class T>
    T* createGraphic() {
        T* const graphic = new T;
        addGraphic(graphic);
        return graphic;
    }

    void render() override; ///< nothing at all while the layer isn't active

    std::vector<RenderInterface*> graphics; ///< owned, in drawing order
    float depth = 0.0F;                     ///< second sort key, ascending
    int layer = layer_default;              ///< first sort key, ascending
    // Of the whole layer, if set. Not owned: mostly an entity's body, which the layer follows.
    const math::Quaternion* rotation = nullptr;
    const math::Point* position = nullptr; ///< world units

private:
    bool isMenuLayer() const;
    void renderPlaced();
    void renderGraphics();
};

} // namespace quorva::graphics
