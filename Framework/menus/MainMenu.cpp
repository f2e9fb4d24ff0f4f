#include "Framework/menus/MainMenu.h"

#include "Framework/Engine.h"
#include "Framework/Graphics/GraphicObject.h"
#include "Framework/Graphics/Stuff/Words.h"
#include "Framework/Managers/ColourManager.h"
#include "Framework/menus/ConfigMenu.h"
#include "game/AboutMenu.h"
#include "game/GameOverScreen.h"
#include "game/HelpMenu.h"
#include "game/Logo.h"
#include "game/Marvo.h"

#include <string>

namespace quorva::menus {

namespace {

constexpr double item_x = -10.0, logo_y = 7.0, tagline_scale = 1.25;

std::string highScoreText() {
    return "HighScore    " + std::to_string(Marvo::Instance().highScore);
}

} // namespace

MainMenu::MainMenu() : Menu(nullptr) {
    shown = true;
    subscribe<messages::MenuMove>(this);
    addBackground(backgroundColour);
    startWord = addWord("Start Game", wordOffColour, item_x, -2.0);
    configWord = addWord("Configuration", wordOffColour, item_x, -4.0);
    helpWord = addWord("Help!", wordOffColour, item_x, -6.0);
    aboutWord = addWord("About", wordOffColour, item_x, -8.0);
    exitWord = addWord("Exit", wordOffColour, item_x, -10.0);
    logo = getGraphics()->createGraphic<Logo>(1);
    logo->position = math::Point(0.0, logo_y, graphics::word_depth);
    logo->setColour1(&ColourManager::Instance().getV("Logo Colour"));
    taglineWord = addWord("A   game   of   lines   and   traps", wordOffColour, 0.0, 2.0,
                          tagline_scale, graphics::ALIGN_CENTRE);
    highScoreWord = addWord(highScoreText().c_str(), wordOffColour, 9.0, -12.0);
}

boost::array<graphics::GWord*, MainMenu::item_count> MainMenu::items() const {
    return {{startWord, configWord, helpWord, aboutWord, exitWord}};
}

void MainMenu::update() {
    if (!shown) return;
    for (graphics::GWord* item : items())
        item->setColour1(wordOffColour);
    items()[selection]->setColour1(wordOnColour);
}

void MainMenu::hide() {
    shown = false;
    setShapesActive(false);
}

void MainMenu::show(menu_load_mode_e mode) {
    shown = true;
    loadMode = mode;
    selection = 0;
    setShapesActive(true);
    highScoreWord->setWord(highScoreText().c_str());
}

void MainMenu::setShapesActive(bool active) {
    getGraphics()->setEnabled(active);
    for (graphics::GWord* item : items())
        item->active = active;
    logo->active = active;
    taglineWord->active = active;
    highScoreWord->active = active;
}

void MainMenu::moveSelectorUp() {
    selection = neighbour(selection, itemCount, false);
}

void MainMenu::moveSelectorDown() {
    selection = neighbour(selection, itemCount, true);
}

bool MainMenu::isPageOpen() {
    const auto isAnyOpen = [](const auto*... page) { return ((page != nullptr) || ...); };
    return subMenu != nullptr || std::apply(isAnyOpen, pages());
}

void MainMenu::receiveMessage(const messages::MenuMove* m) {
    if (!visible) return;
    if (m->up && !isPageOpen()) moveSelectorUp();
    if (m->down && !isPageOpen()) moveSelectorDown();
    if (m->select && subMenu == nullptr) select(); // chooses what `up` or `down` just moved to
}

void MainMenu::select() {
    const auto closeOne = [this](auto*&... page) { return (closePage(page) || ...); };
    if (!std::apply(closeOne, pages())) checkMenuSelection();
}

template <class Page>
bool MainMenu::closePage(Page*& page) {
    if (page == nullptr) return false;
    page->dead = true;
    page = nullptr;
    show(loadMode);
    return true;
}

void MainMenu::checkMenuSelection() {
    EngineClass& engine = Engine::Instance();
    switch (selection) {
    case item_start:
        publish(messages::LoadLevel());
        return; // the game hides the menu when it has loaded the level
    case item_config:
        subMenu = engine.createEntity<ConfigMenu>("Config Menu", this);
        break;
    case item_help:
        helpMenu = engine.createEntity<HelpMenu>("HELP");
        break;
    case item_about:
        aboutMenu = engine.createEntity<AboutMenu>("About!");
        break;
    case item_exit:
        publish(messages::EndGame());
        return;
    default:
        return;
    }
    hide();
}

void MainMenu::killSubMenu() {
    if (closePage(subMenu)) fitBackground(); // the shape of the screen may have changed
}

void MainMenu::showGOScreen() {
    gameOverScreen = Engine::Instance().createEntity<GameOverScreen>("Game Over");
    hide();
}

} // namespace quorva::menus
