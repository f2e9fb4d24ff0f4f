#include "tools/soak/Closer.h"

#include "Framework/Engine.h"
#include "Framework/Timer.h"
#include "Framework/menus/MainMenu.h"
#include "game/GameLevel.h"
#include "game/PlayerCharacter.h"
#include "platform/standins/VirtualSDL.h"

#include <unistd.h>

#include <iterator>

namespace soak {

using namespace quorva;
using standins::pushKey;

const char* const moment_names[moment_count] = {
    "main menu",      "configuration",        "help",
    "about",          "first pass of a game", "game",
    "pause",          "on a death",           "lying dead",
    "on a rectangle", "on a clear bomb",      "on the last death",
    "verdict"};
const char* const way_names[way_count] = {"window", "escape and window", "window and keys", "exit"};

namespace {

static_assert(in_about - in_main_menu + 1 == menus::MainMenu::item_exit,
              "each page of the menu is a moment, in the order of the menu");

constexpr unsigned int longest_play = 400, longest_stay = 30; // passes
constexpr unsigned int patience = 60000;                      // passes
constexpr unsigned int key_interval = 3;                      // passes between keys in a menu

GameLevel* level() {
    for (const auto& [id, entity] : Engine::Instance().entities)
        if (auto* const found = dynamic_cast<GameLevel*>(entity)) return found;
    return nullptr;
}

void press(int symbol) {
    pushKey(symbol, true);
    pushKey(symbol, false);
}

} // namespace

Closer::Closer(Moment moment_, Way way_, std::uint32_t seed)
    : moment(moment_), way(way_), random(seed), bot(seed),
      passesToPlay(static_cast<unsigned int>(random()) % longest_play),
      passesToStay(static_cast<unsigned int>(random()) % longest_stay),
      occurrences(static_cast<unsigned int>(random()) % 2) {
    bot.visitsPages = bot.pauses = false;
    subscribe<PlayerDead>(this);
    subscribe<SoundSquare>(this);
    subscribe<SoundClearBomb>(this);
}

menus::MainMenu* Closer::menu() {
    for (const auto& [id, entity] : Engine::Instance().entities)
        if (auto* const found = dynamic_cast<menus::MainMenu*>(entity)) return found;
    return nullptr;
}

bool Closer::isInLevel() const {
    const GameLevel* const running = level();
    return running != nullptr && !running->dead;
}

void Closer::pass() {
    if (++passes > patience) _exit(gives_up);
    if (closing)
        leaveBySteps();
    else if (!hasCome())
        lead();
    else if (passesToStay > 0 && moment != in_first_pass_of_game)
        --passesToStay;
    else
        close();
}

/// Whether the moment is a state that has been reached. An event comes as a message.
bool Closer::hasCome() const {
    const menus::MainMenu* const m = menu();
    switch (moment) {
    case in_main_menu:
        return m->shown && passesToPlay == 0;
    case in_configuration:
        return m->subMenu != nullptr;
    case in_help:
        return m->helpMenu != nullptr;
    case in_about:
        return m->aboutMenu != nullptr;
    case in_first_pass_of_game:
        return isInLevel();
    case in_game:
        return isInLevel() && passesToPlay == 0;
    case in_pause:
        return Timer::Instance().paused;
    case lying_dead:
        return isInLevel() && level()->player->deathTicks != 0;
    case in_verdict:
        return m->gameOverScreen != nullptr;
    default:
        return false;
    }
}

void Closer::lead() {
    const bool wantsPage = moment <= in_about;
    if (passesToPlay > 0) {
        --passesToPlay;
        bot.play();
        if (passesToPlay == 0 && moment == in_pause && isInLevel()) press(SDLK_p);
    } else if (!wantsPage) {
        if (moment == in_pause && isInLevel()) press(SDLK_p);
        bot.play();
    } else if (passes % key_interval == 0) {
        openPage();
    }
}

void Closer::openPage() {
    if (isInLevel()) return press(SDLK_ESCAPE);
    if (!menu()->shown) return press(SDLK_RETURN);
    const unsigned int item = moment - in_main_menu; // in the order of the menu
    press(menu()->selection == item ? SDLK_RETURN : SDLK_DOWN);
}

void Closer::receiveMessage(const PlayerDead* m) {
    happens(m->gameOver ? on_last_death : on_death);
}

void Closer::happens(Moment m) {
    if (m != moment || closing) return;
    if (occurrences > 0 && m != on_last_death)
        --occurrences;
    else
        close();
}

void Closer::close() {
    closing = true;
    if (way == by_escape_and_window || way == by_exit) press(SDLK_ESCAPE);
    if (way != by_exit) standins::pushQuit();
    if (way != by_window_and_keys) return;
    const int keys[] = {SDLK_ESCAPE, SDLK_RETURN, SDLK_p, SDLK_d};
    for (int i = 0; i < 4; ++i)
        press(keys[random() % std::size(keys)]);
}

/// "Exit" takes several passes.
void Closer::leaveBySteps() {
    if (way != by_exit || passes % key_interval != 0) return;
    if (isInLevel()) return press(SDLK_ESCAPE);
    const menus::MainMenu* const m = menu();
    if (m->subMenu != nullptr) return press(SDLK_ESCAPE);
    if (m->shown && m->selection == 0) press(SDLK_UP); // round to the last item
    press(SDLK_RETURN);
}

} // namespace soak
