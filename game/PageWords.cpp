#include "game/PageWords.h"

#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Managers/ColourManager.h"
#include "Framework/Managers/FontManager.h"

using namespace quorva;

namespace {

constexpr double column_x = -19.0, line_scale = 0.75;

} // namespace

graphics::GWord* addPageWord(Entity& page, const char* fontName, double x, double y, double scale,
                             const char* text, int alignment) {
    page.getGraphics()->getBaseLayer()->layer = graphics::layer_menu_text;
    const graphics::WordStyle style = {&FontManager::Instance().getV(fontName),
                                       &ColourManager::Instance().getV("Score Font"), scale,
                                       alignment};
    return graphics::addWord(*page.getGraphics(), 0, style, x, y, text);
}

void addPageLines(Entity& page, const PageLine* first, const PageLine* last) {
    for (const PageLine* line = first; line != last; ++line)
        addPageWord(page, "Message Font", column_x, line->y, line_scale, line->text);
}
