#pragma once

#include "replay/Records.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quorva::replay {

/// What a file says of itself, without playing it.
struct Summary {
    struct Game {
        std::uint32_t begin; ///< ms after the start
        SettingValues settings;
        std::optional<GameEnd> end; ///< empty if the file breaks off within it
    };

    /// Throws BadFile.
    explicit Summary(const std::string& path);

    std::string text() const; ///< lines for a reader

    Setup setup;
    std::vector<Game> games;
    std::uint32_t start = 0;  ///< ms, the game's clock at its first frame
    std::uint32_t length = 0; ///< ms
    std::size_t size = 0;     ///< bytes
    bool cutOff = false;
};

} // namespace quorva::replay
