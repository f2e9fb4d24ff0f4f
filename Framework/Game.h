#pragma once

#include "Framework/Entity.h"

namespace quorva {

/// The program itself. An Entity for the sake of `dead`, the main loop's only stop signal: it is
/// never registered with the engine, and its process and update are never called.
class Game : public Entity {
public:
    Game() = default;
    ~Game() override; ///< ends SDL

    /// Runs ticks and passes until `dead` is set; the pass that sets it runs to its end.
    void mainLoop();
};

} // namespace quorva
