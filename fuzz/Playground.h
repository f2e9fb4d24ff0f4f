#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

// What the fuzz targets share. A target's one function is called with input after input, by
// libFuzzer or by Replay.cpp.

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzz {

/// Enters a sandbox that goes at exit. `std::cerr` and `std::cout` fall silent: what the game says
/// of bad input is no finding.
/// @param linkData false: the folder of resource files is an empty one of its own
void enterPlayground(bool linkData = true);

/// Fills a file of the playground.
void write(const char* name, const std::uint8_t* data, std::size_t size);

/// Stops the process, as a finding, if `condition` does not hold.
void require(bool condition, const char* what);

inline std::string textOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

} // namespace fuzz
