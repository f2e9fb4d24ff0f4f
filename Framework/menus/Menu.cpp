#include "Framework/menus/Menu.h"

#include "Framework/Graphics/Camera.h"
#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Graphics/Stuff/GTransparentBox.h"
#include "Framework/Graphics/Stuff/Words.h"
#include "Framework/Managers/ColourManager.h"
#include "Framework/Managers/FontManager.h"

namespace quorva::menus {

namespace {

constexpr unsigned short backdrop_index = 0, word_index = 1;

const graphics::Colour* colourNamed(const char* name) {
    return &ColourManager::Instance().getV(name);
}

} // namespace

Menu::Menu(Menu* parent_)
    : backgroundColour(colourNamed("Main Menu Background")),
      wordOnColour(colourNamed("Main Menu Word On")),
      wordOffColour(colourNamed("Main Menu Word Off")), titleColour(colourNamed("Menu Title")),
      font(&FontManager::Instance().getV("Menu Font")), parent(parent_) {
    bounds = graphics::Camera::Instance().getViewBox();
}

void Menu::addBackground(const graphics::Colour* colour) {
    background = getGraphics()->createGraphic<graphics::GTransparentBox>(backdrop_index);
    background->box = bounds;
    background->setColour1(colour);
    graphics->things[backdrop_index]->layer = graphics::layer_menu_backdrop;
}

graphics::GWord* Menu::addWord(const char* text, const graphics::Colour* colour, double x, double y,
                               double scale, int alignment) {
    auto* const word =
        graphics::addWord(*getGraphics(), word_index, {font, colour, scale, alignment}, x, y, text);
    graphics->things[word_index]->layer = graphics::layer_menu_text;
    return word;
}

void Menu::fitBackground() {
    bounds = graphics::Camera::Instance().getViewBox();
    background->box = bounds;
}

std::uint16_t Menu::neighbour(std::uint16_t item, std::uint16_t count, bool forward) {
    return static_cast<std::uint16_t>((item + (forward ? 1 : count - 1)) % count);
}

} // namespace quorva::menus
