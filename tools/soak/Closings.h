#pragma once

#include <cstdint>

namespace soak {

/// Starts the program `count` times, each in a process of its own, and closes it: in every page,
/// at random ticks, and in the very pass of a death, a closed rectangle, a clear bomb; by the
/// window, by Escape and by "Exit". Every end has to be silent, with exit code 0.
/// @return whether all were
bool runClosings(unsigned int count, std::uint32_t seed);

} // namespace soak
