#pragma once

#include "replay/Progress.h"
#include "replay/Script.h"
#include "replay/Tape.h"

#include <string>
#include <vector>

namespace quorva::replay {

/// Gives the game what a file holds in place of what comes from outside, and compares what it makes
/// of that. At the end of the file the game is ended.
class Player : public Tape {
public:
    /// @param script not owned; its first record is next
    explicit Player(Script& script);

    std::uint32_t clock() override;
    int poll(SDL_Event* event) override;
    int joysticks() override { return static_cast<int>(script.setup.joysticks.size()); }
    SDL_Joystick* openJoystick(int index) override;
    std::int16_t axis(SDL_Joystick* joystick, int index) override;
    FMOD_RESULT openSong(FMOD_SYSTEM* system, const char* path, FMOD_SOUND** song) override;
    FMOD_RESULT songLength(FMOD_SOUND* song, unsigned int* ms) override;
    void sleep(std::uint32_t) override {}
    void endFrame() override;

    /// The program has ended.
    void finish();

    const std::string& difference() const { return difference_; } ///< the first; empty: none
    const std::string& damage() const { return damage_; }         ///< of the file; empty: none
    const Progress& progress() const { return progress_; }
    const std::vector<Result>& results() const { return results_; } ///< of the games, as played
    std::uint32_t now() const { return now_; } ///< ms, the clock as the game knows it

protected:
    /// A frame is there, and everything up to it has been compared. Shows it.
    virtual void show() { Tape::endFrame(); }
    /// Plays, in place of the song that was played, one of that length.
    virtual FMOD_RESULT openSongOf(std::uint32_t ms, FMOD_SYSTEM* system, FMOD_SOUND** song);

    void stop() { ending = true; } ///< the game is to end now
    bool isEnding() const { return ending; }

private:
    void prepareGame();
    void compareProgress();
    void compare(Record::Kind kind);
    void differs(const std::string& what);
    void nextPass();
    bool giveEvent(SDL_Event* event);

    Script& script;
    Progress progress_;
    std::vector<Result> results_;
    std::string difference_, damage_;
    bool prepared = false, observing = false, ending = false;
    std::uint32_t lastEqual = 0; ///< tick

    Pass pass; ///< the one that is being played, and what of it has been taken
    std::size_t clockPlace = 0, eventPlace = 0, axisPlace = 0, songPlace = 0;
    std::uint64_t idle = 0; ///< passes before it, still to be played
    std::uint32_t drains = 0;
    std::uint32_t now_ = 0;
};

} // namespace quorva::replay
