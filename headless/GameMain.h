#pragma once

#include <string>
#include <vector>

namespace quorva::headless {

/// Runs the whole game, from its main to its end.
/// @param options of the command line, without the program's name
/// @return its exit code
int runGameMain(const std::vector<std::string>& options);

} // namespace quorva::headless
