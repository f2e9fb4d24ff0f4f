#include "tools/soak/Memory.h"

#include <malloc.h>
#include <unistd.h>

#include <fstream>

#if defined(__SANITIZE_ADDRESS__)
#define KOV_UNDER_ASAN 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KOV_UNDER_ASAN 1
#endif
#endif

#ifdef KOV_UNDER_ASAN
extern "C" std::size_t __sanitizer_get_current_allocated_bytes(); // not every compiler has a header
#endif

namespace soak {

std::size_t heapBytes() {
#ifdef KOV_UNDER_ASAN
    return __sanitizer_get_current_allocated_bytes(); // mallinfo2 knows nothing there
#else
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
#endif
}

std::size_t residentBytes() {
    std::size_t total = 0, resident = 0; // pages
    std::ifstream("/proc/self/statm") >> total >> resident;
    return resident * static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
}

} // namespace soak
