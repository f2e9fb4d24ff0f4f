#include "replay/Blocks.h"

#include "Framework/Files.h"
#include "replay/Bytes.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iterator>

namespace quorva::replay {

namespace {

const std::string magic = "KOV replay\x1a"; // the last one ends it for a terminal
constexpr std::size_t head_size = 12;       // of a block: sizes, compressed and not, and checksum

/// Of a file; some fifty days of play.
constexpr std::size_t largest_file = 64U << 20U;
/// No block grows beyond this many times its size in the file, and a little: what play costs to
/// check stays in proportion to the file.
constexpr std::size_t largest_growth = 100, free_growth = 4096;

std::uint32_t checksumBehind(std::uint32_t checksum, const std::string& bytes) {
    return static_cast<std::uint32_t>(
        crc32(checksum, reinterpret_cast<const Bytef*>(bytes.data()), bytes.size()));
}

void setBuffers(z_stream& stream, const char* input, std::size_t inputSize, std::string& output) {
    // zlib only reads it, but takes no pointer to const.
    stream.next_in = reinterpret_cast<Bytef*>(const_cast<char*>(input));
    stream.avail_in = static_cast<uInt>(inputSize);
    stream.next_out = reinterpret_cast<Bytef*>(output.data());
    stream.avail_out = static_cast<uInt>(output.size());
}

} // namespace

BlockWriter::BlockWriter(const std::string& path)
    : file(std::fopen(path.c_str(), "wbx"), std::fclose) {
    if (file == nullptr) throw std::runtime_error(std::strerror(errno));
    deflateInit(&stream, Z_BEST_COMPRESSION);
    const std::string head =
        magic + static_cast<char>(format_version) + static_cast<char>(rule_set);
    failed = std::fwrite(head.data(), 1, head.size(), file.get()) != head.size();
}

bool BlockWriter::write(const std::string& bytes) {
    if (failed) return false;
    std::string output(deflateBound(&stream, bytes.size()) + free_growth, '\0');
    setBuffers(stream, bytes.data(), bytes.size(), output);
    deflate(&stream, Z_SYNC_FLUSH); // has room, so it can't fail
    output.resize(output.size() - stream.avail_out);
    checksum = checksumBehind(checksum, bytes);

    ByteWriter head;
    head.fixed32(static_cast<std::uint32_t>(output.size()));
    head.fixed32(static_cast<std::uint32_t>(bytes.size()));
    head.fixed32(checksum);
    output.insert(0, head.bytes);
    failed = std::fwrite(output.data(), 1, output.size(), file.get()) != output.size() ||
             std::fflush(file.get()) != 0;
    return !failed;
}

BlockReader::BlockReader(const std::string& path) {
    std::ifstream file = utility::openForReading(path, largest_file);
    if (!file) throw BadFile("no such file, or none that can be read");
    bytes.assign(std::istreambuf_iterator<char>(file), {});
    if (bytes.compare(0, magic.size(), magic) != 0) throw BadFile("this is no replay of KOV");
    if (bytes.size() < at) damaged();
    if (static_cast<std::uint8_t>(bytes[magic.size()]) > format_version)
        throw BadFile("the file is of a newer version of KOV");
    if (static_cast<std::uint8_t>(bytes[magic.size() + 1]) != rule_set)
        throw BadFile("the game was played by the rules of another version of KOV");
    inflateInit(&stream);
}

std::uint32_t BlockReader::number(std::size_t offset) const {
    return ByteReader(bytes.substr(at + offset, sizeof(std::uint32_t))).fixed32();
}

std::string BlockReader::read() {
    const std::size_t left = bytes.size() - at;
    if (left < head_size) return {};
    const std::size_t compressedSize = number(0), rawSize = number(4);
    const std::uint32_t expected = number(8);
    if (rawSize == 0 || rawSize > BlockWriter::largest_block ||
        rawSize > largest_growth * compressedSize + free_growth)
        damaged();
    if (compressedSize > left - head_size) return {};
    at += head_size;
    std::string block = inflated(compressedSize, rawSize);
    at += compressedSize;
    checksum = checksumBehind(checksum, block);
    if (checksum != expected) damaged();
    return block;
}

std::string BlockReader::inflated(std::size_t compressedSize, std::size_t rawSize) {
    std::string block(rawSize + 1, '\0'); // one more shows a block that is too long
    setBuffers(stream, bytes.data() + at, compressedSize, block);
    const int result = inflate(&stream, Z_SYNC_FLUSH);
    if (result != Z_OK || stream.avail_in != 0 || stream.avail_out != 1) damaged();
    block.pop_back();
    return block;
}

} // namespace quorva::replay
