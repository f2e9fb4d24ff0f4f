#pragma once

#include <cstddef>

namespace soak {

std::size_t heapBytes();     ///< allocated and not freed, in this process
std::size_t residentBytes(); ///< of main memory that the process takes

} // namespace soak
