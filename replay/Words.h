#pragma once

#include "replay/Records.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quorva::replay {

/// Of the programs.
constexpr int exit_differs = 1, exit_unusable = 2, exit_interrupted = 3, exit_marked = 4;

/// Such as "20000 ticks, 1234 points, 3 deaths".
std::string inWords(std::uint32_t ticks, const std::vector<GameEnd>& results);

/// Such as "1234 points, 3 deaths".
std::string inWords(const GameEnd& result);

/// Minutes and seconds, such as "12:05".
std::string minutes(std::uint64_t ms);

} // namespace quorva::replay
