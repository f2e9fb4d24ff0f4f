#pragma once

#include "Framework/MessageInterface.h"
#include "Framework/Messages.h"
#include "Framework/menus/Menu.h"

#include <boost/array.hpp>

class AboutMenu;
class GameOverScreen;
class HelpMenu;
class Logo;

namespace quorva::menus {

/// The menu that lives as long as the program. It starts the game, opens the other pages and ends
/// the program.
class MainMenu : public Menu, public MessageInterface<messages::MenuMove> {
public:
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

    std::uint16_t selection = 0;
    std::uint16_t itemCount = 5;
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
    boost::array<graphics::GWord*, 5> items() const; ///< in the order of selection
    void setShapesActive(bool active);
    bool isPageOpen() const;
    void select();
    template <class Page>
    void closePage(Page*& page);
};

} // namespace quorva::menus
