#include "Framework/Graphics/GraphicObject.h"

namespace quorva::graphics {

GraphicObject::~GraphicObject() {
    for (RenderableThing* thing : things)
        delete thing;
}

RenderableThing* GraphicObject::getBaseLayer() {
    if (things.empty()) createNewLayer();
    return things.front();
}

unsigned short GraphicObject::createNewLayer() {
    things.push_back(new RenderableThing);
    return static_cast<unsigned short>(things.size() - 1);
}

void GraphicObject::setThingsActive(bool active) {
    for (RenderableThing* thing : things)
        thing->active = active;
}

void GraphicObject::setEnabled(bool on) {
    enabled = on;
    setThingsActive(on);
}

} // namespace quorva::graphics
