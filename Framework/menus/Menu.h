#pragma once

#include "Framework/Entity.h"
#include "Framework/Primitives/Box.h"

namespace quorva::graphics {
class Colour;
class Font;
class GTransparentBox;
class GWord;
} // namespace quorva::graphics

namespace quorva::menus {

/// Why a menu is shown. Stored and handed back; no behaviour depends on it.
enum menu_load_mode_e { menu_load_normal = 1, menu_load_pause = 4 };

/// What all menus share: colours, font, the extents of the screen, and which menu opened which. A
/// menu is painted over the world; only its colour marks the selected word.
class Menu : public Entity {
public:
    void process() override = 0;
    void update() override = 0;
    virtual void hide() = 0;
    virtual void show(menu_load_mode_e mode) = 0;
    virtual void killSubMenu() {} ///< called by the menu that this one has opened, to close it

    bool isVisible() const { return shown; }

    bool shown = false;
    // The colours and the font are resources, not owned.
    const graphics::Colour* backgroundColour;
    const graphics::Colour* wordOnColour; ///< of the selected item
    const graphics::Colour* wordOffColour;
    menu_load_mode_e loadMode = menu_load_normal; ///< of the last show
    const graphics::Colour* titleColour;
    primitives::Box bounds;                          ///< extents of the view, world units
    graphics::GTransparentBox* background = nullptr; ///< the graphics own it; see addBackground
    graphics::Font* font;
    Menu* subMenu = nullptr; ///< the open menu, if any; the engine owns it
    Menu* parent;            ///< the menu that opened this one; null for the main menu

protected:
    explicit Menu(Menu* parent);

    /// Adds a word in the menu's font to the second layer.
    graphics::GWord* addWord(const char* text, const graphics::Colour* colour, double x, double y,
                             double scale = 1.0, int alignment = 0);
    void addBackground(const graphics::Colour* colour); ///< on the first layer
    void fitBackground();                               ///< after the view has changed

    /// The item behind `item`, or before it, of `count` items in a ring.
    static std::uint16_t neighbour(std::uint16_t item, std::uint16_t count, bool forward);
};

} // namespace quorva::menus
