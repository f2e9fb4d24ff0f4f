// Bytes and blocks of a replay file, to their limits.

#include "replay/Blocks.h"
#include "replay/Records.h"
#include "tests/support/Files.h"

#include <boost/filesystem.hpp>
#include <gtest/gtest.h>
#include <sys/resource.h>

#include <cerrno>
#include <csignal>
#include <limits>

using namespace quorva::replay;
namespace fs = boost::filesystem;

namespace {

class Blocks : public testing::Test {
protected:
    void TearDown() override { fs::remove(path); }

    /// What a file with that one block gives.
    std::string readBack(const std::string& block) {
        fs::remove(path);
        BlockWriter(path).write(block);
        return BlockReader(path).read();
    }
    std::size_t compressedSize(const std::string& block) {
        fs::remove(path);
        BlockWriter(path).write(block);
        return contentsOf(path).size() - BlockWriter::empty_size - 12; // a block's head
    }

    const std::string path = (fs::temp_directory_path() / fs::unique_path()).string();
};

} // namespace

TEST_F(Blocks, GrowNoMoreThanTheirShare) {
    // What a block may grow to: 100 times its size and 4096 bytes.
    std::size_t size = 4096;
    while (size != 100 * compressedSize(std::string(size, 'x')) + 4096)
        ASSERT_LT(++size, 9000U) << "there is such a size";
    EXPECT_EQ(readBack(std::string(size, 'x')).size(), size);
    EXPECT_THROW(readBack(std::string(size + 1, 'x')), BadFile);
}

TEST_F(Blocks, AreAtMostSoLarge) {
    std::string noise(64U << 10U, ' ');
    std::uint32_t seed = 1;
    for (char& c : noise)
        c = static_cast<char>((seed = seed * 1664525 + 1013904223) >> 24U);
    EXPECT_EQ(readBack(noise), noise);
    EXPECT_THROW(readBack(noise + 'x'), BadFile);
    EXPECT_THROW(BlockWriter writer(path), std::runtime_error) << "there already";
    {
        BlockReader reader(path);
        EXPECT_EQ(reader.offset(), BlockWriter::empty_size);
        EXPECT_EQ(reader.size(), contentsOf(path).size());
    }
    constexpr std::size_t largest_file = 64U << 20U; // bytes
    fs::resize_file(path, largest_file);
    EXPECT_EQ(BlockReader(path).size(), largest_file);
    fs::resize_file(path, largest_file + 1);
    EXPECT_THROW(BlockReader reader(path), BadFile);
}

TEST_F(Blocks, FailForGoodOnAFullDisk) {
    rlimit limit = {};
    getrlimit(RLIMIT_FSIZE, &limit);
    const auto setLimit = [&](rlim_t bytes) {
        const rlimit changed = {bytes, limit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &changed);
    };
    std::signal(SIGXFSZ, SIG_IGN);
    BlockWriter writer(path);
    EXPECT_TRUE(writer.write("all is well"));
    const auto size = fs::file_size(path);
    setLimit(size + 5);
    EXPECT_FALSE(writer.write("all is well no more"));
    EXPECT_EQ(errno, EFBIG);
    setLimit(limit.rlim_cur);
    EXPECT_FALSE(writer.write("nor later"));
    EXPECT_EQ(fs::file_size(path), size + 5);
    EXPECT_EQ(BlockReader(path).read(), "all is well");
}

TEST(BytesTest, ComeBackAsTheyWere) {
    ByteWriter out;
    const std::uint64_t numbers[] = {0, 1, 127, 128, 16383, 16384, UINT32_MAX, UINT64_MAX};
    const std::int64_t signedNumbers[] = {0, -1, 1, -64, 64, INT64_MIN, INT64_MAX};
    for (const std::uint64_t number : numbers)
        out.number(number);
    for (const std::int64_t number : signedNumbers)
        out.signedNumber(number);
    out.fixed32(0x01020304);
    out.real(-0.1);
    out.text("a ~");
    EXPECT_EQ(out.bytes.substr(0, 5), std::string("\0\1\x7f\x80\1", 5));
    ByteReader in(out.bytes);
    for (const std::uint64_t number : numbers)
        EXPECT_EQ(in.number(), number);
    for (const std::int64_t number : signedNumbers)
        EXPECT_EQ(in.signedNumber(), number);
    EXPECT_EQ(in.fixed32(), 0x01020304U);
    EXPECT_EQ(in.real(), -0.1);
    EXPECT_EQ(in.text(3), "a ~");
    EXPECT_EQ(in.left(), 0U);
    EXPECT_THROW(in.byte(), BadFile);
}

TEST(RecordsTest, ComeBackAsTheyWere) {
    Pass pass;
    pass.idle = 7;
    pass.clock = {4000000000U, 4000000000U, 5}; // around 2^32
    pass.events = {{3, Event::key_down, 0x10ffff}, {4, Event::axis_moved, 0}};
    pass.axes = {5, -7, 32767, -32768, -32768};
    pass.songs = {{23, 0}, {0, 4000000000U}};
    RecordWriter writer;
    ByteWriter out;
    for (int times = 0; times < 2; ++times, pass.clock = {100, 100})
        writer.write(Record(pass), out);
    pass.clock = {4000000000U, 4000000000U, 5};
    ByteReader in(out.bytes);
    RecordReader reader;
    for (int times = 0; times < 2; ++times) {
        const Pass read = std::get<Pass>(reader.read(in));
        EXPECT_EQ(read.idle, pass.idle);
        EXPECT_EQ(read.clock, pass.clock);
        EXPECT_EQ(read.axes, pass.axes);
        EXPECT_EQ(read.events.at(0).emptyPolls, 3U);
        EXPECT_EQ(read.events.at(0).which, 0x10ffff);
        EXPECT_EQ(read.events.at(1).kind, Event::axis_moved);
        EXPECT_EQ(read.songs.at(0).result, 23U);
        EXPECT_EQ(read.songs.at(1).length, 4000000000U);
        pass.clock = {100, 100};
    }
    EXPECT_EQ(in.left(), 0U);
}

TEST(BytesTest, DamageIsSeen) {
    using namespace std::string_literals;
    const auto refuses = [](const std::string& bytes, auto read) {
        ByteReader in(bytes);
        EXPECT_THROW(read(in), BadFile);
    };
    ByteWriter infinite;
    infinite.real(std::numeric_limits<double>::infinity());
    refuses("\x05", [](ByteReader& in) { in.number(4); });
    EXPECT_EQ(ByteReader("\x05").number(5), 5U);
    refuses(std::string(11, '\x80'), [](ByteReader& in) { in.number(); });
    refuses("\x80", [](ByteReader& in) { in.number(); });
    refuses(infinite.bytes, [](ByteReader& in) { in.real(); });
    refuses("\3abc", [](ByteReader& in) { in.text(2); });
    refuses("\x01\x1f", [](ByteReader& in) { in.text(9); });
    refuses("\x01\x7f", [](ByteReader& in) { in.text(9); });
    refuses("\3ab", [](ByteReader& in) { in.text(9); });
    refuses("\4ab", [](ByteReader& in) { in.count(); });
    for (const std::string& record : {"\x86"s, "\x10\0"s}) // kinds of record that there aren't
        refuses(record, [](ByteReader& in) { RecordReader().read(in); });
    EXPECT_EQ(ByteReader("\2ab").count(), 2U);
}
