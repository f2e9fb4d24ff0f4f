#pragma once

#include <cstdint>
#include <string>
#include <vector>

// A stand-in for the sound layer at link time: nothing is heard, every call is written down.

namespace quorva::standins {

struct SoundRecorder {
    /// While recording, such as "play Sounds/hit.wav": on any channel and at once, unless more
    /// follows.
    std::vector<std::string> calls;
    static constexpr std::int16_t rendered = 10000; ///< each sample, into memory
    bool recording = false;
    std::vector<std::string> unreadable; ///< paths that can't be opened: result 23
    unsigned int songLength = 90000;     ///< ms, of every stream
    unsigned int openStreams = 0;
    unsigned int updates = 0; ///< calls of FMOD_System_Update, which are not written down

    /// The calls since the last `take`, each followed by "; ".
    std::string take();
};

SoundRecorder& sound();

} // namespace quorva::standins
