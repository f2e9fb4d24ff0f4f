#pragma once

#include "Framework/MessageInterface.h"
#include "Framework/Messages.h"
#include "headless/Bot.h"
#include "headless/HeadlessGame.h"

#include <chrono>
#include <cstdint>
#include <string>

namespace soak {

/// The bot plays game after game, while memory and entities are watched.
class Soak : public quorva::MessageInterface<PlayerDead>,
             public quorva::MessageInterface<SoundSquare>,
             public quorva::MessageInterface<SoundClearBomb>,
             public quorva::MessageInterface<SoundPup> {
public:
    explicit Soak(std::uint32_t seed);

    /// Plays, with a line of progress every now and then and a summary on standard output.
    /// @return whether nothing was found
    bool play(std::uint64_t ticks);

    void receiveMessage(const PlayerDead*) override { ++deaths; }
    void receiveMessage(const SoundSquare*) override { ++squares; }
    void receiveMessage(const SoundClearBomb*) override { ++clearBombs; }
    void receiveMessage(const SoundPup*) override { ++powerUps; }

private:
    void tick();
    void noteEndOfGame();
    bool isBackAtFloor() const;
    void checkFloor();
    void checkHeap();
    void fault(const std::string& what);
    void printProgress() const;
    void printSummary() const;
    double ticksPerSecond() const;

    quorva::headless::HeadlessGame run;
    quorva::headless::Bot bot;
    const std::chrono::steady_clock::time_point start = std::chrono::steady_clock::now();

    std::uint64_t played = 0; ///< ticks
    std::uint64_t deaths = 0, squares = 0, clearBombs = 0, powerUps = 0;
    std::uint64_t totalScore = 0, bestScore = 0;
    std::uint64_t checkedGames = 0; ///< ended and found back at the floor
    std::uint64_t faults = 0;
    std::size_t mostEntities = 0;
    unsigned int ticksSinceEnd = 0;
    bool inLevel = false, checkIsDue = false;
    std::size_t settledHeap = 0;                 ///< bytes, the most after any of the first games
    std::size_t lowestHeap = 0, highestHeap = 0; ///< bytes, after any game later on
};

} // namespace soak
