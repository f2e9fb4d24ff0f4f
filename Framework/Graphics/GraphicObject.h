#pragma once

#include "Framework/Graphics/RenderableThing.h"

#include <vector>

namespace quorva::graphics {

/// The look of an entity: its layers. All layers that are ever to be drawn must be there, and
/// active, when the entity is registered: the renderer notes them at that moment. Shapes may be
/// added to them later.
class GraphicObject {
public:
    GraphicObject() = default;
    ~GraphicObject();
    GraphicObject(const GraphicObject&) = delete;
    GraphicObject& operator=(const GraphicObject&) = delete;

    RenderableThing* getBaseLayer(); ///< the first layer, made if there is none
    unsigned short createNewLayer(); ///< @return the index of the new, last layer

    /// Makes a shape in the layer at `index`; that layer, and all below it, are made if missing.
    template <class T>
    T* createGraphic(unsigned short index) {
        while (things.size() <= index)
            createNewLayer();
        return things[index]->createGraphic<T>();
    }

    void setThingsActive(bool active); ///< all layers

    /// Writes `enabled` and makes all layers match it.
    void setEnabled(bool on);

    std::vector<RenderableThing*> things; ///< owned; an index stays that of its layer
    bool enabled = true;                  ///< as setEnabled left it, for those who toggle
};

} // namespace quorva::graphics
