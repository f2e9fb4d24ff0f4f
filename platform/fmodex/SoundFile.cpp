#include "platform/fmodex/SoundFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>

namespace platform::fmodex {

namespace {

using Byte = unsigned char;

constexpr std::size_t id3_header = 10, ape_header = 32; // bytes
constexpr Byte id3_footer_flag = 0x10;                  // the tag has its header again at its end
constexpr off_t riff_header = 12, chunk_header = 8;     // bytes
constexpr std::uint32_t unknown_size = 0xffffffff;      // so is 0
constexpr int most_tags = 16, most_chunks = 256; // that are looked at: a file may be made of them

bool isRegular(const struct stat& status) {
    return S_ISREG(status.st_mode);
}

std::uint32_t littleEndian(const Byte* b) {
    return std::uint32_t{b[0]} | std::uint32_t{b[1]} << 8 | std::uint32_t{b[2]} << 16 |
           std::uint32_t{b[3]} << 24;
}

/// An ID3 tag's size uses seven bits of each byte.
std::uint32_t sevenBits(const Byte* b) {
    return std::uint32_t{b[0]} << 21 | std::uint32_t{b[1]} << 14 | std::uint32_t{b[2]} << 7 | b[3];
}

/// Bytes of the tag that begins with this, 0 if none does.
off_t tagSize(const Byte (&header)[ape_header]) {
    if (std::memcmp(header, "ID3", 3) == 0) {
        const off_t footer = (header[5] & id3_footer_flag) != 0 ? id3_header : 0;
        return off_t{id3_header} + sevenBits(header + 6) + footer;
    }
    if (std::memcmp(header, "APETAGEX", 8) == 0)
        return off_t{ape_header} + littleEndian(header + 12);
    return 0;
}

bool isOpen(std::uint32_t size) {
    return size == 0 || size == unknown_size;
}

} // namespace

SoundFile::~SoundFile() {
    close();
}

void SoundFile::close() {
    if (descriptor >= 0) ::close(descriptor);
    descriptor = -1;
}

bool SoundFile::open(const char* path) {
    close();
    struct stat status;
    if (stat(path, &status) != 0 || !isRegular(status)) return false; // to open a device may act
    descriptor = ::open(path, O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (descriptor < 0 || fstat(descriptor, &status) != 0 || !isRegular(status)) return false;
    start = position = 0;
    windowLength = 0;
    end = status.st_size;
    allowance = unlimited;
    mends.clear();
    skipTags();
    mendOpenSizes();
    return true;
}

void SoundFile::skipTags() {
    for (int tag = 0; tag < most_tags; ++tag) {
        Byte header[ape_header] = {};
        readAt(0, header, sizeof header);
        start = std::min(end, start + tagSize(header));
    }
}

/// The sound of a WAV whose writer couldn't go back to its header reaches to the end of the file.
void SoundFile::mendOpenSizes() {
    Byte riff[riff_header] = {}, chunk[chunk_header] = {};
    readAt(0, riff, sizeof riff);
    const bool isWav = std::memcmp(riff, "RIFF", 4) == 0 && std::memcmp(riff + 8, "WAVE", 4) == 0;
    if (!isWav || !isOpen(littleEndian(riff + 4))) return;
    mends.push_back({4, sizeBehind(chunk_header)});
    off_t at = riff_header;
    for (int i = 0; i < most_chunks && readAt(at, chunk, sizeof chunk) == sizeof chunk; ++i) {
        const std::uint32_t length = littleEndian(chunk + 4);
        if (std::memcmp(chunk, "data", 4) == 0) {
            if (isOpen(length)) mends.push_back({at + 4, sizeBehind(at + chunk_header)});
            return;
        }
        at += chunk_header + length + length % 2;
    }
}

std::uint32_t SoundFile::sizeBehind(off_t offset) const {
    return static_cast<std::uint32_t>(std::max<off_t>(0, size() - offset));
}

std::size_t SoundFile::readAt(off_t at, void* bytes, std::size_t count) {
    const off_t from = start + at;
    if (count > window.size()) return readFile(from, bytes, count);
    const bool isHeld = from >= windowStart && from - windowStart + count <= windowLength;
    if (!isHeld) {
        windowStart = from;
        windowLength = readFile(from, window.data(), window.size());
    }
    const std::size_t skipped = static_cast<std::size_t>(from - windowStart);
    const std::size_t got = std::min(count, windowLength - skipped);
    std::copy_n(window.data() + skipped, got, static_cast<Byte*>(bytes));
    return got;
}

std::size_t SoundFile::readFile(off_t from, void* bytes, std::size_t count) const {
    const ssize_t got = pread(descriptor, bytes, count, from);
    return got > 0 ? static_cast<std::size_t>(got) : 0;
}

std::size_t SoundFile::read(void* bytes, std::size_t count) {
    const std::size_t got = readAt(position, bytes, std::min<std::uint64_t>(count, allowance));
    if (allowance != unlimited) allowance -= got;
    for (const Mend& mend : mends)
        for (off_t i = 0; i < 4; ++i) {
            const off_t offset = mend.at + i - position;
            if (offset >= 0 && offset < static_cast<off_t>(got))
                static_cast<Byte*>(bytes)[offset] = static_cast<Byte>(mend.value >> (8 * i));
        }
    position += static_cast<off_t>(got);
    return got;
}

off_t SoundFile::seek(off_t offset, int whence) {
    const off_t from = whence == SEEK_SET ? 0 : whence == SEEK_CUR ? position : size();
    if (from + offset < 0) return -1;
    return position = from + offset;
}

bool SoundFile::startsWithMpegFrame() {
    Byte mark[2] = {};
    readAt(0, mark, sizeof mark);
    return mark[0] == 0xff && mark[1] >= 0xe0;
}

} // namespace platform::fmodex
