#include "platform/fmodex/Decoder.h"

#include <sndfile.h>
#include <sys/stat.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace platform::fmodex {

namespace {

constexpr int lowest_rate = 1000, highest_rate = 384000; // Hz: what lies outside is a lie

std::int16_t toSample(float value) {
    if (!(value == value)) return 0; // not-a-number is silence, not noise
    const float scaled = std::clamp(value, -1.0F, 1.0F) * 32767.0F;
    return static_cast<std::int16_t>(std::lrint(scaled));
}

bool isFile(const std::string& path) {
    struct stat status;
    return stat(path.c_str(), &status) == 0 && S_ISREG(status.st_mode);
}

} // namespace

Decoder::~Decoder() {
    close();
}

void Decoder::close() {
    if (file != nullptr) sf_close(file);
    file = nullptr;
}

FMOD_RESULT Decoder::open(const std::string& path) {
    close();
    if (!isFile(path)) return FMOD_ERR_FILE_NOTFOUND;
    SF_INFO info = {};
    file = sf_open(path.c_str(), SFM_READ, &info);
    if (file == nullptr)
        return sf_error(nullptr) == SF_ERR_SYSTEM ? FMOD_ERR_FILE_NOTFOUND : FMOD_ERR_FORMAT;
    channelCount = info.channels;
    rate = info.samplerate;
    if (channelCount < 1 || channelCount > 2 || rate < lowest_rate || rate > highest_rate)
        return FMOD_ERR_FORMAT;
    if (info.frames <= 0) return FMOD_ERR_FILE_BAD;
    frameCount = static_cast<std::uint64_t>(info.frames);
    return FMOD_OK;
}

std::size_t Decoder::read(std::vector<std::int16_t>& samples, std::size_t frames) {
    scratch.resize(frames * static_cast<std::size_t>(channelCount));
    const sf_count_t got = sf_readf_float(file, scratch.data(), static_cast<sf_count_t>(frames));
    const std::size_t count = got > 0 ? static_cast<std::size_t>(got) : 0;
    const std::size_t right = channelCount == 2 ? 1 : 0;
    for (std::size_t i = 0; i < count; ++i) {
        const float* const frame = &scratch[i * static_cast<std::size_t>(channelCount)];
        samples.push_back(toSample(frame[0]));
        samples.push_back(toSample(frame[right]));
    }
    return count;
}

void Decoder::rewind() {
    sf_seek(file, 0, SEEK_SET);
}

unsigned int Decoder::lengthMs() const {
    const std::uint64_t ms = frameCount * 1000U / static_cast<std::uint64_t>(rate);
    return static_cast<unsigned int>(
        std::min<std::uint64_t>(ms, std::numeric_limits<unsigned int>::max()));
}

} // namespace platform::fmodex
