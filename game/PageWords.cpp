#include "game/PageWords.h"

#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Graphics/Stuff/GWord.h"
#include "Framework/Managers/ColourManager.h"
#include "Framework/Managers/FontManager.h"

using namespace quorva;

namespace {

constexpr double word_depth = 0.1F; // single precision, widened
constexpr double column_x = -19.0, line_scale = 0.75;

} // namespace

graphics::GWord* addPageWord(Entity& page, const char* fontName, double x, double y, double scale) {
    page.getGraphics()->getBaseLayer()->layer = graphics::layer_menu_text;
    auto* const word = page.getGraphics()->createGraphic<graphics::GWord>(0);
    word->font = &FontManager::Instance().getV(fontName);
    word->setColour1(&ColourManager::Instance().getV("Score Font"));
    word->position = math::Point(x, y, word_depth);
    word->setScale(scale);
    return word;
}

void addPageLines(Entity& page, const PageLine* first, const PageLine* last) {
    for (const PageLine* line = first; line != last; ++line)
        addPageWord(page, "Message Font", column_x, line->y, line_scale)->setWord(line->text);
}
