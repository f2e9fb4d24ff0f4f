#include "replay/Bytes.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace quorva::replay {

namespace {

constexpr unsigned int bits_a_byte = 7, widest_number = 64; // bits
constexpr std::uint8_t more_follows = 0x80;

bool isPrintable(char c) {
    return c >= ' ' && c <= '~';
}

template <class To, class From>
To sameBytes(const From& from) {
    static_assert(sizeof(To) == sizeof from);
    To to;
    std::memcpy(&to, &from, sizeof to);
    return to;
}

} // namespace

void damaged() {
    throw BadFile("the file is damaged");
}

void ByteWriter::number(std::uint64_t value) {
    for (; value >= more_follows; value >>= bits_a_byte)
        byte(static_cast<std::uint8_t>(value | more_follows));
    byte(static_cast<std::uint8_t>(value));
}

void ByteWriter::signedNumber(std::int64_t value) {
    const auto bits = static_cast<std::uint64_t>(value);
    number(value < 0 ? ~(bits << 1U) : bits << 1U); // the sign in the lowest bit
}

void ByteWriter::fixed32(std::uint32_t value) {
    for (unsigned int shift = 0; shift < 32; shift += 8)
        byte(static_cast<std::uint8_t>(value >> shift));
}

void ByteWriter::real(double value) {
    const auto bits = sameBytes<std::uint64_t>(value);
    fixed32(static_cast<std::uint32_t>(bits));
    fixed32(static_cast<std::uint32_t>(bits >> 32U));
}

void ByteWriter::text(const std::string& value) {
    number(value.size());
    bytes += value;
}

std::uint8_t ByteReader::byte() {
    if (left() == 0) damaged();
    return static_cast<std::uint8_t>(bytes[at++]);
}

std::uint64_t ByteReader::number(std::uint64_t most) {
    std::uint64_t value = 0;
    for (unsigned int shift = 0; shift < widest_number; shift += bits_a_byte) {
        const std::uint8_t next = byte();
        value |= static_cast<std::uint64_t>(next & ~more_follows) << shift;
        if ((next & more_follows) != 0) continue;
        if (value > most) damaged();
        return value;
    }
    damaged();
}

std::int64_t ByteReader::signedNumber() {
    const std::uint64_t bits = number();
    return static_cast<std::int64_t>((bits & 1U) != 0 ? ~(bits >> 1U) : bits >> 1U);
}

std::uint64_t ByteReader::fixed(unsigned int size) {
    std::uint64_t value = 0;
    for (unsigned int i = 0; i < size; ++i)
        value |= static_cast<std::uint64_t>(byte()) << (8 * i);
    return value;
}

std::uint32_t ByteReader::fixed32() {
    return static_cast<std::uint32_t>(fixed(sizeof(std::uint32_t)));
}

double ByteReader::real() {
    const auto value = sameBytes<double>(fixed(sizeof(std::uint64_t)));
    if (!std::isfinite(value)) damaged();
    return value;
}

std::string ByteReader::text(std::size_t longest) {
    std::string value(number(longest), ' ');
    for (char& c : value)
        c = static_cast<char>(byte());
    if (!std::all_of(value.begin(), value.end(), isPrintable)) damaged();
    return value;
}

} // namespace quorva::replay
