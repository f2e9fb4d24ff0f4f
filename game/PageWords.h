#pragma once

#include "Framework/Entity.h"

namespace quorva::graphics {
class GWord;
}

/// Adds a word to a page, in its first layer, which becomes one of menu text: colour "Score
/// Font", left-aligned, without a text yet.
/// @param fontName resource
quorva::graphics::GWord* addPageWord(quorva::Entity& page, const char* fontName, double x, double y,
                                     double scale);

/// One line of a page of still text.
struct PageLine {
    double y;
    const char* text;
};

/// Adds the lines in one column at the left of the page, in the font "Message Font".
void addPageLines(quorva::Entity& page, const PageLine* first, const PageLine* last);
