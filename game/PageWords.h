#pragma once

#include "Framework/Entity.h"
#include "Framework/Graphics/Stuff/Words.h"

/// Adds a word in the colour "Score Font" to the first layer of a page, which becomes a layer of
/// menu text.
/// @param fontName name of the font among the resources
/// @param text     as for quorva::graphics::addWord
quorva::graphics::GWord* addPageWord(quorva::Entity& page, const char* fontName, double x, double y,
                                     double scale, const char* text,
                                     int alignment = quorva::graphics::ALIGN_LEFT);

/// One line of a page of still text.
struct PageLine {
    double y;
    const char* text;
};

/// Adds the lines in one column at the left of the page, in the font "Message Font", small.
void addPageLines(quorva::Entity& page, const PageLine* first, const PageLine* last);
