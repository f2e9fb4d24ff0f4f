#pragma once

#include <cstdint>
#include <memory>

class GameBase;

namespace quorva {
class EngineClass;
}

namespace quorva::headless {

/// The real game on virtual time, without window, wall clock or sound card. One at a time; the
/// program must link platform/standins, the input at least.
class HeadlessGame {
public:
    /// Starts a run as a fresh process would: clock at `startTicks` ms, an unseeded random
    /// stream, default settings, an empty event queue.
    /// @param width, height of the screen, in pixels; 0 for the default setting
    explicit HeadlessGame(std::uint32_t startTicks = 0, unsigned short width = 0,
                          unsigned short height = 0);
    ~HeadlessGame(); ///< deletes every entity
    HeadlessGame(const HeadlessGame&) = delete;
    HeadlessGame& operator=(const HeadlessGame&) = delete;

    /// One pass of the main loop in which a tick is due: 30 ms, then process and update.
    void tick();
    void ticks(unsigned int count);
    // The two halves of a pass.
    void process(); ///< 30 ms go by, and the tick runs unless the game is paused
    void frame();

    void press(int symbol);          ///< key down and up, taken at the next pass
    void key(int symbol, bool down); ///< key down or up, taken at the next pass
    void startLevel();               ///< chooses "Start Game" by keys
    bool isOver() const;             ///< the program wants to end

    GameBase& game() { return *base; }
    const GameBase& game() const { return *base; }

    /// Hash of all that play depends on: positions, lines, score, lives, random state. See
    /// stateParts() for the whole list.
    std::uint32_t stateHash() const;

private:
    EngineClass& engine; ///< not owned
    std::unique_ptr<GameBase> base;
};

} // namespace quorva::headless
