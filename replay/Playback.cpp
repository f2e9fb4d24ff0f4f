#include "replay/Playback.h"

#include "Framework/input/KeyMapper.h"
#include "game/FModMP3Input.h"
#include "replay/Interruption.h"
#include "replay/Snapshot.h"

#include <algorithm>
#include <sstream>
#include <utility>

namespace quorva::replay {

template <class Work>
void Playback::whileReadable(const Work& work) {
    try {
        work();
    } catch (const BadFile& e) {
        damage_ = e.what();
        stop();
    }
}

Playback::Playback(Script& script_) : script(script_) {
    nextPass();
}

std::uint32_t Playback::clock() {
    if (isIdle() || taken.clock == pass_.clock.size()) return now_;
    const std::uint32_t before = std::exchange(now_, pass_.clock[taken.clock++]);
    if (now_ != before) moveOn();
    return now_;
}

int Playback::poll(SDL_Event* event) {
    prepareOnce();
    if (isInterrupted()) stop();
    bool found = !isIdle() && giveEvent(event);
    if (!found && ending) {
        event->type = SDL_QUIT;
        found = true;
    }
    if (!found) ++emptyPolls;
    return static_cast<int>(found);
}

bool Playback::giveEvent(SDL_Event* event) {
    if (taken.events == pass_.events.size() || pass_.events[taken.events].emptyPolls > emptyPolls)
        return false;
    const Event& kept = pass_.events[taken.events++];
    const Uint8 types[] = {SDL_KEYDOWN, SDL_KEYUP, SDL_JOYBUTTONDOWN, SDL_JOYAXISMOTION, SDL_QUIT};
    event->type = types[kept.kind];
    switch (kept.kind) {
    case Event::key_down:
    case Event::key_up:
        event->key.keysym.sym = static_cast<SDLKey>(kept.which & 0xffff);
        // Menus compare it with buttons' numbers: without it every key would be the first one.
        event->key.state = kept.kind == Event::key_down ? SDL_PRESSED : SDL_RELEASED;
        break;
    case Event::button_down:
        event->jbutton.button = static_cast<Uint8>(kept.which);
        break;
    default:
        break;
    }
    return true;
}

void Playback::prepareOnce() {
    if (std::exchange(prepared, true)) return;
    catchInterruptions(); // in the game's place
    prepareGame();
}

void Playback::prepareGame() {
    const auto& keys = input::KeyMapper::Instance().keys;
    const auto& bindings = script.setup.bindings;
    for (std::size_t i = 0; i < std::min(keys.size(), bindings.size()); ++i) {
        keys[i]->key = static_cast<input::QuorvaKey>(bindings[i].first);
        keys[i]->jsButton = static_cast<input::QuorvaJKey>(bindings[i].second);
    }
    songPlayer()->songs.assign(script.setup.songs, "song");
}

SDL_Joystick* Playback::openJoystick(int index) {
    static char any; // the game only hands it back
    const auto i = static_cast<std::size_t>(index);
    const bool opened = i < script.setup.joysticks.size() && script.setup.joysticks[i];
    return opened ? reinterpret_cast<SDL_Joystick*>(&any) : nullptr;
}

std::int16_t Playback::axis(SDL_Joystick*, int) {
    return taken.axes < pass_.axes.size() ? pass_.axes[taken.axes++] : std::int16_t{0};
}

FMOD_RESULT Playback::openSong(FMOD_SYSTEM* system, const char*, FMOD_SOUND** song) {
    if (taken.songs == pass_.songs.size()) return FMOD_ERR_FILE_NOTFOUND;
    const Pass::Song& kept = pass_.songs[taken.songs++];
    if (kept.result != FMOD_OK) return static_cast<FMOD_RESULT>(kept.result);
    return openSongOf(kept.length, system, song);
}

FMOD_RESULT Playback::openSongOf(std::uint32_t, FMOD_SYSTEM* system, FMOD_SOUND** song) {
    return Tape::openSong(system, "song", song);
}

FMOD_RESULT Playback::songLength(FMOD_SOUND* song, unsigned int* ms) {
    if (song == nullptr || taken.songs == 0) return FMOD_ERR_INVALID_PARAM;
    *ms = pass_.songs[taken.songs - 1].length;
    return FMOD_OK;
}

void Playback::endFrame() {
    progress_.look();
    emptyPolls = 0;
    if (isIdle()) {
        --pass_.idle;
        return passIdly();
    }
    whileReadable([this] { compareProgress(); });
    show();
    if (!ending) nextPass();
}

bool Playback::isComparing() const {
    return difference_.empty() && damage_.empty() && !ending;
}

void Playback::compareProgress() {
    if (progress_.ended) {
        results_.push_back(*progress_.ended);
        const auto kept = expect<GameEnd>();
        if (kept && !(*kept == *progress_.ended)) differs("score, deaths or end of the game");
    }
    if (progress_.began) {
        compareSettings();
        expect<GameBegin>();
    }
    if (!progress_.checkIsDue()) return;
    if (const auto kept = expect<Check>()) compareCheck(*kept);
}

void Playback::compareSettings() {
    const auto kept = script.take<ChangedSettings>();
    if (kept && kept->values != settingsOfGame()) differs("the settings");
}

/// @return the record that has to come now; empty if there is none to compare with
template <class Kind>
std::optional<Kind> Playback::expect() {
    if (!isComparing() || script.atEnd()) return {}; // it may be cut off
    std::optional<Kind> kept = script.take<Kind>();
    if (!kept) differs("the game goes another way");
    return kept;
}

void Playback::compareCheck(const Check& kept) {
    const std::string what = firstDifference(kept, checkOfGame());
    if (!what.empty()) return differs(what);
    lastEqual = progress_.ticks;
}

void Playback::differs(const std::string& what) {
    if (!difference_.empty()) return;
    std::ostringstream out;
    out << "differs at tick " << progress_.ticks << " (as recorded up to tick " << lastEqual
        << "): " << what;
    difference_ = out.str();
}

void Playback::nextPass() {
    whileReadable([this] {
        std::optional<Pass> next = script.take<Pass>();
        while (!next && !script.atEnd()) {
            const auto other = script.take();
            const bool isLast = other && std::holds_alternative<End>(*other);
            differs(isLast ? "the game goes on" : "the game goes another way");
            next = script.take<Pass>();
        }
        if (!next) return stop();
        pass_ = std::move(*next);
        taken = {};
    });
}

std::optional<std::uint32_t> Playback::timeAhead() {
    std::optional<std::uint32_t> time;
    whileReadable([&] {
        const Record* const next = script.ahead();
        const auto* const ahead = next == nullptr ? nullptr : std::get_if<Pass>(next);
        if (ahead != nullptr && !ahead->clock.empty()) time = ahead->clock.back();
    });
    return time;
}

void Playback::finish() {
    progress_.look();
    whileReadable([this] {
        compareProgress();
        if (const auto kept = expect<End>()) compareCheck(kept->check);
    });
}

} // namespace quorva::replay
