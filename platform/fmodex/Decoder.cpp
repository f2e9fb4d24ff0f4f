#include "platform/fmodex/Decoder.h"

#include <mpg123.h>
#include <sndfile.h>
#include <sys/stat.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace platform::fmodex {

namespace {

constexpr int lowest_rate = 1000, highest_rate = 192000; // Hz: what lies outside is a lie
constexpr std::size_t sides = 2;

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
    if (mpeg != nullptr) mpg123_delete(mpeg);
    file = nullptr;
    mpeg = nullptr;
}

FMOD_RESULT Decoder::open(const std::string& path) {
    close();
    if (!isFile(path)) return FMOD_ERR_FILE_NOTFOUND;
    const FMOD_RESULT opened = openFile(path);
    if (opened != FMOD_OK || !isMpeg) return opened;
    close();
    return openMpeg(path);
}

FMOD_RESULT Decoder::openFile(const std::string& path) {
    SF_INFO info = {};
    file = sf_open(path.c_str(), SFM_READ, &info);
    if (file == nullptr)
        return sf_error(nullptr) == SF_ERR_SYSTEM ? FMOD_ERR_FILE_NOTFOUND : FMOD_ERR_FORMAT;
    isMpeg = (info.format & SF_FORMAT_TYPEMASK) == SF_FORMAT_MPEG;
    channelCount = info.channels;
    rate = info.samplerate;
    if (channelCount < 1 || channelCount > 2 || rate < lowest_rate || rate > highest_rate)
        return FMOD_ERR_FORMAT;
    if (info.frames <= 0) return FMOD_ERR_FILE_BAD;
    frameCount = static_cast<std::uint64_t>(info.frames);
    return FMOD_OK;
}

FMOD_RESULT Decoder::openMpeg(const std::string& path) {
    mpg123_init(); // may be called again and again
    mpeg = mpg123_new(nullptr, nullptr);
    if (mpeg == nullptr) return FMOD_ERR_MEMORY;
    // Tags are skipped: a picture in one may be larger than the song.
    mpg123_param(mpeg, MPG123_ADD_FLAGS, MPG123_QUIET | MPG123_FORCE_STEREO | MPG123_SKIP_ID3V2, 0);
    mpg123_format_none(mpeg);
    mpg123_format(mpeg, rate, MPG123_STEREO, MPG123_ENC_SIGNED_16);
    if (mpg123_open(mpeg, path.c_str()) != MPG123_OK) return FMOD_ERR_FORMAT;
    if (mpg123_scan(mpeg) != MPG123_OK) return FMOD_ERR_FILE_BAD; // walks the frames' headers
    const off_t length = mpg123_length(mpeg);
    if (length <= 0) return FMOD_ERR_FILE_BAD;
    frameCount = static_cast<std::uint64_t>(length);
    return FMOD_OK;
}

std::size_t Decoder::read(std::vector<std::int16_t>& samples, std::size_t frames) {
    return isMpeg ? readMpeg(samples, frames) : readFile(samples, frames);
}

std::size_t Decoder::readFile(std::vector<std::int16_t>& samples, std::size_t frames) {
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

std::size_t Decoder::readMpeg(std::vector<std::int16_t>& samples, std::size_t frames) {
    constexpr std::size_t frameSize = sides * sizeof samples[0];
    const std::size_t start = samples.size(), wanted = frames * frameSize;
    samples.resize(start + frames * sides);
    auto* const bytes = reinterpret_cast<unsigned char*>(&samples[start]);
    std::size_t got = 0;
    int state = MPG123_OK; // the first read may only tell the format
    while (got < wanted && (state == MPG123_OK || state == MPG123_NEW_FORMAT)) {
        std::size_t done = 0;
        state = mpg123_read(mpeg, bytes + got, wanted - got, &done);
        got += done;
    }
    samples.resize(start + got / frameSize * sides);
    return got / frameSize;
}

void Decoder::rewind() {
    if (isMpeg)
        mpg123_seek(mpeg, 0, SEEK_SET);
    else
        sf_seek(file, 0, SEEK_SET);
}

unsigned int Decoder::lengthMs() const {
    const std::uint64_t ms = frameCount * 1000U / static_cast<std::uint64_t>(rate);
    return static_cast<unsigned int>(
        std::min<std::uint64_t>(ms, std::numeric_limits<unsigned int>::max()));
}

} // namespace platform::fmodex
