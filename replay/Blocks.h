#pragma once

#include <zlib.h>

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <string>

// The outside of a replay file: what says that it is one, then blocks of bytes. All blocks are one
// compressed stream, cut where it was flushed, so that a file that breaks off can be read up to
// there. Each carries the checksum of all bytes so far: none can be left out, added or moved.

namespace quorva::replay {

/// Of how the file is laid out. A larger one is refused.
constexpr std::uint8_t format_version = 2;
/// Of the rules of play: to be raised with any change that makes recorded games play differently.
/// Another one is refused.
constexpr std::uint8_t rule_set = 2;

/// Ends a stream of zlib, of which it isn't the owner, at the end of its scope.
using StreamEnd = const std::unique_ptr<z_stream, int (*)(z_stream*)>;

class BlockWriter {
public:
    /// Makes the file, and never overwrites one. Throws std::runtime_error if it can't.
    explicit BlockWriter(const std::string& path);

    /// Writes a block, at most largest_block bytes before compression, through to the system.
    /// @return false if that has failed, now or before; errno has the reason the first time
    bool write(const std::string& bytes);

    static constexpr std::size_t largest_block = 64U << 10U; ///< bytes
    static constexpr std::size_t empty_size = 13;            ///< of a file without blocks, bytes

private:
    std::unique_ptr<std::FILE, int (*)(std::FILE*)> file;
    z_stream stream{};
    StreamEnd streamEnd{&stream, deflateEnd};
    std::uint32_t checksum = 0;
    bool failed;
};

class BlockReader {
public:
    /// Throws BadFile for what isn't a replay, or not one for this program.
    explicit BlockReader(const std::string& path);

    /// @return the next block's bytes; empty behind the last whole one. Throws BadFile if it isn't
    ///         as it was written.
    std::string read();

    std::size_t size() const { return bytes.size(); } ///< of the file, bytes
    std::size_t offset() const { return at; }         ///< bytes that have been read

private:
    std::uint32_t number(std::size_t offset) const;
    std::string inflated(std::size_t compressedSize, std::size_t rawSize);

    std::string bytes; ///< the whole file
    std::size_t at = BlockWriter::empty_size;
    z_stream stream{};
    StreamEnd streamEnd{&stream, inflateEnd};
    std::uint32_t checksum = 0;
};

} // namespace quorva::replay
