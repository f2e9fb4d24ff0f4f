#include "platform/fmodex/Decoder.h"

#include <mpg123.h>
#include <sndfile.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <sstream>

namespace platform::fmodex {

namespace {

constexpr int lowest_rate = 1000, highest_rate = 192000; // Hz; no honest file is outside
constexpr std::size_t sides = 2;
constexpr long longest_junk = 65536; // bytes before an MP3's first frame
/// Bytes that the search for that frame may read: it looks ahead at each mark that may be one.
constexpr std::uint64_t search_allowance = 4 * longest_junk;

std::int16_t toSample(float value) {
    if (!(value == value)) return 0; // not-a-number is silence, not noise
    const float scaled = std::clamp(value, -1.0F, 1.0F) * 32767.0F;
    return static_cast<std::int16_t>(std::lrint(scaled));
}

SoundFile& sourceOf(void* user) {
    return *static_cast<SoundFile*>(user);
}

SF_VIRTUAL_IO readingOnly() {
    SF_VIRTUAL_IO io = {};
    io.get_filelen = [](void* user) -> sf_count_t { return sourceOf(user).size(); };
    io.seek = [](sf_count_t offset, int whence, void* user) -> sf_count_t {
        return sourceOf(user).seek(offset, whence);
    };
    io.tell = [](void* user) -> sf_count_t { return sourceOf(user).seek(0, SEEK_CUR); };
    io.read = [](void* bytes, sf_count_t count, void* user) -> sf_count_t {
        return static_cast<sf_count_t>(sourceOf(user).read(bytes, static_cast<std::size_t>(count)));
    };
    return io;
}

int openSource(mpg123_handle* mpeg, SoundFile& source) {
    const auto read = [](void* user, void* bytes, std::size_t count) {
        return static_cast<ssize_t>(sourceOf(user).read(bytes, count));
    };
    const auto seek = [](void* user, off_t offset, int whence) {
        return sourceOf(user).seek(offset, whence);
    };
    mpg123_replace_reader_handle(mpeg, read, seek, nullptr);
    return mpg123_open_handle(mpeg, &source);
}

/// Whether a header states another size than the file has. The library only logs that, such as
/// "data : 88200 (should be 4956)"; what else it logs in these words does no harm.
bool liesAboutItsSize(SNDFILE* file) {
    char log[4096] = {};
    sf_command(file, SFC_GET_LOG_INFO, log, sizeof log - 1);
    std::istringstream lines(log);
    for (std::string line; std::getline(lines, line);) {
        if (line.find("(should be") == std::string::npos) continue;
        line.erase(0, line.find_first_not_of(' '));
        for (const char* size : {"RIFF", "RIFX", "FORM", "SSND", "data", "Data Size"})
            if (line.rfind(size, 0) == 0) return true;
    }
    return false;
}

/// Whether the frame found is what a song has: layer 3, at a bit rate. Programs are full of what
/// looks like frames of the other kinds.
bool isUsualFrame(mpg123_handle* mpeg) {
    constexpr int layer_of_mp3 = 3;
    mpg123_frameinfo info = {};
    return mpg123_info(mpeg, &info) == MPG123_OK && info.layer == layer_of_mp3 && info.bitrate > 0;
}

/// Whether the file's own table states over a second more than is there.
/// @param stated, found frames of sound; @param rate Hz
bool isCutShort(mpg123_handle* mpeg, off_t stated, off_t found, int rate) {
    mpg123_frameinfo info = {};
    mpg123_info(mpeg, &info);
    return info.vbr == MPG123_VBR && stated > found + rate;
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
    if (!source.open(path.c_str())) return FMOD_ERR_FILE_NOTFOUND;
    isMpeg = source.startsWithMpegFrame();
    if (!isMpeg) {
        const FMOD_RESULT opened = openFile();
        if (file != nullptr) return opened;
    }
    isMpeg = true; // perhaps behind some junk
    return openMpeg();
}

FMOD_RESULT Decoder::openFile() {
    SF_INFO info = {};
    SF_VIRTUAL_IO io = readingOnly();
    file = sf_open_virtual(&io, SFM_READ, &info, &source);
    if (file == nullptr) return FMOD_ERR_FORMAT;
    channelCount = info.channels;
    rate = info.samplerate;
    if (channelCount < 1 || rate < lowest_rate || rate > highest_rate) return FMOD_ERR_FORMAT;
    const bool isOgg = (info.format & SF_FORMAT_TYPEMASK) == SF_FORMAT_OGG;
    downmix = Downmix(channelCount, isOgg ? Downmix::Order::vorbis : Downmix::Order::wav);
    if (info.frames <= 0 || info.frames == SF_COUNT_MAX || liesAboutItsSize(file))
        return FMOD_ERR_FILE_BAD;
    frameCount = static_cast<std::uint64_t>(info.frames);
    return FMOD_OK;
}

FMOD_RESULT Decoder::openMpeg() {
    mpg123_init(); // may be called again and again
    mpeg = mpg123_new(nullptr, nullptr);
    if (mpeg == nullptr) return FMOD_ERR_MEMORY;
    mpg123_param(mpeg, MPG123_ADD_FLAGS, MPG123_QUIET | MPG123_FORCE_STEREO | MPG123_SKIP_ID3V2, 0);
    mpg123_param(mpeg, MPG123_RESYNC_LIMIT, longest_junk, 0);
    source.seek(0, SEEK_SET);
    source.allow(search_allowance);
    long hertz = 0;
    int channels = 0, encoding = 0;
    if (openSource(mpeg, source) != MPG123_OK ||
        mpg123_getformat(mpeg, &hertz, &channels, &encoding) != MPG123_OK ||
        channels != MPG123_STEREO || encoding != MPG123_ENC_SIGNED_16)
        return FMOD_ERR_FORMAT;
    source.allow(SoundFile::unlimited);
    if (!source.startsWithMpegFrame() && !isUsualFrame(mpeg)) return FMOD_ERR_FORMAT;
    rate = static_cast<int>(hertz);
    mpg123_format_none(mpeg); // at a change of rate it ends
    mpg123_format(mpeg, hertz, MPG123_STEREO, MPG123_ENC_SIGNED_16);
    const off_t stated = mpg123_length(mpeg);
    if (mpg123_scan(mpeg) != MPG123_OK) return FMOD_ERR_FILE_BAD; // walks the frames' headers
    const off_t found = mpg123_length(mpeg);
    if (found <= 0 || isCutShort(mpeg, stated, found, rate)) return FMOD_ERR_FILE_BAD;
    frameCount = static_cast<std::uint64_t>(found);
    return FMOD_OK;
}

std::size_t Decoder::read(std::vector<std::int16_t>& samples, std::size_t frames) {
    return isMpeg ? readMpeg(samples, frames) : readFile(samples, frames);
}

std::size_t Decoder::readFile(std::vector<std::int16_t>& samples, std::size_t frames) {
    std::array<float, 2048> piece; // small enough to stay where it is
    const auto channels = static_cast<std::size_t>(channelCount);
    const std::size_t expected = std::min<std::uint64_t>(frames, frameCount);
    samples.reserve(samples.size() + expected * sides);
    std::size_t count = 0, got = 1;
    while (count < frames && got > 0) {
        const std::size_t wanted = std::min(frames - count, piece.size() / channels);
        const sf_count_t read = sf_readf_float(file, piece.data(), static_cast<sf_count_t>(wanted));
        got = read > 0 ? static_cast<std::size_t>(read) : 0;
        for (std::size_t i = 0; i < got; ++i) {
            for (const float value : downmix(&piece[i * channels]))
                samples.push_back(toSample(value));
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
    int state = MPG123_OK; // the first read may give the format alone
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
