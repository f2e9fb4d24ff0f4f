#include "replay/KeptGames.h"

#include <boost/filesystem.hpp>

#include <algorithm>
#include <cstring>
#include <ctime>
#include <set>

namespace quorva::replay {

namespace {

namespace fs = boost::filesystem;

const std::string automatic = " auto";
const char* const date_pattern = "dddd-dd-dd dd.dd.dd"; // d for a digit
constexpr std::size_t longest_score = 10;               // a blank and nine digits

bool fits(const std::string& text, const std::string& pattern) {
    const auto fitsOne = [](char c, char expected) {
        return expected == 'd' ? c >= '0' && c <= '9' : c == expected;
    };
    return std::equal(text.begin(), text.end(), pattern.begin(), pattern.end(), fitsOne);
}

struct Kept {
    fs::path path;
    NamedGame name;
    std::uintmax_t size; ///< bytes
};

/// Those that are kept by themselves, the oldest first.
std::vector<Kept> automaticGamesIn(const fs::path& folder) {
    std::vector<Kept> games;
    for (const fs::path& path : replaysIn(folder)) {
        boost::system::error_code error; // somebody else may tidy up, too
        const std::uintmax_t size = fs::file_size(path, error);
        const auto name = parseName(path.filename().string());
        if (!error && name) games.push_back({path, *name, size});
    }
    return games; // by their names, which begin with the date
}

/// Their places, by falling score, the latest first of equals.
std::vector<std::size_t> byScore(const std::vector<Kept>& games) {
    std::vector<std::size_t> places;
    for (std::size_t i = games.size(); i > 0; --i)
        places.push_back(i - 1);
    std::stable_sort(places.begin(), places.end(), [&](std::size_t a, std::size_t b) {
        return games[a].name.score > games[b].name.score;
    });
    return places;
}

} // namespace

std::vector<fs::path> replaysIn(const fs::path& folder) {
    std::vector<fs::path> paths;
    boost::system::error_code error;
    for (fs::directory_iterator entry(folder, error), end; !error && entry != end;
         entry.increment(error)) {
        boost::system::error_code ignored;
        if (entry->path().extension() == replay_ending && fs::is_regular_file(*entry, ignored))
            paths.push_back(entry->path());
    }
    std::sort(paths.begin(), paths.end());
    return paths;
}

KeptName KeptName::now(bool isAutomatic) {
    const std::time_t time = std::time(nullptr);
    char text[sizeof "-2147483648-12-31 23.59.59"];
    std::strftime(text, sizeof text, "%Y-%m-%d %H.%M.%S", std::localtime(&time));
    return {text, isAutomatic};
}

std::optional<NamedGame> parseName(const std::string& fileName) {
    const std::string end = automatic + replay_ending;
    const std::size_t dateEnd = std::strlen(date_pattern);
    if (fileName.size() < dateEnd + end.size()) return {};
    const std::size_t scoreEnd = fileName.size() - end.size();
    const std::string date = fileName.substr(0, dateEnd);
    const std::string score = fileName.substr(dateEnd, scoreEnd - dateEnd);
    if (!fits(date, date_pattern) || fileName.substr(scoreEnd) != end ||
        (!score.empty() && !fits(score, ' ' + std::string(score.size() - 1, 'd'))) ||
        score.size() == 1 || score.size() > longest_score)
        return {};
    return {{date, score.empty() ? 0 : static_cast<std::uint32_t>(std::stoul(score))}};
}

std::string KeptName::unfinished() const {
    return date + (isAutomatic ? automatic : "") + replay_ending;
}

std::string KeptName::finished(std::uint32_t score) const {
    return date + ' ' + std::to_string(score) + (isAutomatic ? automatic : "") + replay_ending;
}

void tidy(const fs::path& folder, const KeepLimits& limits) {
    const std::vector<Kept> games = automaticGamesIn(folder);
    const std::vector<std::size_t> ranking = byScore(games);
    const std::set<std::size_t> best(
        ranking.begin(),
        ranking.begin() + static_cast<std::ptrdiff_t>(std::min(limits.best, ranking.size())));

    // From what is to go first to what is to stay longest.
    std::vector<std::size_t> order;
    for (std::size_t i = 0; i < games.size(); ++i)
        if (best.count(i) == 0) order.push_back(i);
    const std::size_t others = order.size();
    for (auto place = ranking.rbegin(); place != ranking.rend(); ++place)
        if (best.count(*place) != 0) order.push_back(*place);

    std::uintmax_t bytes = 0;
    for (const Kept& kept : games)
        bytes += kept.size;
    for (std::size_t i = 0; i < order.size(); ++i) {
        const std::size_t age = games.size() - 1 - order[i]; // games that are later
        const bool isTooMany = i < others && age >= limits.latest;
        if (!isTooMany && bytes <= limits.bytes) continue;
        boost::system::error_code ignored; // it stays
        if (fs::remove(games[order[i]].path, ignored)) bytes -= games[order[i]].size;
    }
}

} // namespace quorva::replay
