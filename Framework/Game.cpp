#include "Framework/Game.h"

#include "Framework/Config.h"
#include "Framework/Engine.h"
#include "Framework/Timer.h"

#include <SDL.h>
#include <unistd.h>

namespace quorva {

namespace {

constexpr useconds_t microseconds_per_ms = 1000;

/// Sleeps until the next tick is due. An overdue one shows as more than a whole period.
void rest(const TimerClass& timer) {
    const std::uint16_t ms = timer.getTimeUntilNextProcess();
    if (ms != 0 && ms <= timer.getProcessRate()) usleep(ms * microseconds_per_ms);
}

} // namespace

Game::~Game() {
    SDL_Quit();
}

void Game::mainLoop() {
    TimerClass& timer = Timer::Instance();
    EngineClass& engine = Engine::Instance();
    while (!dead) {
        if (config::Config::Instance().getSaveCPU() && !timer.paused) rest(timer);
        if (timer.isItTimeToProcess() && !timer.paused) {
            engine.process();
            timer.calculateLastBlip(); // after the tick: a late one is not made up
        }
        engine.update();
    }
}

} // namespace quorva
