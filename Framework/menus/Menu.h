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

/// Depth of all words of the menus: single precision, widened.
constexpr double word_depth = 0.1F;

/// What all menus share: colours, font, the screen's extents, and who opened whom. A menu is
/// painted over the world; a selected word lights up by its colour alone.
class Menu : public Entity {
public:
    void process() override = 0;
    void update() override = 0;
    virtual void hide() = 0;
    virtual void show(menu_load_mode_e mode) = 0;
    virtual void killSubMenu() {} ///< the menu that this one has opened wants to close

    bool isVisible() const { return shown; }

    bool shown = false;
    const graphics::Colour* backgroundColour; ///< resources, not owned, as the next
    const graphics::Colour* wordOnColour;     ///< of the selected item
    const graphics::Colour* wordOffColour;
    menu_load_mode_e loadMode = menu_load_normal; ///< as shown last
    const graphics::Colour* titleColour;
    primitives::Box bounds;                          ///< extents of the view
    graphics::GTransparentBox* background = nullptr; ///< made by the derived class
    graphics::Font* font;                            ///< resource, not owned
    Menu* subMenu = nullptr;                         ///< an open one; the engine owns it
    Menu* parent; ///< who opened this menu; null for the main menu

protected:
    explicit Menu(Menu* parent);

    /// A word of the menu's font on its second layer.
    graphics::GWord* addWord(const char* text, const graphics::Colour* colour, double x, double y,
                             double scale = 1.0, int alignment = 0);
    void addBackground(const graphics::Colour* colour); ///< on the first layer
    void fitBackground();                               ///< to the view as it is now
};

} // namespace quorva::menus
