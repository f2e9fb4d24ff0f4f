#pragma once

#include "Framework/Component.h"
#include "Framework/Engine.h"
#include "replay/Records.h"

#include <cstdint>
#include <optional>

class FModMP3Input;

namespace quorva::replay {

constexpr std::uint32_t check_interval = 100; ///< ticks

/// How far the running program has come, read from outside at the end of each frame.
class Progress {
public:
    void look();

    /// Whether the state is to be compared now.
    bool checkIsDue() const { return ticked && ticks % check_interval == 0; }

    std::uint32_t ticks = 0; ///< since the start of the program
    // Since the last look.
    bool ticked = false;
    bool began = false;           ///< a game
    std::optional<GameEnd> ended; ///< the game that has

    bool inGame = false;

private:
    std::uint32_t lastBlips = 0, lastStart = 0; ///< as the game's clock had them
};

/// The running one of that class; null if there is none.
template <class T>
T* activeComponent() {
    for (Component* const component : Engine::Instance().components)
        if (auto* const found = dynamic_cast<T*>(component)) return found;
    return nullptr;
}

/// The game's own, which plays its songs; null before the game is set up.
FModMP3Input* songPlayer();

} // namespace quorva::replay
