#pragma once

#include "Framework/MessageInterface.h"
#include "Framework/Messages.h"
#include "Framework/menus/Menu.h"

#include <boost/array.hpp>

#include <tuple>

class AboutMenu;
class GameOverScreen;
class HelpMenu;
class Logo;

namespace quorva::menus {

/// The menu that lives as long as the program. It starts the game, opens the other pages and ends
/// the program.
class MainMenu : public Menu, public MessageInterface<messages::MenuMove> {
public:
    /// In the order of selection. What stands between the first and the last opens a page.
    enum Item { item_start, item_config, item_help, item_about, item_exit, item_count };

    MainMenu();

    void process() override {}
    void update() override;
    void hide() override;
    void show(menu_load_mode_e mode) override; ///< selects "Start Game"
    void killSubMenu() override;
    void receiveMessage(const messages::MenuMove* m) override;

    void moveSelectorUp();   ///< wraps
    void moveSelectorDown(); ///< wraps
    void checkMenuSelection();
    void showGOScreen();                  ///< opens the result of the game that has just ended
    bool isDone() const { return false; } ///< nothing asks
    boost::array<graphics::GWord*, item_count> items() const; ///< in the order of selection

    std::uint16_t selection = 0;
    std::uint16_t itemCount = item_count;
    // The graphics own the shapes.
    graphics::GWord *startWord, *configWord, *helpWord, *aboutWord, *exitWord;
    // Pages, null while closed. The engine owns them; closing a page sets its `dead`.
    GameOverScreen* gameOverScreen = nullptr;
    AboutMenu* aboutMenu = nullptr;
    HelpMenu* helpMenu = nullptr;
    Logo* logo;
    graphics::GWord* taglineWord;
    graphics::GWord* highScoreWord;

private:
    /// Those that "Menu Select" closes.
    auto pages() { return std::tie(gameOverScreen, helpMenu, aboutMenu); }
    void setShapesActive(bool active);
    bool isPageOpen();
    void select();
    template <class Page>
    bool closePage(Page*& page); ///< @return false if it isn't open
};

} // namespace quorva::menus
