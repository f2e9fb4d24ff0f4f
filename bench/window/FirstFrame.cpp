// To be preloaded into the game: prints how many ms after KOV_STARTED (ns of the monotonic clock)
// the first frame is on the screen, and ends the process.

#include <GL/gl.h>

#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <dlfcn.h>
#include <unistd.h>

extern "C" void SDL_GL_SwapBuffers() {
    reinterpret_cast<void (*)()>(dlsym(RTLD_NEXT, "SDL_GL_SwapBuffers"))();
    glFinish();
    timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    const char* const started = std::getenv("KOV_STARTED");
    const long long since =
        now.tv_sec * 1000000000LL + now.tv_nsec - (started != nullptr ? std::atoll(started) : 0);
    std::printf("%.1f\n", static_cast<double>(since) * 1e-6);
    std::fflush(stdout);
    _exit(0);
}
