#pragma once

#include "Framework/Entity.h"

namespace quorva {

/// From now on SIGHUP and SIGTERM end the main loop as a closed window does, even if they come
/// before it has begun. A signal that the program was started to ignore stays ignored.
void endOnSignals();

/// The program itself. An Entity for the sake of `dead`, the main loop's only stop signal: it is
/// never registered with the engine, and its process and update are never called.
class Game : public Entity {
public:
    Game() = default;
    ~Game() override; ///< ends SDL

    /// Runs ticks and passes until `dead` is set; the pass that sets it runs to its end.
    void mainLoop();

    /// One turn of the main loop: the tick, if one is due, and a frame.
    void pass();
};

} // namespace quorva
