#include "replay/Words.h"

#include <sstream>

namespace quorva::replay {

namespace {

std::string counted(std::uint32_t count, const char* what) {
    return std::to_string(count) + ' ' + what + (count == 1 ? "" : "s");
}

} // namespace

std::string inWords(const GameEnd& result) {
    return counted(result.score, "point") + ", " + counted(result.deaths, "death") +
           (result.lost ? "" : ", left");
}

std::string inWords(std::uint32_t ticks, const std::vector<GameEnd>& results) {
    std::string text = counted(ticks, "tick");
    for (const GameEnd& result : results)
        text += (&result == results.data() ? ", " : "; ") + inWords(result);
    return text;
}

std::string minutes(std::uint64_t ms) {
    const std::uint64_t seconds = ms / 1000;
    std::ostringstream out;
    out << seconds / 60 << ':' << seconds % 60 / 10 << seconds % 10;
    return out.str();
}

} // namespace quorva::replay
