#include "replay/Watcher.h"

#include "game/FModSystem.h"
#include "replay/Interruption.h"
#include "replay/Words.h"

#include <algorithm>
#include <sstream>

namespace quorva::replay {

namespace {

constexpr Uint32 nap = 5;           // ms between two looks at the keys
constexpr double late = 60.0;       // ms: frames that come later than that aren't drawn
constexpr Uint32 longest_nap = 500; // ms: after a longer one time has stood still

} // namespace

Watcher::Watcher(Script& script_, const boost::filesystem::path& songs_, const Times& times_)
    : WindowPlayback(script_, songs_), times(times_), position(times_.from) {}

bool Watcher::draws() {
    return !isIdle() && place() >= times.from &&
           position - place() <= late * std::max(1.0, times.speed);
}

/// Here, so that the music of a pause stands as long as the picture does.
void Watcher::moveOn() {
    if (hasBegun && draws()) waitFor(place());
}

void Watcher::show() {
    hasBegun = true;
    if (draws()) {
        waitFor(place());
        Tape::endFrame();
        showState();
    }
    takeKeys();
}

void Watcher::passIdly() {
    if (Tape::clock() - lastLook >= nap) takeKeys();
}

void Watcher::waitFor(double ms) {
    if (lastTime == 0) lastTime = Tape::clock();
    for (;;) {
        takeKeys();
        const std::uint32_t time = Tape::clock();
        if (!standing) position += times.speed * std::min(time - lastTime, longest_nap);
        lastTime = time;
        if (isEnding() || (!standing && position >= ms)) return;
        if (std::exchange(stepping, false)) {
            position = ms;
            return;
        }
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
        if (event.type == SDL_KEYDOWN) press(event.key.keysym.sym);
    }
}

void Watcher::press(int symbol) {
    if (symbol == SDLK_ESCAPE) stop();
    if (symbol == SDLK_SPACE) standing = !standing;
    if (symbol == SDLK_RIGHT && standing)
        stepping = true;
    else if (symbol == SDLK_RIGHT || symbol == SDLK_UP)
        times.speed = std::min(times.speed * 2.0, fastest);
    else if (symbol == SDLK_LEFT || symbol == SDLK_DOWN)
        times.speed = std::max(times.speed / 2.0, slowest);
    showState();
}

/// In the window's title.
void Watcher::showState() {
    std::ostringstream title;
    title << "KOV  " << minutes(place()) << " / " << minutes(times.length) << "  x" << times.speed
          << (standing ? "  stopped" : "");
    if (title.str() == shownTitle) return;
    shownTitle = title.str();
    SDL_WM_SetCaption(shownTitle.c_str(), shownTitle.c_str());
}

} // namespace quorva::replay
