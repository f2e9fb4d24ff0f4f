#pragma once

#include <sys/types.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace platform::fmodex {

/// A sound file as its decoder is to see it: without the tags in front, and with true sizes where
/// a WAV that was written to a pipe leaves them open. Places count from behind the tags, in bytes.
class SoundFile {
public:
    ~SoundFile();
    SoundFile() = default;
    SoundFile(const SoundFile&) = delete;
    SoundFile& operator=(const SoundFile&) = delete;

    static constexpr std::uint64_t unlimited = std::numeric_limits<std::uint64_t>::max();

    /// False for what isn't there, can't be read or is no regular file; it never waits for a pipe.
    bool open(const char* path);
    void close();

    /// @return bytes read; fewer at the end of the file, or when the allowance is used up
    std::size_t read(void* bytes, std::size_t count);
    /// From now on `read` gives so many bytes in all, however often they are the same.
    void allow(std::uint64_t bytes) { allowance = bytes; }
    /// @param whence SEEK_SET, SEEK_CUR or SEEK_END; @return the new offset, -1 before the start
    off_t seek(off_t offset, int whence);
    off_t size() const { return end - start; }

    /// Whether it begins with the eleven set bits of an MPEG frame.
    bool startsWithMpegFrame();

private:
    struct Mend {
        off_t at;            ///< of a little-endian 32-bit number
        std::uint32_t value; ///< that is read there
    };

    void skipTags();
    void mendOpenSizes();
    std::uint32_t sizeBehind(off_t offset) const;
    std::size_t readAt(off_t at, void* bytes, std::size_t count);
    std::size_t readFile(off_t from, void* bytes, std::size_t count) const;

    int descriptor = -1;
    off_t start = 0, end = 0; ///< in the file
    off_t position = 0;
    std::uint64_t allowance = 0; ///< bytes
    std::vector<Mend> mends;
    std::array<unsigned char, 4096> window{}; ///< of the file: libmpg123 searches byte by byte
    off_t windowStart = 0;                    ///< in the file
    std::size_t windowLength = 0;             ///< bytes
};

} // namespace platform::fmodex
