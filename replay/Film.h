#pragma once

#include "replay/Pipe.h"
#include "replay/Screen.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace quorva::replay {

/// Makes a film of a game by the ffmpeg program: 33 1/3 pictures a second, one for each tick, and
/// what is heard.
class Film : public Screen {
public:
    struct Format {
        int width, height;      ///< pixels
        std::uint32_t start;    ///< ms, the game's clock at its first frame
        std::uint32_t duration; ///< ms
    };

    /// Starts ffmpeg, twice, with files in the current folder. Throws std::runtime_error if it
    /// isn't there.
    Film(Script& script_, const boost::filesystem::path& songs_, const Format& format_);

    SDL_Surface* openWindow(int width, int height, int depth, std::uint32_t flags) override;
    void setViewport(int width, int height) override;
    float lineWidth(float width) override;

    /// Puts picture and sound together. Throws std::runtime_error if any of it has failed.
    void finishFilm(const std::string& path);

protected:
    void show() override;

private:
    void fill(std::uint32_t place);
    void hear(std::uint64_t until);
    void takePicture();
    void sayProgress();

    const Format format;
    Pipe pictures, sound;
    std::vector<std::uint32_t> picture; ///< pixels of the last frame, from the bottom
    std::uint64_t pictureCount = 0;     ///< written
    std::uint64_t heard = 0;            ///< samples
    double scale = 1.0;                 ///< of the game's pixels in the film
    std::uint32_t begun = 0, said = 0;  ///< ms, the real clock
};

} // namespace quorva::replay
