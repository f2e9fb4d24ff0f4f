#pragma once

#include <cstdint>

namespace bench {

/// Calls of operator new since the start of the program, those of the C++ libraries among them.
std::uint64_t allocations();

} // namespace bench
