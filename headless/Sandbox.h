#pragma once

#include <boost/filesystem.hpp>

#include <sys/types.h>

namespace quorva::headless {

/// A folder to play in, created and entered: the game's read-only data linked in, no songs, no
/// settings, no high score. Thus no run writes into the tree or reads what another has left.
class Sandbox {
public:
    /// @param source the folder of the game's data
    explicit Sandbox(const boost::filesystem::path& source);
    ~Sandbox(); ///< leaves and removes it, unless this is a fork of the process that made it
    Sandbox(const Sandbox&) = delete;
    Sandbox& operator=(const Sandbox&) = delete;

    const pid_t maker;
    const boost::filesystem::path folder;
};

} // namespace quorva::headless
