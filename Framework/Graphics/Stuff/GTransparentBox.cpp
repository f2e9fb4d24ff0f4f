#include "Framework/Graphics/Stuff/GTransparentBox.h"

#include "Framework/Graphics/Draw.h"

namespace quorva::graphics {

void GTransparentBox::render() {
    begin();
    draw::disableDepthTest();
    plot();
    draw::enableDepthTest();
}

} // namespace quorva::graphics
