#pragma once

#include "replay/Records.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quorva::replay {

constexpr int exit_differs = 1, exit_unusable = 2; ///< of the programs

/// Such as "20000 ticks, 1234 points, 3 deaths".
std::string inWords(std::uint32_t ticks, const std::vector<Result>& results);

/// Such as "1234 points, 3 deaths".
std::string inWords(const Result& result);

/// Minutes and seconds, such as "12:05".
std::string minutes(std::uint64_t ms);

} // namespace quorva::replay
