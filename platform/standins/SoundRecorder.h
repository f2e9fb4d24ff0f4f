#pragma once

#include <string>
#include <vector>

// A stand-in for the sound layer at link time: nothing is heard, every call is written down.

namespace quorva::standins {

struct SoundRecorder {
    std::vector<std::string> calls; ///< such as "play Sounds/hit.wav", while recording
    bool recording = false;
    std::vector<std::string> unreadable; ///< paths that can't be opened: result 23
    unsigned int songLength = 90000;     ///< ms, of every stream
    unsigned int openStreams = 0;

    /// What was called since the last time, a call each with "; " behind it.
    std::string take();
};

SoundRecorder& sound();

} // namespace quorva::standins
