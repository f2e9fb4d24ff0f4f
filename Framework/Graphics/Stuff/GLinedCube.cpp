#include "Framework/Graphics/Stuff/GLinedCube.h"

#include "Framework/Graphics/Draw.h"

using namespace quorva::graphics;

void GLinedCube::render() {
    begin();
    draw::drawLine();
    draw::disableDepthTest();
    draw::disableCulling();
    plotFaces();
    draw::enableDepthTest();
    draw::enableCulling();
    draw::drawSolid();
}
