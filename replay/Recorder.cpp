#include "replay/Recorder.h"

#include "Framework/Config.h"
#include "Framework/Timer.h"
#include "Framework/math/MTRand.h"
#include "game/FModMP3Input.h"
#include "replay/Interruption.h"
#include "replay/Snapshot.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iostream>
#include <optional>
#include <utility>

namespace quorva::replay {

namespace {

constexpr std::uint32_t flush_interval = 300;     // ticks
constexpr std::size_t full_block = 3U << 10U;     // bytes; no such block grows too much to be read
constexpr std::size_t idle_clock_reads = 2;       // by the songs and the main loop
constexpr std::uint64_t longest_idle = 1U << 20U; // passes in a record

/// Empty if the game doesn't look at such events at all.
std::optional<Event> toEvent(const SDL_Event& from, std::uint32_t emptyPolls) {
    switch (from.type) {
    case SDL_KEYDOWN:
        return Event{emptyPolls, Event::key_down, from.key.keysym.sym};
    case SDL_KEYUP:
        return Event{emptyPolls, Event::key_up, from.key.keysym.sym};
    case SDL_JOYBUTTONDOWN:
        return Event{emptyPolls, Event::button_down, from.jbutton.button};
    case SDL_JOYAXISMOTION:
        return Event{emptyPolls, Event::axis_moved, {}};
    case SDL_QUIT:
        return Event{emptyPolls, Event::closed, {}};
    default:
        return {};
    }
}

bool songIsDue(std::uint32_t clock) {
    const FModMP3Input* const songs = songPlayer();
    return songs != nullptr && songs->songIsDue(clock);
}

} // namespace

Recorder::Recorder(const std::string& path) : file(path) {}

std::uint32_t Recorder::clock() {
    if (observing && now) return *now;
    const std::uint32_t time = Tape::clock();
    const auto passed = static_cast<std::int32_t>(time - now.value_or(time));
    now = time - static_cast<std::uint32_t>(std::min(passed, 0)); // never back
    pass.clock.push_back(*now);
    return *now;
}

int Recorder::poll(SDL_Event* event) {
    bool found = Tape::poll(event) != 0;
    if (!found && takeInterruption()) {
        event->type = SDL_QUIT;
        found = true;
    }
    if (!found)
        ++emptyPolls;
    else if (const auto kept = toEvent(*event, emptyPolls))
        pass.events.push_back(*kept);
    return static_cast<int>(found);
}

SDL_Joystick* Recorder::openJoystick(int index) {
    SDL_Joystick* const joystick = Tape::openJoystick(index);
    openedJoysticks.push_back(joystick != nullptr);
    return joystick;
}

std::int16_t Recorder::axis(SDL_Joystick* joystick, int index) {
    pass.axes.push_back(Tape::axis(joystick, index));
    return pass.axes.back();
}

FMOD_RESULT Recorder::openSong(FMOD_SYSTEM* system, const char* path, FMOD_SOUND** song) {
    const FMOD_RESULT result = Tape::openSong(system, path, song);
    pass.songs.push_back({static_cast<std::uint32_t>(result), 0});
    return result;
}

FMOD_RESULT Recorder::songLength(FMOD_SOUND* song, unsigned int* ms) {
    const FMOD_RESULT result = Tape::songLength(song, ms);
    if (!pass.songs.empty()) pass.songs.back().length = *ms;
    return result;
}

void Recorder::endFrame() {
    if (!begun) begin();
    if (!failed) {
        progress.look();
        if (!isIdle())
            endPass();
        else if (randomIndex != math::MTRand_int32::p)
            couldRepeat() ? static_cast<void>(++idle) : endPass();
        pass = {};
        emptyPolls = 0;
        randomIndex = math::MTRand_int32::p;
    }
    Tape::endFrame();
}

/// The game is set up, and has drawn its first frame.
void Recorder::begin() {
    begun = true;
    catchInterruptions(); // the game's own way of ending leaves no event that could be kept
    try {
        Setup setup = setupOfGame();
        settings = setup.settings;
        setup.joysticks = openedJoysticks;
        setup.write(pending);
    } catch (const std::runtime_error& e) {
        giveUp(e.what());
    }
}

/// The clock was read by nobody but those who read it in every pass.
bool Recorder::isPlain() const {
    const bool rests = config::Config::Instance().getSaveCPU() && !Timer::Instance().paused;
    const std::size_t reads = idle_clock_reads + (rests ? 1 : 0) + (progress.ticked ? 1 : 0);
    return pass.songs.empty() && pass.clock.size() == reads;
}

/// Nothing came in this pass, and nothing was done in it but what is done in every pass.
bool Recorder::isIdle() const {
    return isPlain() && !progress.ticked && pass.events.empty();
}

/// The same would be done again with the clock as it was: a song is due and can't be played.
bool Recorder::couldRepeat() const {
    if (idle == longest_idle) return false;
    return songIsDue(lastClock);
}

void Recorder::endPass() {
    // Where all would do the same at the last of these times, that one is enough.
    if (isPlain() && songIsDue(pass.clock.front()) == songIsDue(*now)) pass.clock.assign(1, *now);
    pass.idle = std::exchange(idle, 0);
    if (!pass.clock.empty()) lastClock = pass.clock.back();
    keep(std::exchange(pass, {}));
    keepProgress();
    const bool isDue = progress.ticked && progress.ticks % flush_interval == 0;
    if (isDue || progress.ended || pending.bytes.size() > full_block) flush();
}

void Recorder::keepProgress() {
    if (progress.ended) {
        ++games;
        bestScore = std::max(bestScore, progress.ended->score);
        keep(*progress.ended);
    }
    if (progress.began) {
        keepSettings();
        keep(GameBegin());
    }
    if (progress.checkIsDue()) keep(check());
}

void Recorder::keepSettings() {
    SettingValues current = settingsOfGame();
    if (current == settings) return;
    settings = std::move(current);
    keep(ChangedSettings{settings});
}

Check Recorder::check() {
    observing = true;
    Check found = checkOfGame();
    observing = false;
    return found;
}

void Recorder::keep(const Record& record) {
    writer.write(record, pending);
}

void Recorder::flush() {
    if (!file.write(pending.bytes)) giveUp(std::strerror(errno));
    pending.bytes.clear();
}

void Recorder::finish() {
    if (failed || !begun) return;
    progress.look();
    endPass();
    keep(End{check()});
    flush();
}

void Recorder::giveUp(const std::string& reason) {
    failed = true;
    std::cerr << "kov-replay: the rest of the game can't be kept: " << reason << '\n';
}

} // namespace quorva::replay
