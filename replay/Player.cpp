#include "replay/Player.h"

#include "Framework/input/KeyMapper.h"
#include "game/FModMP3Input.h"

#include <algorithm>
#include <sstream>

namespace quorva::replay {

Player::Player(Script& script_) : script(script_) {
    nextPass();
}

std::uint32_t Player::clock() {
    if (!observing && idle == 0 && clockPlace < pass.clock.size()) now_ = pass.clock[clockPlace++];
    return now_;
}

int Player::poll(SDL_Event* event) {
    prepareGame();
    if (idle == 0 && giveEvent(event)) return 1;
    if (ending) {
        *event = {};
        event->type = SDL_QUIT;
        return 1;
    }
    ++drains;
    return 0;
}

bool Player::giveEvent(SDL_Event* event) {
    if (eventPlace == pass.events.size() || pass.events[eventPlace].drain > drains) return false;
    const Event& kept = pass.events[eventPlace++];
    const Uint8 types[] = {SDL_KEYDOWN, SDL_KEYUP, SDL_JOYBUTTONDOWN, SDL_JOYAXISMOTION, SDL_QUIT};
    *event = {};
    event->type = types[kept.kind];
    if (kept.kind == Event::button_down) {
        event->jbutton.button = static_cast<Uint8>(kept.which);
        event->jbutton.state = SDL_PRESSED;
    } else if (kept.kind < Event::button_down) {
        event->key.keysym.sym = static_cast<SDLKey>(kept.which & 0xffff);
        event->key.state = kept.kind == Event::key_down ? SDL_PRESSED : SDL_RELEASED;
    }
    return true;
}

/// The keys and songs of the player whose game it is, once the game has found its own.
void Player::prepareGame() {
    if (prepared) return;
    prepared = true;
    const auto& keys = input::KeyMapper::Instance().keys;
    const auto& bindings = script.setup.bindings;
    for (std::size_t i = 0; i < std::min(keys.size(), bindings.size()); ++i) {
        keys[i]->key = static_cast<input::QuorvaKey>(bindings[i].first);
        keys[i]->jsButton = static_cast<input::QuorvaJKey>(bindings[i].second);
    }
    songPlayer()->songs.assign(script.setup.songs, "song");
}

SDL_Joystick* Player::openJoystick(int index) {
    static char any; // the game only hands it back
    const auto i = static_cast<std::size_t>(index);
    const bool opened = i < script.setup.joysticks.size() && script.setup.joysticks[i];
    return opened ? reinterpret_cast<SDL_Joystick*>(&any) : nullptr;
}

std::int16_t Player::axis(SDL_Joystick*, int) {
    return axisPlace < pass.axes.size() ? pass.axes[axisPlace++] : std::int16_t{0};
}

FMOD_RESULT Player::openSong(FMOD_SYSTEM* system, const char*, FMOD_SOUND** song) {
    if (songPlace == pass.songs.size()) return FMOD_ERR_FILE_NOTFOUND;
    const Pass::Song& kept = pass.songs[songPlace++];
    if (kept.result != FMOD_OK) return static_cast<FMOD_RESULT>(kept.result);
    return openSongOf(kept.length, system, song);
}

FMOD_RESULT Player::openSongOf(std::uint32_t, FMOD_SYSTEM* system, FMOD_SOUND** song) {
    return Tape::openSong(system, "song", song);
}

FMOD_RESULT Player::songLength(FMOD_SOUND* song, unsigned int* ms) {
    if (song == nullptr || songPlace == 0) return FMOD_ERR_INVALID_PARAM;
    *ms = pass.songs[songPlace - 1].length;
    return FMOD_OK;
}

void Player::endFrame() {
    prepareGame();
    progress_.look();
    drains = 0;
    if (idle > 0) {
        --idle;
        return;
    }
    compareProgress();
    show();
    if (!ending) nextPass();
}

void Player::compareProgress() {
    if (progress_.ended) {
        results_.push_back(progress_.result);
        compare(Record::game_end);
    }
    if (progress_.began) compare(Record::game_begin);
    if (progress_.checkIsDue()) compare(Record::check);
}

void Player::compare(Record::Kind kind) {
    if (!difference_.empty() || !damage_.empty() || ending) return;
    try {
        const Record* const next = script.peek();
        if (next == nullptr) return; // the file is cut off
        if (next->kind != kind) return differs("the game goes another way");
        const Record kept = *script.next(); // NOLINT(bugprone-unchecked-optional-access): seen
        if (kind == Record::game_end && !(kept.result == progress_.result))
            return differs("score, deaths or end of the game");
        if (kind != Record::check && kind != Record::end) return;
        observing = true;
        const std::string what = kept.check_.compare(Check::ofGame());
        observing = false;
        if (!what.empty()) return differs(what);
        lastEqual = progress_.ticks;
    } catch (const BadFile& e) {
        damage_ = e.what();
    }
}

void Player::differs(const std::string& what) {
    if (!difference_.empty()) return;
    std::ostringstream out;
    out << "differs at tick " << progress_.ticks << " (as recorded up to tick " << lastEqual
        << "): " << what;
    difference_ = out.str();
}

void Player::nextPass() {
    pass = {};
    clockPlace = eventPlace = axisPlace = songPlace = 0;
    try {
        const Record* next = script.peek();
        while (next != nullptr && next->kind != Record::pass && next->kind != Record::end) {
            differs("the game goes another way");
            script.next();
            next = script.peek();
        }
        if (next == nullptr) return stop();
        if (next->kind == Record::end) {
            differs("the game goes on");
            return stop();
        }
        pass = script.next()->pass_; // NOLINT(bugprone-unchecked-optional-access): seen
        idle = pass.idle;
    } catch (const BadFile& e) {
        damage_ = e.what();
        stop();
    }
}

void Player::finish() {
    progress_.look();
    compareProgress();
    compare(Record::end);
}

} // namespace quorva::replay
