#pragma once

#include "platform/fmodex/Downmix.h"
#include "platform/fmodex/SoundFile.h"
#include "platform/fmodex/fmodex.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

struct mpg123_handle_struct;
struct sf_private_tag;

namespace platform::fmodex {

/// A sound file read piece by piece as 16-bit stereo, whatever number of channels it has; a mono
/// file sounds the same on both sides.
class Decoder {
public:
    ~Decoder();
    Decoder() = default;
    Decoder(const Decoder&) = delete;
    Decoder& operator=(const Decoder&) = delete;

    /// FILE_NOTFOUND, FORMAT, FILE_BAD, MEMORY; after a failure only open may be called.
    FMOD_RESULT open(const std::string& path);

    /// Appends up to `frames` frames to `samples`; fewer at the end of the file.
    /// @return frames read
    std::size_t read(std::vector<std::int16_t>& samples, std::size_t frames);
    void rewind();

    int sampleRate() const { return rate; } ///< Hz
    std::uint64_t frames() const { return frameCount; }
    unsigned int lengthMs() const;

private:
    FMOD_RESULT openFile();
    FMOD_RESULT openMpeg();
    std::size_t readFile(std::vector<std::int16_t>& samples, std::size_t frames);
    std::size_t readMpeg(std::vector<std::int16_t>& samples, std::size_t frames);
    void close();

    SoundFile source; ///< what the libraries read
    // libmpg123 for MP3: libsndfile would guess the length of a variable-rate file that doesn't
    // tell it and stop there, and would write about bad files on standard error.
    sf_private_tag* file = nullptr;
    mpg123_handle_struct* mpeg = nullptr;
    bool isMpeg = false;
    int channelCount = 0;                    ///< in `file`
    Downmix downmix{1, Downmix::Order::wav}; ///< of `file`
    int rate = 0;
    std::uint64_t frameCount = 0;
};

} // namespace platform::fmodex
