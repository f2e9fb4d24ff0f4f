#pragma once

#include "replay/Bytes.h"

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace quorva::replay {

/// What came out as a file's games were played again, to be kept.
struct Report {
    struct Game {
        std::uint32_t score;
        std::uint32_t begin, length; ///< ms, the begin after the start of the session
        bool marked;                 ///< something may have helped
        std::string story, remarks;  ///< in words
        std::vector<std::pair<std::uint32_t, std::uint32_t>> curve; ///< ms after the begin, score
        std::string picture; ///< of the best catch, as SVG; empty if there was none
    };

    std::int64_t date;       ///< seconds since 1970, UTC
    std::string verdict;     ///< empty: it holds
    std::vector<Game> games; ///< that were played to their end or left

    void write(ByteWriter& out) const;
    static Report read(ByteReader& in); ///< throws BadFile
};

} // namespace quorva::replay
