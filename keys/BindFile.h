#pragma once

#include "Framework/input/KeyMapper.h"

#include <string>
#include <vector>

namespace quorva::keys {

/// What each action is bound to.
using Bindings = std::vector<input::InputKey>;

/// The text of a bind file that gives these bindings: of each action the line that counts is
/// written anew, and an action without a line gets one at the end. All else stays as it is.
std::string rebind(const std::string& text, const Bindings& bindings);

/// What has come of an attempt to save.
struct Outcome {
    bool good;
    std::string text; ///< for the player, a line
};

/// Writes what has changed into bind1.conf, and sets the old file aside as bind1.conf.bak. Where
/// that fails, bind1.conf stays as it was.
/// @param before, after the same actions in the same order
Outcome save(const Bindings& before, const Bindings& after);

} // namespace quorva::keys
