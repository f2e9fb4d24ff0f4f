#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>

namespace quorva::replay {

/// A replay that can't be read: damaged, of a newer format, no replay at all. Says why, in words.
struct BadFile : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Writes numbers behind one another: small ones take one byte, larger ones up to ten.
class ByteWriter {
public:
    void byte(std::uint8_t value) { bytes.push_back(static_cast<char>(value)); }
    void flag(bool value) { byte(static_cast<std::uint8_t>(value)); }
    void number(std::uint64_t value); ///< seven bits a byte, low ones first
    void signedNumber(std::int64_t value);
    void fixed32(std::uint32_t value); ///< low byte first
    void real(double value);           ///< its eight bytes
    void text(const std::string& value);

    std::string bytes;
};

/// Reads them again. Everything throws BadFile rather than read beyond the end.
class ByteReader {
public:
    ByteReader() = default;
    explicit ByteReader(std::string bytes_) : bytes(std::move(bytes_)) {}

    std::uint8_t byte();
    bool flag() { return byte() != 0; }
    std::uint64_t number(std::uint64_t most = UINT64_MAX); ///< a larger one is damage
    std::int64_t signedNumber();
    std::uint32_t fixed32();
    double real();                         ///< a finite one, else damage
    std::string text(std::size_t longest); ///< of printable ASCII, else damage
    /// How many items follow; there can't be more of them than bytes.
    std::size_t count() { return number(left()); }

    std::size_t left() const { return bytes.size() - at; } ///< bytes

private:
    std::uint64_t fixed(unsigned int size);

    std::string bytes;
    std::size_t at = 0;
};

[[noreturn]] void damaged();

} // namespace quorva::replay
