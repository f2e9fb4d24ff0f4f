#include "platform/web/PageWatcher.h"

#include "game/GameBase.h"

#include <emscripten.h>

#include <algorithm>

namespace quorva::web {

namespace {

const char* const songs_folder = "/kov/Songs";
// ms that the page can wait. While it seeks there is nothing else to be done.
constexpr double longest_turn = 12.0, longest_seeking_turn = 100.0;

} // namespace

PageWatcher::PageWatcher(replay::Script& script_, const replay::Summary& summary)
    : WindowPlayback(script_, songs_folder), start(summary.start) {}

bool PageWatcher::goOn(GameBase& game, double ms) {
    takeKeys();
    if (!seeking) pace.goOn(ms);
    if (pace.takeStep()) pace.position = nextTime();
    const double end = emscripten_get_now() + (seeking ? longest_seeking_turn : longest_turn);
    while (!game.dead && nextTime() <= pace.position && emscripten_get_now() < end) {
        isSeen = isLastDue();
        game.pass();
    }
    if (!seeking) pace.position = std::min<double>(pace.position, nextTime()); // it waits for us
    seeking = seeking && nextTime() <= pace.position;
    return !game.dead;
}

void PageWatcher::seek(double time) {
    pace.position = time;
    seeking = true;
}

void PageWatcher::takeKeys() {
    SDL_Event event;
    while (Tape::poll(&event) != 0)
        if (event.type == SDL_KEYDOWN) pace.press(event.key.keysym.sym);
}

/// When the pass ends that is to be played next, ms.
std::uint32_t PageWatcher::nextTime() const {
    return pass().clock.empty() ? sessionTime() : pass().clock.back() - start;
}

/// Of all that are due now the last alone needs to be seen.
bool PageWatcher::isLastDue() {
    const auto time = timeAhead();
    return !isIdle() && (!time || *time - start > pace.position);
}

void PageWatcher::show() {
    if (isSeen) Tape::endFrame();
}

} // namespace quorva::web
