#pragma once

#include "replay/FilmTime.h"
#include "replay/Pipe.h"
#include "replay/WindowPlayback.h"

#include <cstdint>
#include <string>
#include <vector>

namespace quorva::replay {

/// Makes a film of a game by the ffmpeg program: 33 1/3 pictures a second, one for each tick, and
/// what is heard.
class Film : public WindowPlayback {
public:
    struct Format {
        int width, height;      ///< pixels
        std::uint32_t start;    ///< ms, the game's clock at its first frame
        std::uint32_t from, to; ///< ms after the start: what of it is filmed
        bool full;              ///< long pauses, too
    };

    /// Whether ffmpeg makes films in such a file: it is made, and removed again. Throws
    /// std::runtime_error with the reason if not.
    static void requireTarget(const std::string& path);

    /// Starts ffmpeg, twice, with files in the current folder. Throws std::runtime_error if it
    /// isn't there.
    Film(Script& script_, const boost::filesystem::path& songs_, const Format& format_);

    SDL_Surface* openWindow(int width, int height, int depth, std::uint32_t flags) override;
    void setViewport(int width, int height) override;
    float lineWidth(float width) override;
    bool draws() override;
    bool sounds() override { return isFilmed(); }

    /// Puts picture and sound together. Throws std::runtime_error if any of it has failed.
    void finishFilm(const std::string& path);

protected:
    void moveOn() override { catchUp(); }
    void show() override;
    void passIdly() override { look(); }

private:
    std::uint32_t sessionTime() const { return now() - format.start; } ///< ms after the start
    bool isFilmed() const { return sessionTime() >= format.from && sessionTime() <= format.to; }
    bool somethingGoesOn() const;
    void catchUp();
    void fill(std::uint32_t ms);
    void hear(std::uint64_t until, double volume);
    void takePicture();
    void look();
    void sayProgress() const;

    const Format format;
    FilmTime time;
    Pipe pictures, sound;
    std::vector<std::uint32_t> picture; ///< pixels of the last frame, from the bottom
    bool hasBegun = false;
    std::uint32_t lastTime = 0;     ///< ms after the start, of the last frame
    std::uint64_t filmed = 0;       ///< ms of the film
    std::uint64_t pictureCount = 0; ///< written
    std::uint64_t heard = 0;        ///< samples
    double scale = 1.0;             ///< of the game's pixels in the film
    std::uint32_t looked = 0;       ///< ms, the real clock
};

} // namespace quorva::replay
