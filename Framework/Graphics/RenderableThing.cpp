#include "Framework/Graphics/RenderableThing.h"

#include "Framework/Graphics/Camera.h"
#include "Framework/Graphics/Draw.h"

namespace quorva::graphics {

RenderableThing::~RenderableThing() {
    for (RenderInterface* graphic : graphics)
        delete graphic;
}

void RenderableThing::addGraphic(RenderInterface* graphic) {
    if (graphic != nullptr) graphics.push_back(graphic);
}

bool RenderableThing::isMenuLayer() const {
    return layer >= layer_menu_backdrop && layer <= layer_menu_text;
}

void RenderableThing::render() {
    if (!active) return;
    if (!isMenuLayer()) return renderPlaced();

    // Twice a new projection for each such layer: there are few of them.
    CameraClass& camera = Camera::Instance();
    camera.menuModeBegin();
    draw::disableDepthTest();
    renderPlaced();
    camera.menuModeEnd();
    draw::enableDepthTest();
}

void RenderableThing::renderPlaced() {
    if (rotation == nullptr && position == nullptr) return renderGraphics();

    draw::pushMatrix();
    if (position != nullptr) draw::translate(*position);
    if (rotation != nullptr) draw::rotate(*rotation);
    renderGraphics();
    draw::popMatrix();
}

void RenderableThing::renderGraphics() {
    for (RenderInterface* graphic : graphics) {
        if (!graphic->active) continue;
        draw::pushMatrix();
        graphic->render();
        draw::popMatrix();
    }
}

} // namespace quorva::graphics
