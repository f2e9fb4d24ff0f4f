#pragma once

#include "Framework/MessageReceiver.h"
#include "Framework/Messages.h"
#include "replay/Progress.h"
#include "replay/Records.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace quorva::replay {

/// What happened in a game.
struct GameStory {
    std::uint32_t begin = 0, last = 0; ///< ms after the start of the session; its last moment
    std::optional<GameEnd> end;        ///< empty if the file breaks off within the game
    SettingValues settings;

    struct Catch {
        std::uint32_t time; ///< ms after the game's begin
        std::uint32_t points;
        unsigned int triangles;
    };
    std::vector<Catch> catches; ///< rectangles that have paid out
    unsigned int shots = 0;
    unsigned int powerUps = 0; ///< taken, bombs among them

    // Its clock and its keys.
    unsigned int ticks = 0, slowTicks = 0;
    std::uint32_t longestTick = 0; ///< ms
    unsigned int pauses = 0;
    std::uint32_t paused = 0; ///< ms in all
    std::size_t presses = 0;  ///< of keys and buttons, the most in a pass

    std::uint32_t length() const { return last - begin; }      ///< ms
    std::uint32_t played() const { return length() - paused; } ///< ms
    unsigned int sides() const; ///< shots that have become a side of a rectangle that paid out
    unsigned int triangles() const;
    const Catch* best() const; ///< by points, the first of equals; null if there was none

    static constexpr std::uint32_t slow_tick = 60; ///< ms: a longer one is slow
};

/// The story without the clock and the keys, in a few sentences.
std::string inWords(const GameStory& game);

/// Watches the games of a session while they are played again.
class Story : MessageReceiver<SoundBullet, SoundSquare, SoundPup, SoundClearBomb, SoundImmuneBomb> {
public:
    Story();

    /// At the end of each pass.
    /// @param time ms after the start of the session
    void look(const Progress& progress, const Pass& pass, std::uint32_t time);

    std::vector<GameStory> games;
    std::function<void()> onBestCatch; ///< so far in its game; within the tick

private:
    void receiveMessage(const SoundBullet*) override { ++games.back().shots; }
    void receiveMessage(const SoundSquare*) override;
    void receiveMessage(const SoundPup*) override { ++games.back().powerUps; }
    void receiveMessage(const SoundClearBomb*) override { ++games.back().powerUps; }
    void receiveMessage(const SoundImmuneBomb*) override { ++games.back().powerUps; }

    void begin(std::uint32_t time);
    void lookAtClock(const Progress& progress, std::uint32_t time);
    void endPause(std::uint32_t length);

    /// In the game that is being played.
    struct {
        std::uint32_t lastTick;   ///< ms after the start, and later by the pauses since then
        std::uint32_t pauses;     ///< ms, those that have ended, as the game's clock has them
        std::uint32_t score;      ///< after the last catch
        std::size_t datedCatches; ///< whose time is known
        std::optional<std::uint32_t> pauseBegin; ///< ms after the start; empty: it goes on
    } now{};
};

} // namespace quorva::replay
