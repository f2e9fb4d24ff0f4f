#include "Framework/Graphics/Stuff/GWord.h"

#include "Framework/Graphics/Draw.h"

namespace quorva::graphics {

void GWord::setWord(const char* text) {
    word = text;
    if (font != nullptr) bounds = font->getBoundingBox(word);
}

void GWord::render() {
    if (font == nullptr) return;
    begin();
    const float left = static_cast<float>(bounds.left);
    const float right = static_cast<float>(bounds.right);
    if (alignment == ALIGN_RIGHT) draw::translate(-right, 0.0, 0.0);
    // Half of the width from the origin: the left bearing is deliberately not counted.
    if (alignment == ALIGN_CENTRE) draw::translate((right - left) * -0.5, 0.0, 0.0);
    font->render(word);
}

} // namespace quorva::graphics
