#pragma once

#include "replay/Setup.h"

#include <cstdint>
#include <string>

namespace quorva::replay {

/// What a file says of itself, without playing it.
struct Summary {
    /// Throws BadFile.
    explicit Summary(const std::string& path);

    std::string text() const; ///< lines for a reader

    Setup setup;
    std::uint32_t start = 0;  ///< ms, the game's clock at its first frame
    std::uint32_t length = 0; ///< ms
    std::size_t size;         ///< bytes
    bool cutOff;
};

} // namespace quorva::replay
