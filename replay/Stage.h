#pragma once

#include "headless/Sandbox.h"
#include "replay/Interruption.h"
#include "replay/Setup.h"
#include "replay/Shipped.h"

#include <boost/filesystem/path.hpp>

namespace quorva::replay {

/// A folder to play a recorded game in, entered: the game's files with the recorded colours and
/// points and the shipped bindings, and nothing of whoever watches. What the game writes goes with
/// it, so interruptions wait from here on until a Playback catches them.
class Stage {
public:
    /// @param source the folder of the game's data. Throws boost::filesystem::filesystem_error.
    Stage(const boost::filesystem::path& source, const Setup& setup);

    const Shipped shipped;

private:
    const sigset_t held = holdInterruptions();
    headless::Sandbox sandbox;
};

/// The recorded settings, as the command line has them.
std::vector<std::string> optionsOf(const Setup& setup);

/// Runs the whole game with the recorded settings, from its main to its end.
/// @return its exit code
int runGame(const Setup& setup);

} // namespace quorva::replay
