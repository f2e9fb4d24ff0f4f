#pragma once

#include "replay/Records.h"
#include "replay/Setup.h"

#include <string>

// The running game as a file has it.

namespace quorva::replay {

/// Once it is set up and before its first frame, but for the joysticks. Throws std::runtime_error
/// if it can't be kept.
Setup setupOfGame();

SettingValues settingsOfGame(); ///< as they are in force now

Check checkOfGame();

/// @param played the game's state now
/// @return empty if it is as it was kept, else what differs first, in words
std::string firstDifference(const Check& kept, const Check& played);

} // namespace quorva::replay
