#include "platform/fmodex/Decoder.h"

#include <fcntl.h>
#include <mpg123.h>
#include <sndfile.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
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

/// A regular file's descriptor, or -1. Its name is not asked: what a file is, its bytes tell.
int openRegular(const char* path) {
    const int descriptor = ::open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    struct stat status;
    if (descriptor < 0 || (fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode)))
        return descriptor;
    ::close(descriptor);
    return -1;
}

/// Whether the file begins with an ID3 tag or the eleven set bits of an MPEG frame.
bool looksLikeMpeg(int descriptor) {
    unsigned char start[3] = {};
    if (pread(descriptor, start, sizeof start, 0) != sizeof start) return false;
    return std::memcmp(start, "ID3", 3) == 0 || (start[0] == 0xff && start[1] >= 0xe0);
}

/// Whether a WAV's header tells another size than the file has; the library only logs it.
bool liesAboutItsSize(SNDFILE* file) {
    char log[4096] = {};
    sf_command(file, SFC_GET_LOG_INFO, log, sizeof log - 1);
    return std::strstr(log, "should be") != nullptr;
}

/// Whether the file's own table tells of more than is there, by over a second.
bool isCutShort(mpg123_handle* mpeg, off_t told, off_t found, int rate) {
    mpg123_frameinfo info = {};
    mpg123_info(mpeg, &info);
    return info.vbr == MPG123_VBR && told > found + rate;
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
    const int descriptor = openRegular(path.c_str());
    if (descriptor < 0) return FMOD_ERR_FILE_NOTFOUND;
    isMpeg = looksLikeMpeg(descriptor);
    if (!isMpeg) return openFile(descriptor);
    ::close(descriptor);
    return openMpeg(path);
}

FMOD_RESULT Decoder::openFile(int descriptor) {
    SF_INFO info = {};
    file = sf_open_fd(descriptor, SFM_READ, &info, SF_TRUE);
    if (file == nullptr) return FMOD_ERR_FORMAT;
    channelCount = info.channels;
    rate = info.samplerate;
    if (channelCount < 1 || channelCount > 2 || rate < lowest_rate || rate > highest_rate)
        return FMOD_ERR_FORMAT;
    if (info.frames <= 0 || info.frames == SF_COUNT_MAX || liesAboutItsSize(file))
        return FMOD_ERR_FILE_BAD;
    frameCount = static_cast<std::uint64_t>(info.frames);
    return FMOD_OK;
}

FMOD_RESULT Decoder::openMpeg(const std::string& path) {
    mpg123_init(); // may be called again and again
    mpeg = mpg123_new(nullptr, nullptr);
    if (mpeg == nullptr) return FMOD_ERR_MEMORY;
    // Tags are skipped: a picture in one may be larger than the song.
    mpg123_param(mpeg, MPG123_ADD_FLAGS, MPG123_QUIET | MPG123_FORCE_STEREO | MPG123_SKIP_ID3V2, 0);
    long hertz = 0;
    int channels = 0, encoding = 0;
    if (mpg123_open(mpeg, path.c_str()) != MPG123_OK ||
        mpg123_getformat(mpeg, &hertz, &channels, &encoding) != MPG123_OK ||
        channels != MPG123_STEREO || encoding != MPG123_ENC_SIGNED_16)
        return FMOD_ERR_FORMAT;
    rate = static_cast<int>(hertz);
    mpg123_format_none(mpeg); // it ends rather than change its rate on the way
    mpg123_format(mpeg, hertz, MPG123_STEREO, MPG123_ENC_SIGNED_16);
    const off_t told = mpg123_length(mpeg);
    if (mpg123_scan(mpeg) != MPG123_OK) return FMOD_ERR_FILE_BAD; // walks the frames' headers
    const off_t found = mpg123_length(mpeg);
    if (found <= 0 || isCutShort(mpeg, told, found, rate)) return FMOD_ERR_FILE_BAD;
    frameCount = static_cast<std::uint64_t>(found);
    return FMOD_OK;
}

std::size_t Decoder::read(std::vector<std::int16_t>& samples, std::size_t frames) {
    return isMpeg ? readMpeg(samples, frames) : readFile(samples, frames);
}

std::size_t Decoder::readFile(std::vector<std::int16_t>& samples, std::size_t frames) {
    std::array<float, 2048> piece; // small enough to stay where it is
    const auto channels = static_cast<std::size_t>(channelCount);
    const std::size_t right = channels - 1;
    const std::size_t told = std::min<std::uint64_t>(frames, frameCount); // it may lie
    samples.reserve(samples.size() + told * sides);
    std::size_t count = 0, got = 1;
    while (count < frames && got > 0) {
        const std::size_t wanted = std::min(frames - count, piece.size() / channels);
        const sf_count_t read = sf_readf_float(file, piece.data(), static_cast<sf_count_t>(wanted));
        got = read > 0 ? static_cast<std::size_t>(read) : 0;
        for (std::size_t i = 0; i < got; ++i) {
            const float* const frame = &piece[i * channels];
            samples.push_back(toSample(frame[0]));
            samples.push_back(toSample(frame[right]));
        }
        count += got;
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
