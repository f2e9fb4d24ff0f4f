#include "Framework/Timer.h"

#include <SDL.h>

namespace quorva {

namespace {

constexpr std::uint16_t tick_period = 30; // ms

} // namespace

TimerClass::TimerClass() : processRate(tick_period) {
    startTicks = SDL_GetTicks();
    lastBlip = SDL_GetTicks();
}

void TimerClass::reset() {
    startTicks = SDL_GetTicks();
    lastBlip = SDL_GetTicks();
    blips = 0;
    correction = 0;
}

std::uint32_t TimerClass::getTicks() const {
    return SDL_GetTicks() - startTicks - correction;
}

bool TimerClass::isItTimeToProcess() const {
    return SDL_GetTicks() - lastBlip >= processRate;
}

std::uint16_t TimerClass::getTimeUntilNextProcess() const {
    return static_cast<std::uint16_t>(processRate + lastBlip - SDL_GetTicks());
}

void TimerClass::calculateLastBlip() {
    lastBlip = SDL_GetTicks();
    ++blips;
}

void TimerClass::correct(unsigned long t) {
    correction += static_cast<std::uint32_t>(t);
}

void TimerClass::pauseGame() {
    pauseStart = SDL_GetTicks();
    paused = true;
}

void TimerClass::unPauseGame() {
    correction += SDL_GetTicks() - pauseStart;
    paused = false;
}

} // namespace quorva
