#include "replay/Pace.h"

#include "replay/Words.h"

#include <SDL.h>

#include <algorithm>
#include <sstream>
#include <utility>

namespace quorva::replay {

namespace {

constexpr double late = 60.0;         // ms: frames that come later than that aren't drawn
constexpr double longest_nap = 500.0; // ms: after a longer one time has stood still

} // namespace

void Pace::press(int symbol) {
    if (symbol == SDLK_ESCAPE) leaves = true;
    if (symbol == SDLK_SPACE) standing = !standing;
    if (symbol == SDLK_RIGHT && standing)
        stepping = true;
    else if (symbol == SDLK_RIGHT || symbol == SDLK_UP)
        speed = std::min(speed * 2.0, fastest);
    else if (symbol == SDLK_LEFT || symbol == SDLK_DOWN)
        speed = std::max(speed / 2.0, slowest);
}

void Pace::goOn(double ms) {
    if (!standing) position += speed * std::min(ms, longest_nap);
}

bool Pace::takeStep() {
    return std::exchange(stepping, false);
}

bool Pace::isInTime(double time) const {
    return position - time <= late * std::max(1.0, speed);
}

std::string Pace::inWords(std::uint32_t time, std::uint32_t length) const {
    std::ostringstream text;
    text << minutes(time) << " / " << minutes(length) << "  x" << speed
         << (standing ? "  stopped" : "");
    return text.str();
}

} // namespace quorva::replay
