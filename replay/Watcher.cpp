#include "replay/Watcher.h"

#include "game/FModSystem.h"
#include "replay/Interruption.h"

namespace quorva::replay {

namespace {

constexpr Uint32 nap = 5; // ms between two looks at the keys

} // namespace

Watcher::Watcher(Script& script_, const boost::filesystem::path& songs_, const Times& times_)
    : WindowPlayback(script_, songs_), times(times_), pace(times_.from, times_.speed) {}

bool Watcher::draws() {
    return !isIdle() && sessionTime() >= times.from && pace.isInTime(sessionTime());
}

/// Here, so that the music of a pause stands as long as the picture does.
void Watcher::moveOn() {
    if (hasBegun && draws()) waitFor(sessionTime());
}

void Watcher::show() {
    hasBegun = true;
    if (draws()) {
        Tape::endFrame();
        showState();
    }
    takeKeys();
}

void Watcher::passIdly() {
    if (Tape::clock() - lastLook >= nap) takeKeys();
}

/// @param ms of the session, before the end of the pass that is being played
void Watcher::waitFor(double ms) {
    for (;;) {
        takeKeys();
        const std::uint32_t time = Tape::clock();
        pace.goOn(time - lastTime.value_or(time));
        lastTime = time;
        if (pace.takeStep()) pace.position = stepEnd = pass().clock.back() - times.start;
        const bool mayGoOn = !pace.standing || ms <= stepEnd;
        if (isEnding() || (mayGoOn && pace.position >= ms)) return;
        FMOD_System_Update(FModSystem::Instance().system);
        SDL_Delay(nap);
    }
}

void Watcher::takeKeys() {
    lastLook = Tape::clock();
    if (isInterrupted()) stop();
    SDL_Event event;
    while (Tape::poll(&event) != 0) {
        if (event.type == SDL_QUIT) stop();
        if (event.type != SDL_KEYDOWN) continue;
        pace.press(event.key.keysym.sym);
        showState();
    }
    if (pace.leaves) stop();
}

/// In the window's title.
void Watcher::showState() {
    const std::string title = "KOV  " + pace.inWords(sessionTime(), times.length);
    if (title == shownTitle) return;
    shownTitle = title;
    SDL_WM_SetCaption(shownTitle.c_str(), shownTitle.c_str());
}

} // namespace quorva::replay
