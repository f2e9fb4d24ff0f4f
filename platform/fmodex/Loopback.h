#pragma once

#include <cstdint>

struct FMOD_SYSTEM;

// Sound without a card: for films, and for tests.

namespace platform::fmodex {

/// From now on the system renders into memory instead of to a card. To be called before
/// FMOD_System_Init, in a process of its own.
void useLoopback();
/// Mixes the next stereo frames at 44.1 kHz, 16 bits, of the loopback output.
void render(FMOD_SYSTEM* system, std::int16_t* samples, int frames);

} // namespace platform::fmodex
