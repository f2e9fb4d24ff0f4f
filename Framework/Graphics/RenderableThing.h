#pragma once

#include "Framework/Graphics/RenderInterface.h"
#include "Framework/math/Quaternion.h"

#include <vector>

namespace quorva::graphics {

/// When a layer is drawn: small numbers first. The three menu layers are drawn flat on the
/// reference screen, without depth test.
enum LayerOrder : int {
    layer_world = 4,
    layer_bullets = 5,
    layer_menu_backdrop = 7,
    layer_menu_middle = 8,
    layer_menu_text = 9,
    layer_default = 10,
};

/// One layer of an entity's look: shapes that are placed, turned, sorted and drawn together.
class RenderableThing : public RenderInterface {
public:
    RenderableThing() = default;
    ~RenderableThing() override;
    RenderableThing(const RenderableThing&) = delete;
    RenderableThing& operator=(const RenderableThing&) = delete;

    /// Takes the shape over, drawn after those before it. Null is ignored.
    void addGraphic(RenderInterface* graphic);

    template <class T>
    T* createGraphic() {
        T* const graphic = new T;
        addGraphic(graphic);
        return graphic;
    }

    void render() override;

    std::vector<RenderInterface*> graphics;     ///< owned, in drawing order
    float depth = 0.0F;                         ///< second sort key, ascending
    int layer = layer_default;                  ///< first sort key, ascending
    const math::Quaternion* rotation = nullptr; ///< of the whole layer, if set; not owned
    const math::Point* position = nullptr;      ///< of the whole layer, if set; not owned

private:
    bool isMenuLayer() const;
    void renderPlaced();
    void renderGraphics();
};

} // namespace quorva::graphics
