#include "Framework/Graphics/Stuff/Words.h"

#include "Framework/Graphics/GraphicObject.h"

namespace quorva::graphics {

GWord* addWord(GraphicObject& owner, unsigned short layer, const WordStyle& style, double x,
               double y, const char* text) {
    auto* const word = owner.createGraphic<GWord>(layer);
    word->font = style.font;
    word->setColour1(style.colour);
    word->position = math::Point(x, y, word_depth);
    word->setScale(style.scale);
    word->alignment = style.alignment;
    if (text != nullptr) word->setWord(text);
    return word;
}

} // namespace quorva::graphics
