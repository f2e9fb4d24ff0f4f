#include "Framework/Game.h"

#include "Framework/Config.h"
#include "Framework/Engine.h"
#include "Framework/MessageHandler.h"
#include "Framework/Messages.h"
#include "Framework/Signals.h"
#include "Framework/Timer.h"

#include <SDL.h>
#include <unistd.h>

#include <atomic>
#include <csignal>

namespace quorva {

namespace {

static_assert(std::atomic<bool>::is_always_lock_free); // else no handler may touch it
std::atomic<bool> endRequested = false;

void requestEnd(int) {
    endRequested = true;
}

constexpr useconds_t microseconds_per_ms = 1000;

/// Sleeps until the next tick is due. An overdue tick shows as more than a whole period.
void rest(const TimerClass& timer) {
    const std::uint16_t ms = timer.getTimeUntilNextProcess();
    if (ms != 0 && ms <= timer.getProcessRate()) usleep(ms * microseconds_per_ms);
}

} // namespace

void endOnSignals() {
    catchSignals({SIGHUP, SIGTERM}, requestEnd);
}

Game::~Game() {
    SDL_Quit();
}

void Game::mainLoop() {
    while (!dead)
        pass();
}

void Game::pass() {
    TimerClass& timer = Timer::Instance();
    EngineClass& engine = Engine::Instance();
    if (endRequested.exchange(false)) publish(messages::EndGame());
    if (config::Config::Instance().getSaveCPU() && !timer.paused) rest(timer);
    if (timer.isItTimeToProcess() && !timer.paused) {
        engine.process();
        timer.calculateLastBlip(); // after the tick: a late one is not made up
    }
    engine.update();
}

} // namespace quorva
