#pragma once

#include <boost/filesystem/path.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quorva::replay {

constexpr const char* replay_ending = ".kovreplay";

/// The replay files of a folder.
/// @return their paths, sorted by name; none if it can't be read
std::vector<boost::filesystem::path> replaysIn(const boost::filesystem::path& folder);

/// The name of a game that is kept without one of the player's own: when it was played and, once
/// that is known, its best score. Games that are kept by themselves have "auto" behind that, and
/// those alone are ever thrown out.
struct KeptName {
    std::string date; ///< such as "2026-11-26 20.15.00", which also sorts by time
    bool isAutomatic;

    static KeptName now(bool isAutomatic);

    std::string unfinished() const; ///< the file's name, without score
    std::string finished(std::uint32_t score) const;
};

/// What the name of a game tells that was kept by itself.
struct NamedGame {
    std::string date;
    std::uint32_t score; ///< 0: none is named, the game broke off
};

/// @return empty if it isn't such a name
std::optional<NamedGame> parseName(const std::string& fileName);

/// What stays of the games that are kept by themselves.
struct KeepLimits {
    std::size_t latest = 20, best = 10;
    std::uintmax_t bytes = 50U << 20U; ///< of these games together
};

/// Removes those that are neither among the latest nor among the best, and further ones, the
/// oldest first and the best last, while they are too large together.
void tidy(const boost::filesystem::path& folder, const KeepLimits& limits = {});

} // namespace quorva::replay
