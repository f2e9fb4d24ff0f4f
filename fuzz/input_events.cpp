// Any keys, buttons, sticks and other events at any ticks of a running game. The first two bytes
// seed it and say where it starts, then come pairs: what, and which or how much.

#include "Framework/Engine.h"
#include "Framework/Timer.h"
#include "fuzz/Playground.h"
#include "game/GameBase.h"
#include "game/GameLevel.h"
#include "game/Marvo.h"
#include "headless/HeadlessGame.h"
#include "platform/standins/VirtualSDL.h"

using namespace quorva;
using headless::HeadlessGame;
using standins::sdl;

namespace {

constexpr unsigned int longest_game = 250; // ticks of an input
constexpr unsigned int longest_wait = 32;  // ticks of a pair
constexpr int key_symbols[] = {SDLK_RETURN, SDLK_ESCAPE, SDLK_p,    SDLK_UP, SDLK_DOWN, SDLK_LEFT,
                               SDLK_RIGHT,  SDLK_w,      SDLK_s,    SDLK_a,  SDLK_d,    SDLK_RETURN,
                               SDLK_5,      SDLK_KP5,    SDLK_LAST, 0};

/// The last life, a late step of difficulty: what takes a player long to reach.
enum Start : unsigned { in_menu = 1, last_life = 2, late = 4, next_life_near = 8 };

void furnish(HeadlessGame& run, unsigned int start) {
    MarvoClass& marvo = Marvo::Instance();
    marvo.highScore = 0;
    if ((start & in_menu) != 0) return;
    run.startLevel();
    if ((start & last_life) != 0) marvo.lives = 0;
    if ((start & next_life_near) != 0) marvo.score = 99999;
    if ((start & late) == 0) return;
    GameLevel& level = *run.game().level;
    level.spawnBonus = 0.2;
    level.ticksSinceBomb = 480;
    level.trianglesSincePowerUp = 14;
}

void moveStick(unsigned int argument) {
    const auto deflection = static_cast<std::int16_t>((argument & 0xfeU) << 8U);
    sdl().axes[0][argument & 1U] = deflection;
    standins::pushAxisMotion();
}

void pushAny(unsigned int type) {
    SDL_Event event = {};
    event.type = static_cast<Uint8>(type);
    if (event.type != SDL_QUIT) sdl().events.push_back(event);
}

/// @return ticks that went by
unsigned int act(HeadlessGame& run, unsigned int what, unsigned int argument) {
    const int symbol = key_symbols[argument % std::size(key_symbols)];
    switch (what % 8) {
    case 0:
        run.press(symbol);
        break;
    case 1:
        run.key(symbol, true);
        break;
    case 2:
        run.key(symbol, false);
        break;
    case 3:
        standins::pushButton(static_cast<int>(argument % 32), argument < 128);
        break;
    case 4:
        moveStick(argument);
        break;
    case 5:
        pushAny(argument);
        break;
    case 6:
        if (argument == 255) standins::pushQuit();
        run.frame();
        break;
    default:
        run.ticks(argument % longest_wait);
        return argument % longest_wait;
    }
    return 0;
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool entered = (fuzz::enterPlayground(), sdl().joysticks = 1, true);
    static_cast<void>(entered);
    if (size < 2) return 0;
    sdl().axes = {};
    {
        HeadlessGame run(data[0]);
        furnish(run, data[1]);
        unsigned int ticks = 0;
        for (std::size_t i = 2; i + 1 < size && ticks < longest_game && !run.isOver(); i += 2)
            ticks += act(run, data[i], data[i + 1]);
        run.ticks(2);
        const bool inLevel = run.game().level != nullptr;
        fuzz::require(run.isOver() || inLevel || !Timer::Instance().paused, "no menu stands still");
    }
    fuzz::require(Engine::Instance().entities.empty(), "no entity outlives the game");
    return 0;
}
