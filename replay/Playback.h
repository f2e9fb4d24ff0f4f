#pragma once

#include "replay/Progress.h"
#include "replay/Script.h"
#include "replay/Tape.h"

#include <optional>
#include <string>
#include <vector>

namespace quorva::replay {

/// Gives the game what a file holds in place of what comes from outside, and compares what it makes
/// of that. The game is ended at the end of the file and at an interruption.
class Playback : public Tape {
public:
    /// @param script not owned; its first record is next
    explicit Playback(Script& script);

    std::uint32_t clock() override;
    int poll(SDL_Event* event) override;
    int joysticks() override { return static_cast<int>(script.setup.joysticks.size()); }
    SDL_Joystick* openJoystick(int index) override;
    std::int16_t axis(SDL_Joystick* joystick, int index) override;
    FMOD_RESULT openSong(FMOD_SYSTEM* system, const char* path, FMOD_SOUND** song) override;
    FMOD_RESULT songLength(FMOD_SOUND* song, unsigned int* ms) override;
    void sleep(std::uint32_t) override {}
    bool draws() override { return !isIdle(); }
    void endFrame() override;

    /// The program has ended.
    void finish();

    const std::string& difference() const { return difference_; } ///< the first; empty: none
    const std::string& damage() const { return damage_; }         ///< of the file; empty: none
    const Progress& progress() const { return progress_; }
    const std::vector<GameEnd>& results() const { return results_; } ///< of the games, as played
    const Pass& pass() const { return pass_; } ///< that is being played, or was last
    std::uint32_t now() const { return now_; } ///< ms, the clock as the game knows it

protected:
    /// The keys and songs of the player whose game it is, once the game has found its own.
    virtual void prepareGame();
    /// The clock has moved on to `now`, within a pass: what comes next comes at that time.
    virtual void moveOn() {}
    /// A frame is there, and everything up to it has been compared. Shows it.
    virtual void show() { Tape::endFrame(); }
    /// A pass has gone by in which the game only looked for a song. There may be millions.
    virtual void passIdly() {}
    /// Plays, in place of the song that was played, one of that length.
    virtual FMOD_RESULT openSongOf(std::uint32_t ms, FMOD_SYSTEM* system, FMOD_SOUND** song);

    /// ms, the clock at the end of the pass behind this one; empty if that isn't what comes next.
    std::optional<std::uint32_t> timeAhead();

    void stop() { ending = true; } ///< the game is to end now
    bool isEnding() const { return ending; }
    bool isIdle() const { return pass_.idle != 0; }

    Script& script;

private:
    void prepareOnce();
    template <class Work>
    void whileReadable(const Work& work);
    bool isComparing() const;
    void compareProgress();
    void compareSettings();
    void compareCheck(const Check& kept);
    template <class Kind>
    std::optional<Kind> expect();
    void differs(const std::string& what);
    void nextPass();
    bool giveEvent(SDL_Event* event);

    Progress progress_;
    std::vector<GameEnd> results_;
    std::string difference_, damage_;
    bool prepared = false, ending = false;
    std::uint32_t lastEqual = 0; ///< tick

    Pass pass_; ///< `idle` counts down: what is still to be played before it
    struct {
        std::size_t clock = 0, events = 0, axes = 0, songs = 0;
    } taken; ///< of that pass
    std::uint32_t emptyPolls = 0;
    std::uint32_t now_ = 0;
};

} // namespace quorva::replay
