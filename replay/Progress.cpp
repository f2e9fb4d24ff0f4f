#include "replay/Progress.h"

#include "Framework/Timer.h"
#include "Framework/physics/PhysicsProcessor.h"
#include "game/FModMP3Input.h"
#include "game/Marvo.h"

namespace quorva::replay {

namespace {

constexpr int lives_at_first = 2; // spare ones

GameEnd endNow() {
    const MarvoClass& marvo = Marvo::Instance();
    const int deaths = lives_at_first + (marvo.nextLife - 1) - marvo.lives;
    return {marvo.score, static_cast<std::uint32_t>(deaths), marvo.lives < 0};
}

} // namespace

FModMP3Input* songPlayer() {
    return activeComponent<FModMP3Input>();
}

void Progress::look() {
    const TimerClass& timer = Timer::Instance();
    // A new game sets the count of ticks back, and its start is later than any tick before.
    ticked = timer.startTicks == lastStart ? timer.blips != lastBlips : timer.blips != 0;
    lastBlips = timer.blips;
    lastStart = timer.startTicks;
    if (ticked) ++ticks;

    const bool wasInGame = inGame;
    inGame = activeComponent<physics::PhysicsProcessor>() != nullptr; // works in games alone
    began = inGame && !wasInGame;
    ended.reset();
    if (wasInGame && !inGame) ended = endNow();
}

} // namespace quorva::replay
