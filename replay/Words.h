#pragma once

#include "replay/Records.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quorva::replay {

/// Of the programs.
constexpr int exit_differs = 1, exit_unusable = 2, exit_interrupted = 3, exit_marked = 4;

/// Such as "1 death" and "3 deaths".
/// @param more the word for any other number than one; empty: with an s
std::string counted(std::size_t count, const std::string& what, const std::string& more = "");

/// Such as "20000 ticks, 1234 points, 3 deaths".
std::string inWords(std::uint32_t ticks, const std::vector<GameEnd>& results);

/// Such as "1234 points, 3 deaths".
std::string inWords(const GameEnd& result);

/// Their long names and values, each with a blank in front.
std::string inWords(const SettingValues& settings);

/// Day and minute, local time, of seconds since 1970.
std::string dateText(std::int64_t date);

/// Minutes and seconds, such as "12:05".
std::string minutes(std::uint64_t ms);

} // namespace quorva::replay
