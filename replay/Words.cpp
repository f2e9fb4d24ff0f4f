#include "replay/Words.h"

#include "Framework/config/Settings.h"

#include <ctime>
#include <sstream>

namespace quorva::replay {

std::string counted(std::size_t count, const std::string& what, const std::string& more) {
    return std::to_string(count) + ' ' + (count == 1 ? what : more.empty() ? what + 's' : more);
}

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

std::string dateText(std::int64_t date) {
    const auto seconds = static_cast<std::time_t>(date);
    std::tm parts = {};
    char text[sizeof "-2147483648-12-31 23:59"];
    if (localtime_r(&seconds, &parts) == nullptr ||
        std::strftime(text, sizeof text, "%Y-%m-%d %H:%M", &parts) == 0)
        return "unknown";
    return text;
}

std::string inWords(const SettingValues& settings) {
    std::string text;
    for (const auto& [letter, value] : settings)
        text += ' ' + config::settingWith(letter).longName + '=' + std::to_string(value);
    return text;
}

std::string minutes(std::uint64_t ms) {
    const std::uint64_t seconds = ms / 1000;
    std::ostringstream out;
    out << seconds / 60 << ':' << seconds % 60 / 10 << seconds % 10;
    return out.str();
}

} // namespace quorva::replay
