#include "bench/support/Allocations.h"

#include <cstdlib>
#include <new>

namespace {

std::uint64_t count = 0;

} // namespace

namespace bench {

std::uint64_t allocations() {
    return count;
}

} // namespace bench

void* operator new(std::size_t size) {
    ++count;
    if (void* const memory = std::malloc(size != 0 ? size : 1)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept {
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept {
    std::free(memory);
}
