#pragma once

#include "Framework/Graphics/Stuff/GWord.h"

namespace quorva::graphics {

class GraphicObject;

/// Depth of the words that lie over the world. Deliberately not the double 0.1.
constexpr double word_depth = 0.1F;

/// How a word looks.
struct WordStyle {
    Font* font;           ///< resource, not owned
    const Colour* colour; ///< resource, not owned
    double scale = 1.0;
    int alignment = ALIGN_LEFT;
};

/// Adds a word to the layer at `layer` of `owner`, which owns it.
/// @param text null leaves the word without a text, and its extents empty
GWord* addWord(GraphicObject& owner, unsigned short layer, const WordStyle& style, double x,
               double y, const char* text);

} // namespace quorva::graphics
