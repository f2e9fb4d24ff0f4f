#pragma once

#include "replay/Setup.h"

#include <boost/filesystem/path.hpp>

namespace quorva::replay {

/// What a player may change, as it comes with the game.
struct Shipped {
    /// @param folder of the game's data, an installed one or the source tree
    explicit Shipped(const boost::filesystem::path& folder);

    std::vector<std::vector<Setup::NamedColour>> palettes; ///< any of them is as good
    std::vector<Setup::NamedPoint> points;
    boost::filesystem::path bindings;           ///< the file; empty if there is none
    std::vector<boost::filesystem::path> files; ///< that all this has come from
};

/// How a session's setup differs from it, in numbers.
struct Changes {
    std::size_t colours = 0, points = 0, keys = 0; ///< keys and buttons of actions
    std::size_t actionsOfAKey = 1;                 ///< in play, of the key or button with most
};

/// To be asked once the game has read the shipped bindings, and before it gets those of the setup.
Changes changesFrom(const Shipped& shipped, const Setup& setup);

} // namespace quorva::replay
