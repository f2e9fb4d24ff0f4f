#pragma once

#include "replay/Playback.h"

#include <boost/filesystem/path.hpp>

#include <map>

namespace quorva::replay {

/// Plays a file in a real window, with the songs that are here: those of the same lengths as the
/// ones that were played, silence for any other.
class WindowPlayback : public Playback {
public:
    /// @param songs the folder with songs
    WindowPlayback(Script& script_, const boost::filesystem::path& songs_);

    SDL_Surface* openWindow(int width, int height, int depth, std::uint32_t flags) override;

protected:
    FMOD_RESULT openSongOf(std::uint32_t ms, FMOD_SYSTEM* system, FMOD_SOUND** song) override;

private:
    void measureSongs(FMOD_SYSTEM* system);

    boost::filesystem::path folder;
    bool measured = false;
    std::map<std::uint32_t, std::string> songs; ///< paths by length, ms
};

} // namespace quorva::replay
